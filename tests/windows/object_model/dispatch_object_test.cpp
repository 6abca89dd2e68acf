#include "windows/object_model/dispatch_object.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "environment/run_time_error.h"
#include "support/windows/fake_dispatch.h"

namespace brimwork::windows {
namespace dispatch_object_test {

using testing::ElementsAre;
using testing::IsEmpty;
using win32::ComPointer;
using win32::Variant;

/// An object of the kind that the tests make of what members give.
struct Part {
  static constexpr ObjectKind kKind = ObjectKind::kWindow;
  explicit Part(DispatchObject part) : object(std::move(part)) {}
  DispatchObject object;
};

struct DispatchObjectTest : testing::Test {
  DispatchObject Object() { return {ComPointer<IDispatch>(fake.get()), connection, kKind}; }

  static constexpr ObjectKind kKind = ObjectKind::kCodeModule;

  ComPointer<FakeDispatch> fake = FakeDispatch::Make();
  std::shared_ptr<Connection> connection = std::make_shared<Connection>();
};

TEST_F(DispatchObjectTest, APropertyIsReadAsOne) {
  fake->Gives("Caption", "Größe");
  EXPECT_EQ(ToText(Object().Get(L"Caption")), "Größe");
  ASSERT_EQ(fake->calls.size(), 1u);
  EXPECT_EQ(fake->calls[0].kind, DISPATCH_PROPERTYGET);
  EXPECT_TRUE(fake->calls[0].wantsResult);
}

TEST_F(DispatchObjectTest, APropertyWithArgumentsMayBeAMethod) {
  fake->Gives("Item", 7L);
  EXPECT_EQ(ToNumber(Object().Get(L"Item", 3)), 7);
  EXPECT_EQ(fake->calls[0].kind, DISPATCH_METHOD | DISPATCH_PROPERTYGET);
}

TEST_F(DispatchObjectTest, AMethodIsCalledAsOne) {
  fake->Gives("Show", Variant());
  Object().Call(L"Show");
  EXPECT_EQ(fake->calls[0].kind, DISPATCH_METHOD);
}

TEST_F(DispatchObjectTest, ArgumentsComeInTheirOrderWithTheirTypes) {
  fake->Gives("Add", Variant());
  long number = 5;
  Object().Call(L"Add", 1, std::string_view("zwei"), true, Variant::Missing(),
                Variant::ByReference(number));
  const auto& call = fake->calls.at(0);
  EXPECT_THAT(call.types, ElementsAre(VT_I4, VT_BSTR, VT_BOOL, VT_ERROR, VT_BYREF | VT_I4));
  EXPECT_EQ(call.arguments[0].ToLong(), 1);
  EXPECT_EQ(call.arguments[1].ToText(), "zwei");
  EXPECT_EQ(call.arguments[2].Get().boolVal, VARIANT_TRUE);
  EXPECT_TRUE(call.arguments[3].IsMissing());
  EXPECT_EQ(call.arguments[4].ToLong(), 5);
  EXPECT_THAT(call.named, IsEmpty());
}

TEST_F(DispatchObjectTest, TheCalledWritesToAReference) {
  fake->On("ProcOfLine", [](FakeDispatch::Invocation& invocation) {
    invocation.WriteLong(1, 3);
    return S_OK;
  });
  long kind = 0;
  Object().Get(L"ProcOfLine", 4, Variant::ByReference(kind));
  EXPECT_EQ(kind, 3);
}

TEST_F(DispatchObjectTest, EightArgumentsHaveRoom) {
  fake->Gives("Find", true);
  EXPECT_TRUE(ToTruth(Object().Call(L"Find", 1, 2, 3, 4, 5, 6, 7, 8)));
  EXPECT_EQ(fake->calls[0].arguments[7].ToLong(), 8);
}

TEST_F(DispatchObjectTest, TheEnvironmentIsAskedForANameOnceForAllObjectsOfAKind) {
  fake->Gives("Lines", "a");
  const auto other = FakeDispatch::Make();
  other->Gives("Lines", "b");
  const DispatchObject object = Object();
  object.Get(L"Lines", 1);
  object.Get(L"Lines", 2);
  DispatchObject(ComPointer<IDispatch>(other.get()), connection, kKind).Get(L"Lines", 1);
  EXPECT_EQ(fake->TimesNamed("Lines"), 1);
  EXPECT_EQ(other->TimesNamed("Lines"), 0);
  EXPECT_EQ(other->calls.size(), 1u);
}

TEST_F(DispatchObjectTest, ObjectsOfAnotherKindHaveNumbersOfTheirOwn) {
  fake->Gives("Delete", Variant());
  const auto other = FakeDispatch::Make();
  other->firstId = 7000;
  other->Gives("Delete", Variant());
  Object().Call(L"Delete");
  DispatchObject(ComPointer<IDispatch>(other.get()), connection, ObjectKind::kCommandBar)
      .Call(L"Delete");
  EXPECT_EQ(other->TimesNamed("Delete"), 1);
  EXPECT_EQ(other->calls.size(), 1u);
}

TEST_F(DispatchObjectTest, AnotherConnectionAsksAnew) {
  fake->Gives("Name", "a");
  Object().Get(L"Name");
  connection = std::make_shared<Connection>();
  Object().Get(L"Name");
  EXPECT_EQ(fake->TimesNamed("Name"), 2);
}

TEST_F(DispatchObjectTest, ANameThatFailedIsAskedForAgain) {
  fake->Gives("Name", "a");
  fake->statusOfNaming = E_FAIL;
  EXPECT_THROW(Object().Get(L"Name"), RunTimeError);
  fake->statusOfNaming = S_OK;
  EXPECT_EQ(ToText(Object().Get(L"Name")), "a");
}

TEST_F(DispatchObjectTest, APropertyIsWrittenAsANamedArgument) {
  fake->Gives("Visible", Variant());
  Object().Put(L"Visible", Variant(true));
  const auto& call = fake->calls.at(0);
  EXPECT_EQ(call.kind, DISPATCH_PROPERTYPUT);
  EXPECT_THAT(call.named, ElementsAre(DISPID_PROPERTYPUT));
  EXPECT_TRUE(call.arguments.at(0).ToBool());
  EXPECT_FALSE(call.wantsResult);
}

TEST_F(DispatchObjectTest, AnObjectIsWrittenByReference) {
  fake->Gives("ActiveCodePane", Variant());
  const auto pane = FakeDispatch::Make();
  Object().PutReference(L"ActiveCodePane",
                        {ComPointer<IDispatch>(pane.get()), connection, ObjectKind::kCodePane});
  const auto& call = fake->calls.at(0);
  EXPECT_EQ(call.kind, DISPATCH_PROPERTYPUTREF);
  EXPECT_EQ(call.arguments.at(0).Get().pdispVal, pane.get());
}

TEST_F(DispatchObjectTest, AnObjectIsWrittenByValueWhereThatIsAllThereIs) {
  fake->On("ActiveCodePane", [&](FakeDispatch::Invocation&) {
    return fake->calls.back().kind == DISPATCH_PROPERTYPUTREF ? DISP_E_MEMBERNOTFOUND : S_OK;
  });
  Object().PutReference(L"ActiveCodePane", Object());
  ASSERT_EQ(fake->calls.size(), 2u);
  EXPECT_EQ(fake->calls[1].kind, DISPATCH_PROPERTYPUT);
}

TEST_F(DispatchObjectTest, AnotherErrorOfWritingAnObjectIsRaised) {
  fake->Fails("ActiveCodePane", DISP_E_TYPEMISMATCH);
  EXPECT_THROW(Object().PutReference(L"ActiveCodePane", Object()), RunTimeError);
  EXPECT_EQ(fake->calls.size(), 1u);
}

TEST_F(DispatchObjectTest, AnObjectThatAMemberGivesIsWrapped) {
  const auto window = FakeDispatch::Make();
  window->Gives("Caption", "Immediate");
  fake->Gives("Window", window);
  const auto part = Object().GetAs<Part>(L"Window");
  ASSERT_NE(part, nullptr);
  EXPECT_EQ(ToText(part->object.Get(L"Caption")), "Immediate");
}

TEST_F(DispatchObjectTest, AnObjectMayComeAsUnknown) {
  const auto window = FakeDispatch::Make();
  fake->Gives("Window", Variant(static_cast<IUnknown*>(window.get())));
  EXPECT_EQ(Object().GetAs<Part>(L"Window")->object.Object().get(), window.get());
}

TEST_F(DispatchObjectTest, AnObjectWithoutAutomationRaisesAnError) {
  const auto window = FakeDispatch::Make();
  window->knowsItsInterfaces = false;
  fake->Gives("Window", Variant(static_cast<IUnknown*>(window.get())));
  EXPECT_THROW(Object().GetAs<Part>(L"Window"), RunTimeError);
}

TEST_F(DispatchObjectTest, NothingIsANullPointerHoweverItIsSaid) {
  VARIANT null;
  VariantInit(&null);
  null.vt = VT_NULL;
  fake->Gives("A", Variant(static_cast<IDispatch*>(nullptr)));
  fake->Gives("B", Variant(static_cast<IUnknown*>(nullptr)));
  fake->Gives("C", Variant());
  fake->Gives("D", Variant::Adopt(null));
  for (const auto* member : {L"A", L"B", L"C", L"D"}) {
    EXPECT_EQ(Object().GetAs<Part>(member), nullptr) << member;
    EXPECT_EQ(Object().CallAs<Part>(member), nullptr) << member;
  }
}

TEST_F(DispatchObjectTest, APartThatIsNothingRaisesErrorNinetyOne) {
  fake->Gives("Windows", Variant(static_cast<IDispatch*>(nullptr)));
  try {
    Object().Part(ObjectKind::kWindows, L"Windows");
    FAIL() << "no error was raised";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Number(), 91);
    EXPECT_STREQ(error.what(), "Windows is nothing");
  }
}

TEST_F(DispatchObjectTest, ACollectionGivesItsItemsAndLeavesNothingOut) {
  const auto one = FakeDispatch::Make();
  const auto other = FakeDispatch::Make();
  fake->Gives("Windows", MakeFakeCollection({one, other}));
  const auto items = Object().Part(ObjectKind::kWindows, L"Windows").Items<Part, Part>();
  ASSERT_EQ(items.size(), 2u);
  EXPECT_EQ(items[0]->object.Object().get(), one.get());
  EXPECT_EQ(items[1]->object.Object().get(), other.get());
}

TEST_F(DispatchObjectTest, TheIdentityIsThatOfTheObjectBehindItsInterfaces) {
  const auto one = FakeDispatch::Make();
  one->outer = fake.get();
  const DispatchObject part(ComPointer<IDispatch>(one.get()), connection, kKind);
  EXPECT_EQ(part.Identity(), Object().Identity());
  one->outer = nullptr;
  EXPECT_NE(part.Identity(), Object().Identity());
}

TEST_F(DispatchObjectTest, EveryReferenceIsReleased) {
  const auto window = FakeDispatch::Make();
  fake->Gives("Window", window);
  const ULONG held = window->References();
  {
    const auto part = Object().GetAs<Part>(L"Window");
    EXPECT_GT(window->References(), held);
  }
  EXPECT_EQ(window->References(), held);
  EXPECT_EQ(fake->References(), 1u);
}

}  // namespace dispatch_object_test
}  // namespace brimwork::windows

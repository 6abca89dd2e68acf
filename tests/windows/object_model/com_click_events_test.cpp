// Clicks on controls over COM.
#include "windows/object_model/com_click_events.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "environment/resume_next.h"
#include "support/windows/fake_click_events.h"
#include "support/windows/fake_dispatch.h"
#include "windows/object_model/com_vbe.h"

namespace brimwork::windows {
namespace com_click_events_test {

using testing::ElementsAre;
using testing::IsEmpty;
using win32::ComPointer;
using win32::Variant;
using Invocation = FakeDispatch::Invocation;

constexpr DISPID kClick = 1;

struct ComClickEventsTest : testing::Test {
  ComClickEventsTest() {
    fake->Gives("Events", events);
    fake->Gives("CommandBars", bars);
    bars->Gives("FindControl", bound);
    bound->Gives("Caption", "bound");
    clicked->Gives("Caption", "clicked");
    UseInterfaces({kVisualBasicClicks});
  }

  void UseInterfaces(const std::vector<IID>& interfaces) {
    source = FakeClickEvents::Make(interfaces);
    events->Gives("CommandBarEvents", Variant(static_cast<IUnknown*>(source.get())));
  }
  void Bind(ClickHandler handler) {
    binding = vbe.CommandBarEventsOf(vbe.FindControl(1), std::move(handler));
  }
  void BindNoting() {
    Bind([this](CommandBarControl& control) { captions.push_back(control.Caption()); });
  }
  FakeConnectionPoint& Point(std::size_t number = 0) { return *source->points.at(number); }

  HRESULT Send(DISPID member, DISPPARAMS parameters, EXCEPINFO* exception = nullptr) {
    const auto sink = Point().Sink();
    return sink->Invoke(member, IID_NULL, 0, DISPATCH_METHOD, &parameters, nullptr, exception,
                        nullptr);
  }
  HRESULT Click(EXCEPINFO* exception = nullptr) {
    VARIANT_BOOL flags[2] = {};
    VARIANT arguments[3] = {ByReference(flags[0]), ByReference(flags[1]), Control()};
    return Send(kClick, {arguments, nullptr, 3, 0}, exception);
  }
  /// Not counted: it lasts as long as the fixture.
  VARIANT Control() {
    VARIANT value;
    VariantInit(&value);
    value.vt = VT_DISPATCH;
    value.pdispVal = clicked.get();
    return value;
  }
  static VARIANT ByReference(VARIANT_BOOL& flag) {
    VARIANT value;
    VariantInit(&value);
    value.vt = VT_BYREF | VT_BOOL;
    value.pboolVal = &flag;
    return value;
  }

  ComPointer<FakeDispatch> bound = FakeDispatch::Make();
  ComPointer<FakeDispatch> clicked = FakeDispatch::Make();
  ComPointer<FakeDispatch> bars = FakeDispatch::Make();
  ComPointer<FakeDispatch> events = FakeDispatch::Make();
  ComPointer<FakeDispatch> fake = FakeDispatch::Make();
  ComPointer<FakeClickEvents> source;
  ComVbe vbe{ComPointer<IDispatch>(fake.get())};
  std::vector<std::string> captions;
  std::unique_ptr<CommandBarEvents> binding;
};

TEST_F(ComClickEventsTest, TheEnvironmentIsAskedForTheEventsOfTheControl) {
  BindNoting();
  EXPECT_EQ(events->calls.at(0).member, "CommandBarEvents");
  EXPECT_EQ(events->calls.at(0).arguments.at(0).Get().pdispVal, bound.get());
}

TEST_F(ComClickEventsTest, AClickReachesTheHandlerWithTheClickedControl) {
  BindNoting();
  EXPECT_EQ(Click(), S_OK);
  EXPECT_THAT(captions, ElementsAre("clicked"));
}

TEST_F(ComClickEventsTest, HandledAndCancelDefaultAreLeftAlone) {
  BindNoting();
  VARIANT_BOOL flags[2] = {VARIANT_TRUE, VARIANT_FALSE};
  VARIANT arguments[3] = {ByReference(flags[0]), ByReference(flags[1]), Control()};
  Send(kClick, {arguments, nullptr, 3, 0});
  EXPECT_EQ(flags[0], VARIANT_TRUE);
  EXPECT_EQ(flags[1], VARIANT_FALSE);
}

TEST_F(ComClickEventsTest, TheEventsMayComeAsAnAutomationObjectToo) {
  const auto automated = FakeDispatch::Make();
  automated->outer = static_cast<IUnknown*>(source.get());
  events->Gives("CommandBarEvents", Variant(static_cast<IDispatch*>(automated.get())));
  BindNoting();
  EXPECT_EQ(Click(), S_OK);
  EXPECT_THAT(captions, ElementsAre("clicked"));
}

TEST_F(ComClickEventsTest, NamedArgumentsAreMappedByTheirNumbers) {
  BindNoting();
  VARIANT_BOOL flag = VARIANT_FALSE;
  VARIANT arguments[3] = {Control(), ByReference(flag), ByReference(flag)};
  DISPID names[3] = {0, 1, 2};
  EXPECT_EQ(Send(kClick, {arguments, names, 3, 3}), S_OK);
  VARIANT partly[2] = {ByReference(flag), Control()};
  DISPID handled = 1;
  EXPECT_EQ(Send(kClick, {partly, &handled, 2, 1}), S_OK);
  EXPECT_THAT(captions, ElementsAre("clicked", "clicked"));
}

TEST_F(ComClickEventsTest, WithoutArgumentsTheBoundControlIsMeant) {
  BindNoting();
  EXPECT_EQ(Send(kClick, {}), S_OK);
  VARIANT_BOOL flag = VARIANT_FALSE;
  VARIANT onlyAFlag[1] = {ByReference(flag)};
  DISPID handled = 1;
  EXPECT_EQ(Send(kClick, {onlyAFlag, &handled, 1, 1}), S_OK);
  VARIANT noObject[1];
  VariantInit(&noObject[0]);
  EXPECT_EQ(Send(kClick, {noObject, nullptr, 1, 0}), S_OK);
  EXPECT_EQ(Point().Sink()->Invoke(kClick, IID_NULL, 0, DISPATCH_METHOD, nullptr, nullptr, nullptr,
                                   nullptr),
            S_OK);
  EXPECT_THAT(captions, ElementsAre("bound", "bound", "bound", "bound"));
}

TEST_F(ComClickEventsTest, OtherEventsAreIgnored) {
  BindNoting();
  EXPECT_EQ(Send(2, {}), S_OK);
  EXPECT_THAT(captions, IsEmpty());
}

TEST_F(ComClickEventsTest, TheVisualBasicInterfaceComesFirstThenThatOfTheEditorsThenAny) {
  UseInterfaces({kOtherClicks, kEditorClicks, kVisualBasicClicks});
  BindNoting();
  EXPECT_TRUE(Point(2).Sink());
  UseInterfaces({kOtherClicks, kEditorClicks});
  BindNoting();
  EXPECT_TRUE(Point(1).Sink());
  EXPECT_FALSE(Point(0).Sink());
  UseInterfaces({kOtherClicks});
  BindNoting();
  EXPECT_TRUE(Point(0).Sink());
}

TEST_F(ComClickEventsTest, APointThatRefusesIsPassedOver) {
  UseInterfaces({kVisualBasicClicks, kEditorClicks});
  Point(0).statusOfAdvise = CONNECT_E_ADVISELIMIT;
  BindNoting();
  EXPECT_TRUE(Point(1).Sink());
}

TEST_F(ComClickEventsTest, WithoutAPointThereIsAnErrorAndNothingIsHeld) {
  UseInterfaces({});
  EXPECT_EQ(ResumeNext([&] { BindNoting(); })->Number(), 438);
  source->isConnectionPointContainer = false;
  EXPECT_EQ(ResumeNext([&] { BindNoting(); })->Number(), 438);
  events->Gives("CommandBarEvents", Variant(static_cast<IDispatch*>(nullptr)));
  EXPECT_EQ(ResumeNext([&] { BindNoting(); })->Number(), 438);
  EXPECT_EQ(source->References(), 1u);
}

TEST_F(ComClickEventsTest, AControlOfAnotherEnvironmentIsRefused) {
  EXPECT_EQ(ResumeNext([&] { vbe.CommandBarEventsOf(nullptr, {}); })->Number(), 5);
}

TEST_F(ComClickEventsTest, TheSinkAnswersForItsInterfacesOnly) {
  BindNoting();
  const auto sink = Point().Sink();
  for (const IID& iid : {IID_IUnknown, IID_IDispatch, kVisualBasicClicks}) {
    EXPECT_TRUE(sink.As<IUnknown>(iid));
  }
  EXPECT_FALSE(sink.As<IUnknown>(kEditorClicks));
  EXPECT_FALSE(sink.As<IUnknown>(IID_NULL));
  UINT count = 7;
  EXPECT_EQ(sink->GetTypeInfoCount(&count), S_OK);
  EXPECT_EQ(count, 0u);
  EXPECT_EQ(sink->GetIDsOfNames(IID_NULL, nullptr, 0, 0, nullptr), E_NOTIMPL);
}

TEST_F(ComClickEventsTest, ARunTimeErrorOfTheHandlerIsOneOfTheCall) {
  Bind([](CommandBarControl&) { throw RunTimeError(35, "not defined"); });
  EXCEPINFO exception = {};
  EXPECT_EQ(Click(&exception), DISP_E_EXCEPTION);
  EXPECT_EQ(exception.scode, static_cast<HRESULT>(0x800A0023));
  EXPECT_EQ(win32::TextOf(exception.bstrDescription), "not defined");
  SysFreeString(exception.bstrDescription);
  EXPECT_EQ(Click(), static_cast<HRESULT>(0x800A0023));
}

TEST_F(ComClickEventsTest, NoOtherExceptionCrossesIntoTheEnvironment) {
  Bind([](CommandBarControl&) { throw std::logic_error("oh"); });
  EXPECT_EQ(Click(), E_FAIL);
  Bind([](CommandBarControl&) { throw std::bad_alloc(); });
  EXPECT_EQ(Click(), E_OUTOFMEMORY);
}

TEST_F(ComClickEventsTest, ClicksEndWithTheBinding) {
  BindNoting();
  const auto sink = Point().Sink();
  binding.reset();
  EXPECT_EQ(Point().timesUnadvised, 1);
  EXPECT_THAT(Point().sinks, IsEmpty());
  DISPPARAMS none = {};
  EXPECT_EQ(sink->Invoke(kClick, IID_NULL, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr),
            S_OK);
  EXPECT_THAT(captions, IsEmpty());
}

TEST_F(ComClickEventsTest, AnEnvironmentThatHasGoneIsNoError) {
  BindNoting();
  Point().statusOfUnadvise = RPC_E_DISCONNECTED;
  binding.reset();
  EXPECT_EQ(Point().timesUnadvised, 1);
  EXPECT_EQ(Click(), S_OK);
  EXPECT_THAT(captions, IsEmpty());
  Point().sinks.clear();
}

TEST_F(ComClickEventsTest, AHandlerMayEndItsOwnBinding) {
  Bind([this](CommandBarControl& control) {
    binding.reset();
    captions.push_back(control.Caption());
  });
  EXPECT_EQ(Click(), S_OK);
  EXPECT_THAT(captions, ElementsAre("clicked"));
}

TEST_F(ComClickEventsTest, AHandlerOfTheBoundControlMayEndItsOwnBinding) {
  Bind([this](CommandBarControl& control) {
    binding.reset();
    captions.push_back(control.Caption());
  });
  EXPECT_EQ(Send(kClick, {}), S_OK);
  EXPECT_THAT(captions, ElementsAre("bound"));
}

TEST_F(ComClickEventsTest, EveryReferenceIsReleased) {
  const ULONG heldOfBound = bound->References();
  const ULONG heldOfClicked = clicked->References();
  const ULONG heldOfSource = source->References();
  BindNoting();
  Click();
  events->calls.clear();  // they hold the control, too
  EXPECT_GT(bound->References(), heldOfBound);
  binding.reset();
  EXPECT_EQ(bound->References(), heldOfBound);
  EXPECT_EQ(clicked->References(), heldOfClicked);
  EXPECT_EQ(source->References(), heldOfSource);
  EXPECT_EQ(Point().References(), 1u);
}

}  // namespace com_click_events_test
}  // namespace brimwork::windows

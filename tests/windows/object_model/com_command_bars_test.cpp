// Command bars and their controls over COM.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "environment/resume_next.h"
#include "support/windows/fake_dispatch.h"
#include "windows/object_model/com_vbe.h"

namespace brimwork::windows {
namespace com_command_bars_test {

using testing::ElementsAre;
using win32::ComPointer;
using win32::Variant;
using Invocation = FakeDispatch::Invocation;

struct ComCommandBarsTest : testing::Test {
  ComCommandBarsTest() {
    fake->Gives("CommandBars", bars);
    bar->Gives("Name", "Tools");
    bar->Gives("Controls", controls);
    controls->Gives("Add", button);
    button->Gives("Caption", "Cu&t");
    popup->Gives("Caption", "To&ggle");
  }

  int NumberOfErrorIn(const std::function<void()>& step) {
    const auto error = ResumeNext(step);
    return error ? error->Number() : 0;
  }
  /// What the latest call to an object was given, left-out arguments as "-".
  static std::vector<std::string> LatestArguments(const ComPointer<FakeDispatch>& object) {
    std::vector<std::string> arguments;
    for (const Variant& each : object->calls.back().arguments) {
      arguments.push_back(each.IsMissing() ? "-" : each.ToText());
    }
    return arguments;
  }

  ComPointer<FakeDispatch> button = FakeDispatch::Make();
  ComPointer<FakeDispatch> popup = FakeDispatch::Make();
  ComPointer<FakeDispatch> controls = MakeFakeCollection({button, popup});
  ComPointer<FakeDispatch> bar = FakeDispatch::Make();
  ComPointer<FakeDispatch> bars = MakeFakeCollection({bar});
  ComPointer<FakeDispatch> fake = FakeDispatch::Make();
  ComVbe vbe{ComPointer<IDispatch>(fake.get())};
};

TEST_F(ComCommandBarsTest, ABarIsFoundByItsExactName) {
  EXPECT_EQ(vbe.CommandBars().size(), 1u);
  EXPECT_EQ(vbe.CommandBarOfName("Tools")->Name(), "Tools");
  EXPECT_EQ(vbe.CommandBarOfName("tools"), nullptr);
}

TEST_F(ComCommandBarsTest, ABarIsAddedByPosition) {
  bars->Gives("Add", bar);
  EXPECT_EQ(vbe.AddCommandBar({.name = "New", .position = 4, .isTemporary = true})->Name(),
            "Tools");
  EXPECT_THAT(LatestArguments(bars), ElementsAre("New", "4", "0", "-1"));
  vbe.AddCommandBar({.name = "New", .isTemporary = false});
  EXPECT_THAT(LatestArguments(bars), ElementsAre("New", "1", "0", "0"));
}

TEST_F(ComCommandBarsTest, AControlIsFoundByItsNumberAlone) {
  bars->Gives("FindControl", button);
  EXPECT_EQ(vbe.FindControl(192)->Caption(), "Cu&t");
  EXPECT_THAT(LatestArguments(bars), ElementsAre("-", "192"));
  bars->Gives("FindControl", Variant(static_cast<IDispatch*>(nullptr)));
  EXPECT_EQ(vbe.FindControl(192), nullptr);
}

TEST_F(ComCommandBarsTest, ABarKeepsItsPlace) {
  for (const auto* member : {"Visible", "Position", "RowIndex", "Left", "Top"}) {
    bar->Gives(member, 3L);
  }
  const auto tools = vbe.CommandBarOfName("Tools");
  tools->SetVisible(true);
  tools->SetPosition(1);
  tools->SetRowIndex(2);
  tools->SetLeft(-3);
  tools->SetTop(4);
  EXPECT_TRUE(tools->Visible());
  EXPECT_EQ(tools->Position() + tools->RowIndex() + tools->Left() + tools->Top(), 12);
  std::vector<std::string> written;
  for (const auto& call : bar->calls) {
    if (call.kind != DISPATCH_PROPERTYPUT) continue;
    written.push_back(call.member + " " + call.arguments[0].ToText());
  }
  EXPECT_THAT(written, ElementsAre("Visible -1", "Position 1", "RowIndex 2", "Left -3", "Top 4"));
}

TEST_F(ComCommandBarsTest, ABarIsDeletedByItsMethod) {
  bar->Gives("Delete", Variant());
  vbe.CommandBarOfName("Tools")->Delete();
  EXPECT_EQ(bar->calls.back().member, "Delete");
  EXPECT_EQ(bar->calls.back().kind, DISPATCH_METHOD);
}

TEST_F(ComCommandBarsTest, AControlIsAddedByPositionWithWhatIsLeftOutMissing) {
  const auto entries = vbe.CommandBarOfName("Tools")->Controls();
  entries->Add({});
  EXPECT_THAT(LatestArguments(controls), ElementsAre("1", "1", "-", "-", "-1"));
  entries->Add({.type = 10, .id = 1, .before = 3, .isTemporary = false});
  EXPECT_THAT(LatestArguments(controls), ElementsAre("10", "1", "-", "3", "0"));
}

TEST_F(ComCommandBarsTest, ControlsAreFoundByNumberAndByCaptionWithoutAccessKeyAndCase) {
  const auto entries = vbe.CommandBarOfName("Tools")->Controls();
  EXPECT_EQ(entries->Count(), 2);
  EXPECT_EQ(entries->Item(1)->Caption(), "Cu&t");
  EXPECT_EQ(entries->Item("Toggle")->Caption(), "To&ggle");
  EXPECT_EQ(entries->Item("toggl&e")->Caption(), "To&ggle");
  EXPECT_EQ(NumberOfErrorIn([&] { entries->Item("Tog"); }), 5);
  EXPECT_EQ(NumberOfErrorIn([&] { entries->Item(3); }), 9);
}

TEST_F(ComCommandBarsTest, AControlIsReadAndWritten) {
  for (const auto* member : {"Type", "Id", "Index", "Tag", "BeginGroup", "Style"}) {
    button->Gives(member, 1L);
  }
  for (const auto* member : {"Execute", "Delete", "PasteFace"}) button->Gives(member, Variant());
  const auto control = vbe.CommandBarOfName("Tools")->Controls()->Item(1);
  EXPECT_EQ(control->Type() + control->Id() + control->Index() + control->Style(), 4);
  EXPECT_EQ(control->Tag(), "1");
  EXPECT_TRUE(control->BeginGroup());
  button->calls.clear();
  control->SetCaption("c");
  control->SetTag("t");
  control->SetBeginGroup(false);
  control->SetStyle(3);
  control->PasteFace();
  control->Execute();
  control->Delete();
  std::vector<std::string> done;
  for (const auto& call : button->calls) {
    done.push_back(call.arguments.empty() ? call.member
                                          : call.member + " " + call.arguments[0].ToText());
  }
  EXPECT_THAT(done, ElementsAre("Caption c", "Tag t", "BeginGroup 0", "Style 3", "PasteFace",
                                "Execute", "Delete"));
}

// One number may be a member of buttons and another one of popups.
TEST_F(ComCommandBarsTest, WhatBelongsToAPopupIsNoMemberOfAButton) {
  popup->Gives("Controls", controls);
  const auto entries = vbe.CommandBarOfName("Tools")->Controls();
  EXPECT_EQ(entries->Item(2)->Controls()->Count(), 2);
  button->Gives("BuiltInFace", true);  // has the number that Controls has on the popup
  EXPECT_EQ(NumberOfErrorIn([&] { entries->Item(1)->Controls(); }), 438);
}

TEST_F(ComCommandBarsTest, EveryReferenceIsReleasedWithItsObject) {
  const ULONG held = button->References();
  {
    const auto control = vbe.CommandBarOfName("Tools")->Controls()->Item(1);
    control->Caption();
    EXPECT_GT(button->References(), held);
  }
  EXPECT_EQ(button->References(), held);
}

}  // namespace com_command_bars_test
}  // namespace brimwork::windows

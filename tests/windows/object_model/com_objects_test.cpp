// Panes, windows, projects and the environment itself over COM.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "environment/resume_next.h"
#include "support/windows/fake_dispatch.h"
#include "windows/object_model/com_vbe.h"

namespace brimwork::windows {
namespace com_objects_test {

using testing::ElementsAre;
using testing::EndsWith;
using win32::ComPointer;
using win32::Variant;
using Invocation = FakeDispatch::Invocation;

const Variant kNothing(static_cast<IDispatch*>(nullptr));

struct ComObjectsTest : testing::Test {
  int NumberOfErrorIn(const std::function<void()>& step) {
    const auto error = ResumeNext(step);
    return error ? error->Number() : 0;
  }
  ComPointer<FakeDispatch> WindowOf(std::string_view caption) {
    auto window = FakeDispatch::Make();
    window->Gives("Caption", caption);
    window->Gives("HWnd", 0L);
    return window;
  }

  ComPointer<FakeDispatch> fake = FakeDispatch::Make();
  ComVbe vbe{ComPointer<IDispatch>(fake.get())};
};

TEST_F(ComObjectsTest, TheEnvironmentSaysWhereItsProgramIs) {
  fake->Gives("FullName", "C:\\VB98\\VB6.EXE");
  EXPECT_EQ(vbe.FullName(), "C:\\VB98\\VB6.EXE");
}

TEST_F(ComObjectsTest, TheEnvironmentIsNotHeldOnceTheConnectionHasEnded) {
  const ULONG others = fake->References() - 1;
  vbe.End();
  EXPECT_EQ(fake->References(), others);
  EXPECT_EQ(NumberOfErrorIn([&] { vbe.MainWindow(); }), 440);
  EXPECT_EQ(NumberOfErrorIn([&] { vbe.CommandBars(); }), 440);
}

TEST_F(ComObjectsTest, TheConnectionMayEndDuringACall) {
  fake->On("FullName", [&](Invocation& call) {
    vbe.End();
    call.Return(Variant("late"));
    return S_OK;
  });
  EXPECT_EQ(vbe.FullName(), "late");
}

TEST_F(ComObjectsTest, TheRunningProgramIsTheEnvironmentsWhereItDoesNotSay) {
  const std::string path = vbe.FullName();
  EXPECT_THAT(path, EndsWith(".exe"));
  EXPECT_NE(GetFileAttributesA(path.c_str()), INVALID_FILE_ATTRIBUTES) << path;
}

TEST_F(ComObjectsTest, AnotherErrorOfTheProgramsPathIsRaised) {
  fake->Fails("FullName", E_FAIL);
  EXPECT_EQ(NumberOfErrorIn([&] { vbe.FullName(); }), 440);
}

TEST_F(ComObjectsTest, ObjectsThatAreNotThereAreNull) {
  for (const auto* member :
       {"ActiveCodePane", "ActiveVBProject", "MainWindow", "ActiveWindow", "CommandBars"}) {
    fake->Gives(member, kNothing);
  }
  EXPECT_EQ(vbe.ActiveCodePane(), nullptr);
  EXPECT_EQ(vbe.ActiveVBProject(), nullptr);
  EXPECT_EQ(vbe.MainWindow(), nullptr);
  EXPECT_EQ(vbe.ActiveWindow(), nullptr);
  EXPECT_EQ(NumberOfErrorIn([&] { vbe.CommandBars(); }), 91);
}

TEST_F(ComObjectsTest, WindowsComeInTheOrderOfTheCollectionAndByExactCaption) {
  const auto immediate = WindowOf("Immediate");
  const auto locals = WindowOf("Locals");
  fake->Gives("Windows", MakeFakeCollection({immediate, locals}));
  const auto windows = vbe.Windows();
  ASSERT_EQ(windows.size(), 2u);
  EXPECT_EQ(windows[1]->Caption(), "Locals");
  EXPECT_EQ(vbe.WindowOfCaption("Locals")->Caption(), "Locals");
  EXPECT_EQ(vbe.WindowOfCaption("locals"), nullptr);
}

TEST_F(ComObjectsTest, AWindowIsShownFocusedAndClosed) {
  const auto window = WindowOf("Immediate");
  for (const auto* member : {"Visible", "SetFocus", "Close"}) window->Gives(member, true);
  window->Gives("Type", 5L);
  fake->Gives("MainWindow", window);
  const auto shown = vbe.MainWindow();
  EXPECT_EQ(shown->Type(), 5);
  EXPECT_TRUE(shown->Visible());
  shown->SetVisible(false);
  shown->SetFocus();
  shown->Close();
  std::vector<std::string> members;
  for (const auto& call : window->calls) members.push_back(call.member);
  EXPECT_THAT(members, ElementsAre("Type", "Visible", "Visible", "SetFocus", "Close"));
  EXPECT_EQ(window->calls[2].kind, DISPATCH_PROPERTYPUT);
  EXPECT_FALSE(window->calls[2].arguments[0].ToBool());
}

TEST_F(ComObjectsTest, TwoObjectsForOneNativeWindowHaveOneIdentity) {
  const auto one = FakeDispatch::Make();
  const auto again = FakeDispatch::Make();
  const auto other = FakeDispatch::Make();
  one->Gives("HWnd", 0x10020L);
  again->Gives("HWnd", 0x10020L);
  other->Gives("HWnd", 0x10030L);
  fake->Gives("Windows", MakeFakeCollection({one, again, other}));
  const auto windows = vbe.Windows();
  EXPECT_EQ(windows[0]->Identity(), windows[1]->Identity());
  EXPECT_NE(windows[0]->Identity(), windows[2]->Identity());
}

TEST_F(ComObjectsTest, AWindowWithoutAHandleIsItsObject) {
  const auto one = WindowOf("one");
  const auto other = FakeDispatch::Make();
  fake->Gives("Windows", MakeFakeCollection({one, one, other}));
  const auto windows = vbe.Windows();
  EXPECT_EQ(windows[0]->Identity(), windows[1]->Identity());
  EXPECT_NE(windows[0]->Identity(), windows[2]->Identity());
  EXPECT_NE(windows[2]->Identity(), 0u);
}

TEST_F(ComObjectsTest, ProjectsHaveComponentsWithNamesTypesAndModules) {
  const auto module = FakeDispatch::Make();
  module->Gives("Name", "Module1");
  const auto component = FakeDispatch::Make();
  component->Gives("Name", "Module1");
  component->Gives("Type", 1L);
  component->Gives("CodeModule", module);
  const auto resource = FakeDispatch::Make();
  resource->Gives("Name", "Resources");
  resource->Gives("Type", 4L);
  resource->Gives("CodeModule", kNothing);
  const auto components = MakeFakeCollection({component, resource});
  components->Gives("Add", component);
  const auto project = FakeDispatch::Make();
  project->Gives("Name", "Project1");
  project->Gives("VBComponents", components);
  fake->Gives("ActiveVBProject", project);

  const auto active = vbe.ActiveVBProject();
  EXPECT_EQ(active->Name(), "Project1");
  const auto all = active->VBComponents();
  ASSERT_EQ(all.size(), 2u);
  EXPECT_EQ(all[0]->Type(), 1);
  EXPECT_EQ(all[0]->Module()->Name(), "Module1");
  EXPECT_EQ(all[1]->Module(), nullptr);
  active->AddVBComponent(1)->SetName("modStock");
  EXPECT_EQ(components->calls.back().arguments.at(0).ToLong(), 1);
  EXPECT_EQ(component->calls.back().arguments.at(0).ToText(), "modStock");
}

// Code panes.

struct ComCodePaneTest : ComObjectsTest {
  ComCodePaneTest() {
    module->On("Lines", [this](Invocation& invocation) {
      const auto line = static_cast<std::size_t>(invocation.reversed.rgvarg[1].lVal);
      invocation.Return(Variant(std::string_view(lines.at(line - 1))));
      return S_OK;
    });
    module->On("CountOfLines", [this](Invocation& invocation) {
      invocation.Return(Variant(static_cast<long>(lines.size())));
      return S_OK;
    });
    pane->Gives("CodeModule", module);
    pane->Gives("SetSelection", Variant());
    pane->On("GetSelection", [this](Invocation& invocation) {
      for (UINT i = 0; i < 4; ++i) invocation.WriteLong(i, selected[i]);
      return S_OK;
    });
    fake->Gives("ActiveCodePane", pane);
  }

  /// What the environment is told of a selection.
  std::vector<long> Told(const Selection& selection) {
    vbe.ActiveCodePane()->SetSelection(selection);
    std::vector<long> told;
    for (const Variant& each : pane->calls.back().arguments) told.push_back(each.ToLong());
    return told;
  }

  std::vector<std::string> lines = {"abc", "\xF0\x9F\x98\x80 = 1"};
  std::array<long, 4> selected = {1, 2, 1, 4};
  ComPointer<FakeDispatch> module = FakeDispatch::Make();
  ComPointer<FakeDispatch> pane = FakeDispatch::Make();
};

TEST_F(ComCodePaneTest, TheSelectionIsReadByReference) {
  EXPECT_EQ(vbe.ActiveCodePane()->GetSelection(), (Selection{1, 2, 1, 4}));
  const auto& call = pane->calls.at(0);
  EXPECT_EQ(call.member, "GetSelection");
  EXPECT_EQ(call.kind, DISPATCH_METHOD);
  EXPECT_THAT(call.types, testing::Each(VT_BYREF | VT_I4));
}

TEST_F(ComCodePaneTest, ColumnsAreCharactersInAndUnitsOut) {
  selected = {2, 3, 2, 6};
  EXPECT_EQ(vbe.ActiveCodePane()->GetSelection(), (Selection{2, 2, 2, 5}));
  EXPECT_THAT(Told({2, 2, 2, 5}), ElementsAre(2, 3, 2, 6));
}

TEST_F(ComCodePaneTest, ACaretInTheFirstColumnNeedsNoLine) {
  selected = {2, 1, 2, 1};
  vbe.ActiveCodePane()->GetSelection();
  EXPECT_EQ(module->TimesNamed("Lines"), 0);
}

TEST_F(ComCodePaneTest, PositionsThatAreNotInTheTextAreDrawnBackIntoIt) {
  EXPECT_THAT(Told({9, 1, 9, 1}), ElementsAre(2, 7, 2, 7));
  EXPECT_THAT(Told({1, 99, 1, 99}), ElementsAre(1, 4, 1, 4));
  EXPECT_THAT(Told({0, 0, 0, 0}), ElementsAre(1, 1, 1, 1));
  EXPECT_THAT(Told({1, -1, 1, 2}), ElementsAre(1, 1, 1, 2));
  lines.clear();
  EXPECT_THAT(Told({5, 5, 6, 6}), ElementsAre(1, 1, 1, 1));
}

TEST_F(ComCodePaneTest, AReversedSelectionIsTurnedRound) {
  EXPECT_THAT(Told({2, 2, 1, 3}), ElementsAre(1, 3, 2, 3));
}

TEST_F(ComCodePaneTest, APaneHasItsModuleAndItsWindow) {
  const auto window = WindowOf("Module1 (Code)");
  pane->Gives("Window", window);
  EXPECT_EQ(vbe.ActiveCodePane()->Module()->CountOfLines(), 2);
  EXPECT_EQ(vbe.ActiveCodePane()->ContainingWindow()->Caption(), "Module1 (Code)");
  EXPECT_EQ(vbe.ActiveCodePane()->Module()->Identity(), vbe.ActiveCodePane()->Module()->Identity());
}

TEST_F(ComCodePaneTest, APaneWithoutAModuleHasNoSelection) {
  pane->Gives("CodeModule", kNothing);
  EXPECT_EQ(vbe.ActiveCodePane()->Module(), nullptr);
  EXPECT_EQ(NumberOfErrorIn([&] { vbe.ActiveCodePane()->GetSelection(); }), 91);
}

TEST_F(ComCodePaneTest, EveryReferenceIsReleasedWithItsObject) {
  const ULONG heldOfPane = pane->References();
  const ULONG heldOfModule = module->References();
  {
    const auto active = vbe.ActiveCodePane();
    const auto code = active->Module();
    active->GetSelection();
    active->SetSelection({1, 1, 2, 2});
    EXPECT_GT(pane->References(), heldOfPane);
    EXPECT_GT(module->References(), heldOfModule);
  }
  EXPECT_EQ(pane->References(), heldOfPane);
  EXPECT_EQ(module->References(), heldOfModule);
}

}  // namespace com_objects_test
}  // namespace brimwork::windows

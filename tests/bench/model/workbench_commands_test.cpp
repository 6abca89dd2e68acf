// The workbench's own commands, executed through their controls.
#include "bench/model/workbench_commands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "bench/model/workbench.h"
#include "environment/run_time_error.h"
#include "support/temporary_folder.h"

namespace brimwork::bench {
namespace workbench_commands_test {

using testing::ElementsAre;

struct WorkbenchCommands : testing::Test {
  WorkbenchCommands() {
    WriteBytes(folder / "f.frm", "Attribute VB_Name = \"frmOne\"\r\na\r\n");
    WriteBytes(folder / "One.vbp", "Type=Exe\r\nForm=f.frm\r\nName=\"One\"\r\n");
    workbench.Open(folder / "One.vbp");
    form = workbench.ActiveProject()->Components()[0];
  }

  void Execute(int command) {
    const auto controls = workbench.vbe.commandBars.ControlsOf(command);
    ASSERT_FALSE(controls.empty()) << command;
    controls.back()->Execute();
  }
  std::string CaptionOf(int command) {
    return workbench.vbe.commandBars.ControlsOf(command).front()->Caption();
  }
  int StateOf(int command) {
    return workbench.vbe.commandBars.ControlsOf(command).front()->Details().state;
  }

  TemporaryFolder folder;
  Workbench workbench;
  std::shared_ptr<WorkComponent> form;
};

TEST_F(WorkbenchCommands, CommentTheActivePanesSelection) {
  workbench.vbe.FindControl(192)->Execute();
  EXPECT_FALSE(form->IsDirty()) << "no pane is active";
  workbench.PaneOf(form);
  workbench.vbe.FindControl(192)->Execute();
  EXPECT_EQ(form->Code()->Lines(1, 1), "'a");
  workbench.vbe.FindControl(2552)->Execute();
  EXPECT_EQ(form->Code()->Lines(1, 1), "a");
  workbench.vbe.FindControl(14)->Execute();
  EXPECT_EQ(form->Code()->Lines(1, 1), "    a");
  workbench.vbe.FindControl(15)->Execute();
  EXPECT_EQ(form->Code()->Lines(1, 1), "a");
}

TEST_F(WorkbenchCommands, AreTheSameOnABarThatTheyAreAddedTo) {
  const auto bar = workbench.vbe.AddCommandBar({.name = "Mine"});
  const auto control = bar->Controls()->Add({.id = 192});
  workbench.PaneOf(form);
  control->Execute();
  EXPECT_EQ(form->Code()->Lines(1, 1), "'a");
}

TEST_F(WorkbenchCommands, ShowCodeAndDesigner) {
  Execute(command::kViewCode);
  EXPECT_EQ(workbench.vbe.ActiveWindow()->Caption(), "One - frmOne (Code)");
  Execute(command::kViewObject);
  EXPECT_EQ(workbench.vbe.ActiveWindow()->Caption(), "One - frmOne (Form)");
  Execute(command::kViewCode);
  EXPECT_EQ(workbench.vbe.ActiveWindow()->Caption(), "One - frmOne (Code)");
}

TEST_F(WorkbenchCommands, ShowAndHideWindows) {
  Execute(command::kLocalsWindow);
  EXPECT_EQ(workbench.vbe.ActiveWindow(), workbench.windows.locals);
  EXPECT_TRUE(workbench.windows.locals->Visible());
  Execute(command::kHide);
  EXPECT_FALSE(workbench.windows.locals->Visible());
  EXPECT_EQ(workbench.vbe.ActiveWindow(), nullptr);
  Execute(command::kHide);
  Execute(command::kImmediateWindow);
  EXPECT_EQ(workbench.vbe.ActiveWindow(), workbench.windows.immediate);
}

TEST_F(WorkbenchCommands, ShowAndTickToolbars) {
  Execute(command::kShowDebug);
  Execute(command::kShowEdit);
  EXPECT_TRUE(workbench.bars.debug->Visible());
  EXPECT_FALSE(workbench.bars.edit->Visible());
  workbench.TickShownToolbars();
  EXPECT_EQ(StateOf(command::kShowDebug), button_state::kDown);
  EXPECT_EQ(StateOf(command::kShowEdit), button_state::kUp);
  EXPECT_EQ(StateOf(command::kShowStandard), button_state::kDown);
}

TEST_F(WorkbenchCommands, AddModulesAndOpenThem) {
  Execute(command::kAddModule);
  EXPECT_EQ(workbench.vbe.ActiveWindow()->Caption(), "One - Module1 (Code)");
  Execute(command::kAddClassModule);
  EXPECT_EQ(workbench.SelectedComponent()->Name(), "Class1");
  EXPECT_EQ(workbench.SelectedComponent()->Type(), 2);
}

TEST_F(WorkbenchCommands, Save) {
  form->Code()->InsertLines(1, "b");
  Execute(command::kAddModule);
  workbench.Select(form);
  Execute(command::kSaveFile);
  EXPECT_FALSE(form->IsDirty());
  EXPECT_TRUE(workbench.HasUnsavedChanges());
  Execute(command::kSaveProject);
  EXPECT_FALSE(workbench.HasUnsavedChanges());
  EXPECT_TRUE(std::filesystem::exists(folder / "Module1.bas"));
}

TEST_F(WorkbenchCommands, RaiseWhatKeepsAFileFromBeingSaved) {
  form->Code()->InsertLines(1, "b");
  WriteBytes(folder / "f.frm", "theirs, and longer than before");
  try {
    workbench.vbe.FindControl(3)->Execute();
    FAIL() << "no error was raised";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Number(), error_number::kPathFileAccess);
    EXPECT_THAT(error.what(), testing::HasSubstr("f.frm"));
  }
}

TEST_F(WorkbenchCommands, NameWhatTheyActOn) {
  EXPECT_EQ(CaptionOf(command::kSaveFile), "&Save frmOne");
  EXPECT_EQ(CaptionOf(command::kMakeProgram), "Ma&ke One.exe...");
  form->SetName("frmTwo");
  EXPECT_EQ(CaptionOf(command::kSaveFile), "&Save frmTwo");
  EXPECT_EQ(CaptionOf(command::kRemoveFile), "&Remove frmTwo");
}

TEST_F(WorkbenchCommands, DoNothingWithoutAProject) {
  Workbench empty;
  for (const int command : {command::kViewCode, command::kViewObject, command::kAddModule,
                            command::kSaveFile, command::kSaveProject, command::kCommentBlock}) {
    empty.vbe.commandBars.ControlsOf(command).front()->Execute();
  }
  EXPECT_TRUE(empty.vbe.Panes().empty());
}

}  // namespace workbench_commands_test
}  // namespace brimwork::bench

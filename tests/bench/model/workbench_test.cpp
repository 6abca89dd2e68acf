// The workbench as a whole: what it opens, its windows and what they are called.
#include "bench/model/workbench.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "environment/run_time_error.h"
#include "memory/source_error.h"
#include "support/shown_windows.h"
#include "support/temporary_folder.h"

namespace brimwork::bench {
namespace workbench_test {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;

fs::path Sample() { return fs::path(BRIMWORK_SOURCE_DIR) / "samples" / "WorkshopDesk.vbp"; }

struct WorkbenchTest : testing::Test {
  std::vector<std::string> Names(const WorkProject& project) {
    std::vector<std::string> names;
    for (const auto& component : project.Components()) names.push_back(component->Name());
    return names;
  }
  std::shared_ptr<WorkComponent> Component(std::string_view name) {
    for (const auto& component : workbench.ActiveProject()->Components()) {
      if (component->LastName() == name) return component;
    }
    return nullptr;
  }
  void WriteProject(const std::string& name) {
    WriteBytes(folder / (name + ".bas"), "Attribute VB_Name = \"mod" + name + "\"\r\n'" + name);
    WriteBytes(folder / (name + ".vbp"),
               "Type=Exe\r\nModule=mod" + name + "; " + name + ".bas\r\nName=\"" + name + "\"\r\n");
  }
  std::string Error(const fs::path& path) {
    try {
      workbench.Open(path);
    } catch (const SourceError& error) {
      return error.what();
    }
    return "none";
  }
  std::string MainCaption() { return workbench.vbe.MainWindow()->Caption(); }

  TemporaryFolder folder;
  Workbench workbench;
};

TEST_F(WorkbenchTest, StartsWithTheUsualWindowsAndNoProject) {
  EXPECT_EQ(workbench.ActiveProject(), nullptr);
  EXPECT_EQ(workbench.SelectedComponent(), nullptr);
  EXPECT_EQ(workbench.vbe.ActiveVBProject(), nullptr);
  EXPECT_FALSE(workbench.HasUnsavedChanges());
  EXPECT_THAT(ShownWindows(workbench.vbe), ElementsAre("Brimwork Bench [design]", "Project",
                                                       "Properties", "Toolbox", "Immediate"));
  EXPECT_EQ(workbench.bars.edit, workbench.vbe.commandBars.OfName("Edit"));
}

TEST_F(WorkbenchTest, OpensAProjectWithItsComponentsInTheOrderOfTheFile) {
  workbench.Open(Sample());
  ASSERT_EQ(workbench.Projects().size(), 1u);
  EXPECT_THAT(Names(*workbench.ActiveProject()),
              ElementsAre("frmDesk", "modStock", "modPrices", "InvoiceLine", "InvoiceLines"));
  EXPECT_EQ(workbench.vbe.ActiveVBProject()->Name(), "WorkshopDesk");
  EXPECT_EQ(workbench.SelectedComponent(), Component("frmDesk"));
  EXPECT_FALSE(workbench.HasUnsavedChanges());
}

TEST_F(WorkbenchTest, OpensAGroupWithTheProjectThatStartsFirst) {
  WriteProject("One");
  WriteProject("Two");
  WriteBytes(folder / "both.vbg", "VBGROUP 5.0\r\nProject=ONE.vbp\r\nStartupProject=Two.vbp\r\n");
  workbench.Open(folder / "both.vbg");
  ASSERT_EQ(workbench.Projects().size(), 2u);
  EXPECT_EQ(workbench.Projects()[0]->Name(), "Two");
  EXPECT_EQ(workbench.Projects()[1]->Name(), "One");
  EXPECT_EQ(workbench.ActiveProject(), workbench.Projects()[0]);
}

TEST_F(WorkbenchTest, OpensASourceFileByItself) {
  WriteProject("One");
  workbench.Open(folder / "One.bas");
  EXPECT_EQ(MainCaption(), "Project1 - Brimwork Bench [design]");
  EXPECT_THAT(Names(*workbench.ActiveProject()), ElementsAre("modOne"));
}

TEST_F(WorkbenchTest, WhatCannotBeOpenedLeavesWhatIsOpen) {
  workbench.Open(Sample());
  const auto pane = workbench.PaneOf(Component("modStock"));
  WriteBytes(folder / "both.vbg", "VBGROUP 5.0\r\nProject=None.vbp\r\n");
  WriteBytes(folder / "empty.vbg", "VBGROUP 5.0\r\n");
  WriteBytes(folder / "text.txt", "text");
  WriteBytes(folder / "no.vbp", "no project");
  EXPECT_EQ(Error(folder / "both.vbg"),
            (folder / "both.vbg").string() + ":2:1: there is no file \"None.vbp\"");
  EXPECT_THAT(Error(folder / "empty.vbg"), HasSubstr("names no project"));
  EXPECT_THAT(Error(folder / "text.txt"), HasSubstr("no source file"));
  EXPECT_THAT(Error(folder / "no.vbp"), HasSubstr("no project"));
  EXPECT_NE(Error(folder / "gone.vbp"), "none");
  EXPECT_EQ(workbench.ActiveProject()->Name(), "WorkshopDesk");
  EXPECT_EQ(workbench.vbe.ActivePane(), pane);
  EXPECT_THAT(workbench.RecentProjects(), ElementsAre(fs::absolute(Sample()).string()));
}

TEST_F(WorkbenchTest, AnotherProjectTakesThePlaceOfTheFirstAndItsWindows) {
  workbench.Open(Sample());
  workbench.PaneOf(Component("modStock"));
  workbench.DesignerOf(Component("frmDesk"));
  const auto before = workbench.ActiveProject();
  WriteProject("One");
  workbench.Open(folder / "One.vbp");
  EXPECT_THAT(ShownWindows(workbench.vbe),
              ElementsAre("One - Brimwork Bench [design]", "Project - One", "Properties - modOne",
                          "Toolbox", "Immediate"));
  EXPECT_TRUE(workbench.vbe.Panes().empty());
  before->Components().front()->SetName("frmOld");
  EXPECT_EQ(MainCaption(), "One - Brimwork Bench [design]");
}

TEST_F(WorkbenchTest, CodeWindowsAndDesignersAreOpenedOnce) {
  workbench.Open(Sample());
  const auto form = Component("frmDesk");
  const auto pane = workbench.PaneOf(form);
  EXPECT_EQ(workbench.vbe.ActivePane(), pane);
  EXPECT_EQ(workbench.vbe.ActiveWindow(), pane->ContainingWindow());
  EXPECT_EQ(pane->ContainingWindow()->Caption(), "WorkshopDesk - frmDesk (Code)");
  EXPECT_EQ(pane->ContainingWindow()->Type(), window_type::kCodeWindow);
  const auto designer = workbench.DesignerOf(form);
  EXPECT_EQ(designer->Caption(), "WorkshopDesk - frmDesk (Form)");
  EXPECT_EQ(designer->Type(), window_type::kDesigner);
  EXPECT_EQ(workbench.vbe.ActiveWindow(), designer);
  EXPECT_EQ(workbench.PaneOf(form), pane);
  EXPECT_EQ(workbench.DesignerOf(form), designer);
  EXPECT_EQ(workbench.vbe.ActiveWindow(), designer) << "one that is open is left where it is";
  EXPECT_EQ(workbench.ComponentOfDesigner(*designer), form);
  EXPECT_EQ(workbench.ComponentOf(*pane->Module()), form);
  EXPECT_EQ(workbench.ProjectOf(*form), workbench.ActiveProject());
}

TEST_F(WorkbenchTest, AClosedWindowIsForgottenAndOpenedAnew) {
  workbench.Open(Sample());
  const auto form = Component("frmDesk");
  const auto pane = workbench.PaneOf(form);
  const auto designer = workbench.DesignerOf(form);
  pane->ContainingWindow()->Close();
  designer->Close();
  EXPECT_EQ(workbench.OpenPaneOf(*form), nullptr);
  EXPECT_EQ(workbench.OpenDesignerOf(*form), nullptr);
  EXPECT_EQ(workbench.ComponentOfDesigner(*designer), nullptr);
  EXPECT_NE(workbench.PaneOf(form), pane);
  EXPECT_NE(workbench.DesignerOf(form), designer);
}

TEST_F(WorkbenchTest, WhatHasNoCodeOrNoDesignerOpensNone) {
  WriteBytes(folder / "P.vbp", "Type=Exe\r\nRelatedDoc=notes.txt\r\n");
  workbench.Open(folder / "P.vbp");
  EXPECT_EQ(workbench.PaneOf(Component("notes.txt")), nullptr);
  EXPECT_EQ(workbench.DesignerOf(Component("notes.txt")), nullptr);
  workbench.Open(Sample());
  EXPECT_EQ(workbench.DesignerOf(Component("modStock")), nullptr);
  EXPECT_EQ(workbench.vbe.ActiveWindow(), nullptr);
}

TEST_F(WorkbenchTest, TheComponentOfTheFocusedWindowIsTheSelectedOne) {
  workbench.Open(Sample());
  const auto first = workbench.PaneOf(Component("modStock"));
  workbench.PaneOf(Component("modPrices"));
  EXPECT_EQ(workbench.SelectedComponent(), Component("modPrices"));
  first->ContainingWindow()->SetFocus();
  EXPECT_EQ(workbench.SelectedComponent(), Component("modStock"));
  EXPECT_EQ(workbench.windows.properties->Caption(), "Properties - modStock");
  workbench.windows.immediate->SetFocus();
  EXPECT_EQ(workbench.SelectedComponent(), Component("modStock"));
}

TEST_F(WorkbenchTest, AComponentOfAnotherProjectMakesThatTheActiveOne) {
  WriteProject("One");
  WriteProject("Two");
  WriteBytes(folder / "both.vbg", "Project=One.vbp\r\nProject=Two.vbp\r\n");
  workbench.Open(folder / "both.vbg");
  workbench.Select(workbench.Projects()[1]->Components()[0]);
  EXPECT_EQ(workbench.ActiveProject()->Name(), "Two");
  EXPECT_EQ(workbench.windows.project->Caption(), "Project - Two");
  EXPECT_EQ(workbench.vbe.ActiveVBProject(), workbench.Projects()[1]);
}

TEST_F(WorkbenchTest, CaptionsFollowNewNames) {
  workbench.Open(Sample());
  const auto pane = workbench.PaneOf(Component("frmDesk"));
  const auto designer = workbench.DesignerOf(Component("frmDesk"));
  const auto before = workbench.Revision();
  Component("frmDesk")->SetName("frmBench");
  EXPECT_GT(workbench.Revision(), before);
  EXPECT_EQ(pane->ContainingWindow()->Caption(), "WorkshopDesk - frmBench (Code)");
  EXPECT_EQ(designer->Caption(), "WorkshopDesk - frmBench (Form)");
  EXPECT_EQ(workbench.windows.properties->Caption(), "Properties - frmBench");
  workbench.ActiveProject()->SetName("Desk");
  EXPECT_EQ(pane->ContainingWindow()->Caption(), "Desk - frmBench (Code)");
  EXPECT_EQ(workbench.windows.project->Caption(), "Project - Desk");
  EXPECT_EQ(MainCaption(), "Desk - Brimwork Bench [design]");
}

TEST_F(WorkbenchTest, TheWindowsOfARemovedComponentClose) {
  workbench.Open(Sample());
  const auto form = Component("frmDesk");
  const auto pane = workbench.PaneOf(form);
  workbench.DesignerOf(form);
  workbench.ActiveProject()->Remove(*form);
  EXPECT_TRUE(workbench.vbe.Panes().empty());
  EXPECT_EQ(workbench.vbe.Windows().size(), 7u);
  EXPECT_EQ(workbench.SelectedComponent(), nullptr);
  EXPECT_EQ(workbench.ComponentOf(*pane->Module()), nullptr);
  EXPECT_EQ(workbench.ProjectOf(*form), nullptr);
}

TEST_F(WorkbenchTest, SavingWritesEachProjectOnceChanged) {
  WriteProject("One");
  workbench.Open(folder / "One.vbp");
  Component("modOne")->Code()->InsertLines(1, "'new");
  EXPECT_TRUE(workbench.HasUnsavedChanges());
  workbench.SaveAll();
  EXPECT_FALSE(workbench.HasUnsavedChanges());
  EXPECT_EQ(ReadBytes(folder / "One.bas"), "Attribute VB_Name = \"modOne\"\r\n'new\r\n'One");
}

TEST_F(WorkbenchTest, ItsProjectsMayOutliveIt) {
  std::shared_ptr<WorkProject> project;
  std::shared_ptr<WorkComponent> component;
  {
    Workbench other;
    other.Open(Sample());
    project = other.ActiveProject();
    component = project->Components().front();
  }
  component->SetName("frmAlone");
  project->Remove(*component);
  EXPECT_EQ(project->Components().size(), 4u);
}

}  // namespace workbench_test
}  // namespace brimwork::bench

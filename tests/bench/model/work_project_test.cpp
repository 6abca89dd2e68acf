// Projects with their files: what is read, when something counts as changed, and what is written.
#include "bench/model/work_project.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "environment/run_time_error.h"
#include "memory/source_error.h"
#include "support/temporary_folder.h"

namespace brimwork::bench {
namespace work_project_test {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr const char* kForm =
    "VERSION 5.00\r\n"
    "Begin VB.Form frmDesk \r\n"
    "   Icon            =   \"frmDesk.frx\":0000\r\n"
    "   Begin VB.Label frmDesk2 \r\n"
    "   End\r\n"
    "End\r\n"
    "Attribute VB_Name = \"frmDesk\"\r\n"
    "Attribute VB_Exposed = False\r\n"
    "Option Explicit\r\n"
    "\r\n"
    "Sub Load()\n"
    "Attribute Load.VB_Description = \"x\"\r\n"
    "End Sub\r\n";

constexpr const char* kModule = "Attribute VB_Name = \"modStock\"\r\nSub A()\r\nEnd Sub\r\n";

constexpr const char* kProject =
    "Type=OleDll\r\n"
    "Form=frmDesk.frm\r\n"
    "Module=modStock; Modules\\STOCK.BAS\r\n"
    "RelatedDoc=..\\Notes\\gone.txt\r\n"
    "ResFile32=\"desk.res\"\r\n"
    "Startup=\"frmDesk\"\r\n"
    "HelpFile=\"desk.chm\"\r\n"
    "Name=\"Workshop\"\r\n"
    "Description=\"A desk\"\r\n"
    "[Tool]\r\n"
    "Form=not.frm\r\n";

struct WorkProjectTest : testing::Test {
  WorkProjectTest() {
    fs::create_directory(folder / "Modules");
    WriteBytes(folder / "frmDesk.frm", kForm);
    WriteBytes(folder / "Modules/Stock.bas", kModule);
    WriteBytes(folder / "Workshop.vbp", kProject);
    Read();
  }

  void Read() { project = WorkProject::Read(folder / "Workshop.vbp"); }
  WorkComponent& Component(std::size_t number) { return *project->Components().at(number); }
  WorkComponent& Form() { return Component(0); }
  WorkComponent& Module() { return Component(1); }
  std::string ProjectBytes() { return ReadBytes(folder / "Workshop.vbp"); }
  std::string Error(const std::function<void()>& step) {
    try {
      step();
    } catch (const SourceError& error) {
      return error.what();
    }
    return "none";
  }
  int ErrorNumber(const std::function<void()>& step) {
    try {
      step();
    } catch (const RunTimeError& error) {
      return error.Number();
    }
    return 0;
  }

  TemporaryFolder folder;
  std::shared_ptr<WorkProject> project;
};

TEST_F(WorkProjectTest, SaysWhatItsFileSays) {
  EXPECT_EQ(project->Name(), "Workshop");
  EXPECT_EQ(project->Type(), 2);
  EXPECT_EQ(project->description, "A desk");
  EXPECT_EQ(project->helpFile, "desk.chm");
  EXPECT_EQ(project->Path(), folder / "Workshop.vbp");
}

TEST_F(WorkProjectTest, FindsFilesInAnyLetterCase) {
  EXPECT_EQ(Module().Name(), "modStock");
  EXPECT_TRUE(fs::equivalent(Module().Path(), folder / "Modules/Stock.bas"));
}

TEST_F(WorkProjectTest, ListsFilesWithoutCodeThatNeedNotBeThere) {
  ASSERT_EQ(project->Components().size(), 4u);
  EXPECT_EQ(Component(2).Name(), "gone.txt");
  EXPECT_EQ(Component(2).Type(), 10);
  EXPECT_EQ(Component(3).Name(), "desk.res");
  EXPECT_EQ(Component(3).Type(), 4);
  EXPECT_EQ(Component(3).Module(), nullptr);
  EXPECT_FALSE(Component(3).HasDesigner());
  EXPECT_FALSE(Component(3).IsDirty());
}

TEST_F(WorkProjectTest, KindsFollowTheLinesAndTheFiles) {
  WriteBytes(folder / "m.frm",
             "VERSION 5.00\nBegin VB.MDIForm m\nEnd\nAttribute VB_Name = \"m\"\n");
  WriteBytes(folder / "u.ctl", "Attribute VB_Name = \"u\"\n");
  WriteBytes(folder / "p.pag", "Attribute VB_Name = \"p\"\n");
  WriteBytes(folder / "d.dob", "Attribute VB_Name = \"d\"\n");
  WriteBytes(folder / "r.dsr", "Attribute VB_Name = \"r\"\n");
  WriteBytes(folder / "c.cls", "Attribute VB_Name = \"c\"\n");
  WriteBytes(folder / "kinds.vbp",
             "Form=m.frm\nUserControl=u.ctl\nPropertyPage=p.pag\nUserDocument=d.dob\nDesigner=r.dsr"
             "\nClass=c; c.cls\n");
  const auto kinds = WorkProject::Read(folder / "kinds.vbp");
  EXPECT_EQ(kinds->Name(), "kinds");
  EXPECT_EQ(kinds->Type(), 0);
  std::vector<int> types;
  std::vector<bool> designers;
  for (const auto& component : kinds->Components()) {
    types.push_back(component->Type());
    designers.push_back(component->HasDesigner());
  }
  EXPECT_THAT(types, ElementsAre(6, 8, 7, 9, 11, 2));
  EXPECT_THAT(designers, ElementsAre(true, true, true, true, true, false));
}

TEST_F(WorkProjectTest, AMissingFileIsAnErrorThatNamesItsLine) {
  WriteBytes(folder / "Workshop.vbp", "Type=Exe\r\nForm=frmDesk.frm\r\nModule=x; Sub\\x.bas\r\n");
  EXPECT_EQ(Error([&] { Read(); }),
            (folder / "Workshop.vbp").string() + ":3:1: there is no file \"Sub\\x.bas\"");
}

TEST_F(WorkProjectTest, TwoComponentsOfOneNameAreAnError) {
  WriteBytes(folder / "Workshop.vbp",
             "Type=Exe\r\nModule=a; Modules\\stock.bas\r\nModule=b; Modules\\stock.bas\r\n");
  EXPECT_THAT(Error([&] { Read(); }), HasSubstr(":3:1: another component has the name"));
}

TEST_F(WorkProjectTest, NothingIsChangedAtFirstAndNothingIsWritten) {
  EXPECT_FALSE(project->IsDirty());
  const auto before = fs::last_write_time(folder / "Workshop.vbp");
  project->Save();
  EXPECT_EQ(fs::last_write_time(folder / "Workshop.vbp"), before);
}

TEST_F(WorkProjectTest, AnEditAndItsOppositeLeaveAComponentUnchanged) {
  Form().Code()->ReplaceLine(1, "Option Base 1");
  EXPECT_TRUE(Form().IsDirty());
  EXPECT_FALSE(Module().IsDirty());
  EXPECT_TRUE(project->IsDirty());
  Form().Code()->ReplaceLine(1, "Option Explicit");
  EXPECT_FALSE(Form().IsDirty());
  EXPECT_FALSE(project->IsDirty());
}

TEST_F(WorkProjectTest, SavingKeepsEveryByteThatIsNotShown) {
  Form().Code()->InsertLines(4, "  x = 1");
  project->Save();
  std::string expected = kForm;
  expected.insert(expected.find("End Sub"), "  x = 1\r\n");
  EXPECT_EQ(ReadBytes(folder / "frmDesk.frm"), expected);
  EXPECT_EQ(ReadBytes(folder / "Modules/Stock.bas"), kModule);
  EXPECT_EQ(ProjectBytes(), kProject);
  EXPECT_FALSE(project->IsDirty());
}

TEST_F(WorkProjectTest, AComponentIsSavedAgainAndAgain) {
  for (const char* line : {"a", "bb", "ccc"}) {
    Module().Code()->ReplaceLine(1, line);
    project->Save();
    EXPECT_EQ(ReadBytes(folder / "Modules/Stock.bas"),
              std::string("Attribute VB_Name = \"modStock\"\r\n") + line + "\r\nEnd Sub\r\n");
  }
}

TEST_F(WorkProjectTest, AFileThatSomeoneElseChangedIsLeftAsItIs) {
  Form().Code()->ReplaceLine(1, "Option Base 1");
  WriteBytes(folder / "frmDesk.frm", "Attribute VB_Name = \"frmDesk\"\r\n'theirs\r\n");
  EXPECT_THAT(Error([&] { project->Save(); }), HasSubstr("changed by someone else"));
  EXPECT_EQ(ReadBytes(folder / "frmDesk.frm"), "Attribute VB_Name = \"frmDesk\"\r\n'theirs\r\n");
  EXPECT_TRUE(Form().IsDirty());
}

TEST_F(WorkProjectTest, TextThatTheEncodingHasNotIsNotSaved) {
  Module().Code()->ReplaceLine(1, "' \xD0\x96");
  EXPECT_TRUE(Module().IsDirty());
  EXPECT_THAT(Error([&] { project->Save(); }), HasSubstr("Stock.bas:2:3"));
  EXPECT_EQ(ReadBytes(folder / "Modules/Stock.bas"), kModule);
}

TEST_F(WorkProjectTest, ANewNameGoesIntoTheFileAndTheProject) {
  Module().SetName("modParts");
  EXPECT_TRUE(Module().IsDirty());
  project->Save();
  EXPECT_EQ(ReadBytes(folder / "Modules/Stock.bas"),
            "Attribute VB_Name = \"modParts\"\r\nSub A()\r\nEnd Sub\r\n");
  EXPECT_THAT(ProjectBytes(), HasSubstr("\r\nModule=modParts; Modules\\STOCK.BAS\r\n"));
  EXPECT_FALSE(project->IsDirty());
}

TEST_F(WorkProjectTest, AFormsNewNameGoesIntoItsLayoutAndWhatTheProjectStartsWith) {
  Form().SetName("frmBench");
  Form().Code()->InsertLines(1, "'first");
  project->Save();
  std::string expected = kForm;
  expected.replace(expected.find("frmDesk \r"), 7, "frmBench");
  expected.replace(expected.find("frmDesk\"\r\nAttribute VB_E"), 7, "frmBench");
  expected.insert(expected.find("Option Explicit"), "'first\r\n");
  EXPECT_EQ(ReadBytes(folder / "frmDesk.frm"), expected);
  EXPECT_THAT(ProjectBytes(), HasSubstr("\r\nForm=frmDesk.frm\r\n"));
  EXPECT_THAT(ProjectBytes(), HasSubstr("\r\nStartup=\"frmBench\"\r\n"));
  EXPECT_FALSE(project->IsDirty());
}

TEST_F(WorkProjectTest, AnotherNameAndTheOldOneAgainChangeNothing) {
  Form().SetName("frmBench");
  Form().SetName("frmDesk");
  EXPECT_FALSE(project->IsDirty());
}

TEST_F(WorkProjectTest, AnotherComponentsNameIsRefused) {
  EXPECT_EQ(ErrorNumber([&] { Form().SetName("MODSTOCK"); }), 32813);
  EXPECT_EQ(ErrorNumber([&] { Form().SetName("a\"b"); }), 5);
  EXPECT_EQ(Form().Name(), "frmDesk");
  EXPECT_FALSE(project->IsDirty());
}

TEST_F(WorkProjectTest, AddedModulesAreNewFilesAndLinesOfTheProject) {
  project->requiresDeclarations = true;
  const auto module = project->AddVBComponent(component_type::kStandardModule);
  const auto classModule = project->AddVBComponent(component_type::kClassModule);
  EXPECT_EQ(module->Name(), "Module1");
  EXPECT_EQ(classModule->Name(), "Class1");
  EXPECT_EQ(module->Module()->CountOfLines(), 1);
  EXPECT_TRUE(Component(4).IsDirty());
  EXPECT_EQ(Component(4).Path(), "");
  classModule->SetName("Basket");
  project->Save();
  EXPECT_EQ(ReadBytes(folder / "Module1.bas"),
            "Attribute VB_Name = \"Module1\"\r\nOption Explicit\r\n");
  EXPECT_THAT(ReadBytes(folder / "Basket.cls"), HasSubstr("Attribute VB_Name = \"Basket\"\r\n"));
  EXPECT_THAT(ReadBytes(folder / "Basket.cls"), HasSubstr("VERSION 1.0 CLASS\r\nBEGIN\r\n"));
  EXPECT_THAT(ProjectBytes(), HasSubstr("STOCK.BAS\r\nModule=Module1; Module1.bas\r\n"));
  EXPECT_THAT(ProjectBytes(), HasSubstr("\r\nClass=Basket; Basket.cls\r\n"));
  EXPECT_FALSE(project->IsDirty());
  Read();
  EXPECT_EQ(project->Components().size(), 6u);
}

TEST_F(WorkProjectTest, ANewModulesFileTakesNobodysPlace) {
  WriteBytes(folder / "Module1.bas", "'theirs");
  project->AddVBComponent(1);
  EXPECT_THAT(Error([&] { project->Save(); }), HasSubstr("Module1.bas"));
  EXPECT_EQ(ReadBytes(folder / "Module1.bas"), "'theirs");
  EXPECT_EQ(ProjectBytes(), kProject);
  EXPECT_TRUE(project->IsDirty());
}

TEST_F(WorkProjectTest, OnlyModulesAndClassesAreAdded) {
  for (const int type : {0, 3, 4, 5, 8, 11}) {
    EXPECT_EQ(ErrorNumber([&] { project->AddVBComponent(type); }), error_number::kUnspecified);
  }
}

TEST_F(WorkProjectTest, ARemovedComponentsLineGoesAndItsFileStays) {
  const auto form = project->Components().at(0);
  project->Remove(*form);
  EXPECT_EQ(form->Project(), nullptr);
  EXPECT_TRUE(project->IsDirty());
  project->Save();
  EXPECT_EQ(ReadBytes(folder / "frmDesk.frm"), kForm);
  std::string expected = kProject;
  expected.erase(expected.find("Form=frmDesk.frm\r\n"), 18);
  EXPECT_EQ(ProjectBytes(), expected);
  EXPECT_EQ(ErrorNumber([&] { project->Remove(*form); }), 5);
}

TEST_F(WorkProjectTest, ARemovedComponentOutlivesItsProject) {
  const auto form = project->Components().at(0);
  const auto module = project->Components().at(1);
  project->Remove(*form);
  project.reset();
  form->SetName("modStock");
  module->SetName("frmDesk");
  EXPECT_EQ(module->Project(), nullptr);
  EXPECT_EQ(module->Name(), "frmDesk");
}

TEST_F(WorkProjectTest, AComponentIsSavedElsewhereWithItsPictures) {
  fs::create_directory(folder / "Other");
  WriteBytes(folder / "frmDesk.frx", "picture");
  Form().SaveAs(folder / "Other/Desk.frm");
  EXPECT_EQ(ReadBytes(folder / "Other/Desk.frm"), kForm);
  EXPECT_EQ(ReadBytes(folder / "Other/frmDesk.frx"), "picture");
  EXPECT_FALSE(Form().IsDirty());
  EXPECT_TRUE(project->IsDirty());
  project->Save();
  EXPECT_THAT(ProjectBytes(), HasSubstr("\r\nForm=Other\\Desk.frm\r\n"));
  Read();
  EXPECT_EQ(Form().Path(), folder / "Other/Desk.frm");
}

TEST_F(WorkProjectTest, SavingAsReplacesWhatIsThere) {
  WriteBytes(folder / "old.bas", "'old");
  Module().SaveAs(folder / "old.bas");
  EXPECT_EQ(ReadBytes(folder / "old.bas"), kModule);
  EXPECT_EQ(ErrorNumber([&] { Component(3).SaveAs(folder / "x"); }), 438);
}

TEST_F(WorkProjectTest, ItsOwnValuesAreSaved) {
  project->SetName("Desk");
  project->description = "Another";
  project->helpFile = "d.chm";
  EXPECT_TRUE(project->IsDirty());
  project->Save();
  EXPECT_THAT(ProjectBytes(), HasSubstr("\r\nHelpFile=\"d.chm\"\r\nName=\"Desk\"\r\n"
                                        "Description=\"Another\"\r\n[Tool]\r\n"));
  EXPECT_FALSE(project->IsDirty());
  EXPECT_EQ(ErrorNumber([&] { project->SetName("no name"); }), 5);
}

TEST_F(WorkProjectTest, AProjectFileThatSomeoneElseChangedIsLeftAsItIs) {
  project->SetName("Desk");
  WriteBytes(folder / "Workshop.vbp", "Type=Exe\r\n");
  EXPECT_THAT(Error([&] { project->Save(); }), HasSubstr("changed by someone else"));
  EXPECT_EQ(ProjectBytes(), "Type=Exe\r\n");
}

TEST_F(WorkProjectTest, AFileCanBeAdded) {
  WriteBytes(folder / "c.cls", "Attribute VB_Name = \"Clock\"\r\n");
  const auto added = project->AddFile(folder / "c.cls");
  EXPECT_EQ(added->Type(), 2);
  project->Save();
  EXPECT_THAT(ProjectBytes(), HasSubstr("Class=Clock; c.cls\r\n"));
  EXPECT_EQ(ErrorNumber([&] { project->AddFile(folder / "c.cls"); }), 32813);
  EXPECT_THAT(Error([&] { project->AddFile(folder / "Workshop.vbp"); }), HasSubstr("no source"));
}

TEST_F(WorkProjectTest, ASingleFileIsAProjectWithoutAFile) {
  project = WorkProject::OfFile(folder / "frmDesk.frm");
  EXPECT_EQ(project->Name(), "Project1");
  EXPECT_EQ(project->Path(), "");
  EXPECT_EQ(Component(0).Type(), 5);
  EXPECT_FALSE(project->IsDirty());
  project->AddVBComponent(1);
  Form().Code()->InsertLines(1, "'x");
  project->Save();
  EXPECT_TRUE(fs::exists(folder / "Module1.bas"));
  EXPECT_THAT(ReadBytes(folder / "frmDesk.frm"), HasSubstr("False\r\n'x\r\nOption"));
  EXPECT_EQ(ProjectBytes(), kProject);
  EXPECT_FALSE(project->IsDirty());
}

TEST_F(WorkProjectTest, AModuleWithoutANameAttributeGetsOneWithItsFirstNewName) {
  WriteBytes(folder / "bare.bas", "Sub A()\nEnd Sub");
  project = WorkProject::OfFile(folder / "bare.bas");
  EXPECT_EQ(Component(0).Name(), "bare");
  Component(0).SetName("modBare");
  project->Save();
  EXPECT_EQ(ReadBytes(folder / "bare.bas"), "Attribute VB_Name = \"modBare\"\nSub A()\nEnd Sub");
}

}  // namespace work_project_test
}  // namespace brimwork::bench

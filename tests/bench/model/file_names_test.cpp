// Files whose names are not ASCII, on the disk and in a project that lists them in its code page.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "bench/model/workbench.h"
#include "memory/source_error.h"
#include "memory/utf8_path.h"
#include "support/temporary_folder.h"

namespace brimwork::bench {
namespace file_names_test {

namespace fs = std::filesystem;
using testing::HasSubstr;

constexpr const char* kProject = "Заказ/Größe €.vbp";
constexpr const char* kModule = "Заказ/Straße/Grüße.bas";

struct FileNames : testing::Test {
  FileNames() {
    fs::create_directories(folder / "Заказ/Straße");
    WriteBytes(folder / kModule, "Sub A()\r\nEnd Sub\r\n");
    WriteBytes(folder / kProject,
               "Type=Exe\r\nModule=Gr\xFC\xDF"
               "e; STRA\xDF"
               "E\\gr\xFC\xDF"
               "e.BAS\r\n");
  }

  TemporaryFolder folder;
  Workbench workbench;
};

TEST_F(FileNames, OfAProjectAreFoundAndSavedTo) {
  workbench.Open(folder / kProject);
  EXPECT_EQ(workbench.ActiveProject()->Name(), "Größe €");
  const auto component = workbench.ActiveProject()->Components().at(0);
  EXPECT_TRUE(fs::equivalent(component->Path(), folder / kModule));
  EXPECT_EQ(component->Name(), "Grüße");
  component->Module()->ReplaceLine(1, "Sub B()");
  workbench.SaveAll();
  EXPECT_THAT(ReadBytes(folder / kModule), HasSubstr("Sub B()\r\n"));
}

TEST_F(FileNames, OfASingleFileAreOpened) {
  workbench.Open(folder / kModule);
  EXPECT_EQ(workbench.ActiveProject()->Components().at(0)->Name(), "Grüße");
}

TEST_F(FileNames, OfAGroupsProjectsAreFound) {
  WriteBytes(folder / "Группа.vbg",
             "VBGROUP 5.0\r\nStartupProject=a\\Gr\xF6\xDF"
             "e.vbp\r\n");
  fs::create_directory(folder / "a");
  WriteBytes(folder / "a/Größe.vbp", "Type=Exe\r\n");
  workbench.Open(folder / "Группа.vbg");
  EXPECT_EQ(workbench.ActiveProject()->Name(), "Größe");
}

TEST_F(FileNames, AreGivenInErrorsAndInTheListOfRecentProjects) {
  workbench.Open(folder / kProject);
  EXPECT_THAT(workbench.RecentProjects().at(0), HasSubstr("Größe €.vbp"));
  try {
    workbench.Open(folder / "Нет.vbp");
    FAIL() << "no error";
  } catch (const SourceError& error) {
    EXPECT_THAT(error.what(), HasSubstr("Нет.vbp: "));
  }
}

TEST_F(FileNames, OfRecentProjectsOpenThemAgain) {
  workbench.Open(folder / kProject);
  const std::string recent = workbench.RecentProjects().at(0);
  workbench.Open(folder / kModule);
  workbench.Open(PathOf(recent));
  EXPECT_EQ(workbench.ActiveProject()->Name(), "Größe €");
}

}  // namespace file_names_test
}  // namespace brimwork::bench

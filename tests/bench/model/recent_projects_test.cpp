// The recent projects and their entries in the File menu.
#include "bench/model/recent_projects.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "bench/model/workbench.h"
#include "environment/run_time_error.h"
#include "support/temporary_folder.h"

namespace brimwork::bench {
namespace recent_projects_test {

using testing::ElementsAre;

struct RecentProjectsTest : testing::Test {
  /// The captions of File's controls from 15 on.
  std::vector<std::string> Entries() {
    std::vector<std::string> captions;
    const auto controls = workbench.bars.file->Controls();
    for (int i = 15; i <= controls->Count(); ++i) captions.push_back(controls->Item(i)->Caption());
    return captions;
  }
  std::shared_ptr<CommandBarControl> First() { return workbench.bars.file->Controls()->Item(15); }

  TemporaryFolder folder;
  Workbench workbench;
};

TEST_F(RecentProjectsTest, APlaceholderKeepsThePlaceOfTheFirst) {
  EXPECT_THAT(Entries(), ElementsAre("(No recent projects)", "E&xit"));
  EXPECT_THROW(First()->Execute(), RunTimeError);
  EXPECT_TRUE(First()->BeginGroup());
}

TEST_F(RecentProjectsTest, StandInTheMenuInTheirOrder) {
  workbench.SetRecentProjects({"C:\\a.vbp", "C:\\R&D.vbp"});
  EXPECT_THAT(Entries(), ElementsAre("&1 C:\\a.vbp", "&2 C:\\R&&D.vbp", "E&xit"));
  EXPECT_TRUE(First()->BeginGroup());
  EXPECT_EQ(First()->Id(), 746);
  workbench.SetRecentProjects({});
  EXPECT_THAT(Entries(), ElementsAre("(No recent projects)", "E&xit"));
}

TEST_F(RecentProjectsTest, AreFourAtMostAndNoneTwice) {
  workbench.SetRecentProjects({"a.vbp", "A.VBP", "", "b.vbp", "c.vbp", "d.vbp", "e.vbp"});
  EXPECT_THAT(workbench.RecentProjects(), ElementsAre("a.vbp", "b.vbp", "c.vbp", "d.vbp"));
}

TEST_F(RecentProjectsTest, WhatIsOpenedComesFirst) {
  const std::string a = (folder / "a.bas").string();
  const std::string b = (folder / "b.bas").string();
  WriteBytes(a, "");
  WriteBytes(b, "");
  for (const std::string& path : {a, b, a}) workbench.Open(path);
  EXPECT_THAT(workbench.RecentProjects(), ElementsAre(a, b));
  EXPECT_THAT(Entries(), ElementsAre("&1 " + a, "&2 " + b, "E&xit"));
}

TEST_F(RecentProjectsTest, AnEntryOpensItsProject) {
  WriteBytes(folder / "a.bas", "");
  workbench.SetRecentProjects({"gone.vbp", (folder / "a.bas").string()});
  workbench.bars.file->Controls()->Item(16)->Execute();
  EXPECT_EQ(workbench.ActiveProject()->Components()[0]->Name(), "a");
  EXPECT_THAT(workbench.RecentProjects(), ElementsAre((folder / "a.bas").string(), "gone.vbp"));
}

TEST_F(RecentProjectsTest, OneThatIsGoneRaisesAnError) {
  workbench.SetRecentProjects({"gone.vbp"});
  try {
    First()->Execute();
    FAIL() << "no error was raised";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Number(), error_number::kPathFileAccess);
  }
}

TEST_F(RecentProjectsTest, TheProgramMayOpenThemItsOwnWay) {
  std::string opened;
  workbench.openRecent = [&](const std::filesystem::path& path) { opened = path.string(); };
  workbench.SetRecentProjects({"gone.vbp"});
  First()->Execute();
  EXPECT_EQ(opened, "gone.vbp");
}

TEST_F(RecentProjectsTest, KeepTheirPlaceBehindWhatOthersAdd) {
  workbench.bars.file->Controls()->Add({.before = 1})->SetCaption("Mine");
  workbench.SetRecentProjects({"a.vbp"});
  EXPECT_EQ(workbench.bars.file->Controls()->Item(16)->Caption(), "&1 a.vbp");
}

}  // namespace recent_projects_test
}  // namespace brimwork::bench

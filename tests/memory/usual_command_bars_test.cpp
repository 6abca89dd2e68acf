#include "memory/usual_command_bars.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "memory/memory_environment.h"
#include "support/shown_windows.h"

namespace brimwork {
namespace usual_command_bars_test {

using testing::ElementsAre;

struct UsualCommandBarsTest : testing::Test {
  std::string CaptionOf(const std::shared_ptr<MemoryCommandBar>& bar, int index) {
    return bar->Controls()->Item(index)->Caption();
  }

  MemoryEnvironment memory;
  UsualCommandBars bars = AddUsualCommandBars(memory.vbe);
};

TEST_F(UsualCommandBarsTest, MenusAreHiddenUntilTheyAreOpened) {
  EXPECT_THAT(ShownBars(memory.vbe), ElementsAre("Menu Bar", "Standard", "Edit"));
}

TEST_F(UsualCommandBarsTest, TheMenuBarOpensTheMenus) {
  const auto menuBar = memory.vbe.CommandBarOfName("Menu Bar");
  EXPECT_EQ(menuBar->Controls()->Item("File")->Controls(), bars.file->Controls());
  EXPECT_EQ(menuBar->Controls()->Item("Add-Ins")->Controls(), bars.addIns->Controls());
}

TEST_F(UsualCommandBarsTest, TheFileMenusFifteenthEntryIsTheFirstRecentProject) {
  EXPECT_EQ(CaptionOf(bars.file, 14), "Make Project &Group...");
  EXPECT_EQ(CaptionOf(bars.file, 15), "&1 C:\\Source\\Parts.vbp");
  EXPECT_EQ(CaptionOf(bars.file, bars.file->Controls()->Count()), "E&xit");
}

TEST_F(UsualCommandBarsTest, TheEditToolbarCommentsBlocks) {
  EXPECT_EQ(bars.edit->Controls()->Item("Comment Block")->Id(), 192);
  EXPECT_EQ(bars.edit->Controls()->Item("Uncomment Block")->Id(), 2552);
}

TEST_F(UsualCommandBarsTest, TheCodeWindowsPopupHasItsToggleMenuAmongOthers) {
  const auto toggle = bars.codeWindow->Controls()->Item("Toggle");
  EXPECT_EQ(toggle->Type(), control_type::kPopup);
  EXPECT_EQ(toggle->Index(), 9);
  EXPECT_GT(bars.codeWindow->Controls()->Count(), 9);
}

TEST_F(UsualCommandBarsTest, TheMenuBarHasTheUsualMenus) {
  std::vector<std::string> captions;
  for (const auto& menu : bars.menuBar->Entries()->All()) captions.push_back(menu->LastCaption());
  EXPECT_THAT(captions, ElementsAre("&File", "&Edit", "&View", "&Project", "F&ormat", "&Debug",
                                    "&Run", "&Add-Ins", "&Window", "&Help"));
  EXPECT_EQ(bars.menuBar->Controls()->Item("Window")->Id(), 30009);
  EXPECT_EQ(bars.menuBar->Kind(), bar_type::kMenuBar);
}

TEST_F(UsualCommandBarsTest, TheBarsNamedEditAndDebugAreTheToolbars) {
  EXPECT_EQ(memory.vbe.CommandBarOfName("Edit"), bars.edit);
  EXPECT_EQ(memory.vbe.CommandBarOfName("Debug"), bars.debug);
  EXPECT_EQ(memory.vbe.CommandBarOfName("Run"), bars.run);
  EXPECT_EQ(bars.editMenu->Controls()->Item("Undo")->Id(), 128);
  EXPECT_EQ(bars.debugMenu->Controls()->Item("Toggle Breakpoint")->Id(), 51);
}

TEST_F(UsualCommandBarsTest, NoProgramCanBeStoppedWhileNoneRuns) {
  EXPECT_FALSE(memory.vbe.commandBars.Find({.id = 189})->Details().enabled);
  EXPECT_FALSE(memory.vbe.commandBars.Find({.id = 228})->Details().enabled);
  EXPECT_TRUE(memory.vbe.commandBars.Find({.id = 186})->Details().enabled);
}

TEST_F(UsualCommandBarsTest, ManyCommandsShareAnIdAndAreToldApartAllTheSame) {
  const auto& commands = memory.vbe.commandBars;
  const auto added = commands.ControlsOf(command::kAddModule);
  ASSERT_EQ(added.size(), 2u);
  EXPECT_EQ(added[0]->Id(), 746);
  EXPECT_EQ(added[0]->Details().faceId, 0);
  EXPECT_EQ(commands.ControlsOf(command::kExit).size(), 1u);
}

TEST_F(UsualCommandBarsTest, ThePopupsOfBothStatesOfTheCodeWindowToggle) {
  EXPECT_EQ(memory.vbe.CommandBarOfName("Code Window (Break)"), bars.codeWindowBreak);
  EXPECT_EQ(bars.codeWindowBreak->Controls()->Item("Toggle")->Type(), control_type::kPopup);
  EXPECT_EQ(CaptionOf(bars.codeWindowBreak, 1), "&Run to Cursor");
  EXPECT_EQ(memory.vbe.CommandBarOfName("Project Window"), bars.projectWindow);
}

}  // namespace usual_command_bars_test
}  // namespace brimwork

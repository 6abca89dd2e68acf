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

}  // namespace usual_command_bars_test
}  // namespace brimwork

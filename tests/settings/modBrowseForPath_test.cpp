#include "settings/modBrowseForPath.h"

#include <gtest/gtest.h>

#include "environment/run_time_error.h"
#include "support/desktop_fixture.h"

namespace brimwork {
namespace modBrowseForPath_test {

TEST(BrowseForFolder, GivesTheFolderThatTheUserPicked) {
  DesktopFixture desktop;
  desktop.dialogs.PickFolder("C:\\Exports");
  EXPECT_EQ(BrowseForFolder(desktop.environment, "Where to?", 0), "C:\\Exports");
}

TEST(BrowseForFolder, CancellingTheFolderBrowserReturnsAnEmptyText) {
  DesktopFixture desktop;
  EXPECT_EQ(BrowseForFolder(desktop.environment, "Where to?", 0), "");
}

TEST(BrowseForFolder, ADriveRootPickedInTheBrowserKeepsItsTrailingBackslash) {
  DesktopFixture desktop;
  desktop.dialogs.PickFolder("C:\\");
  EXPECT_EQ(BrowseForFolder(desktop.environment, "Where to?", 0), "C:\\");
}

TEST(BrowseForFolder, ShowsFileSystemFoldersOverTheOwnerUnderTheTitle) {
  DesktopFixture desktop;
  BrowseForFolder(desktop.environment, "Where to?", 42);
  ASSERT_EQ(desktop.dialogs.BrowseRequests().size(), 1u);
  const BrowseFolderRequest& request = desktop.dialogs.BrowseRequests().front();
  EXPECT_EQ(request.owner, 42u);
  EXPECT_EQ(request.title, "Where to?");
  EXPECT_EQ(request.flags, 3u);
}

class FailingDialogs : public MemoryDialogs {
 public:
  std::string BrowseForFolder(const BrowseFolderRequest&) override {
    throw RunTimeError(error_number::kInvalidProcedureCall, "no browser");
  }
};

TEST(BrowseForFolder, ABrowserThatFailsReturnsAnEmptyText) {
  DesktopFixture desktop;
  FailingDialogs dialogs;
  Environment environment = desktop.With(desktop.screen, dialogs);
  EXPECT_EQ(BrowseForFolder(environment, "Where to?", 0), "");
}

}  // namespace modBrowseForPath_test
}  // namespace brimwork

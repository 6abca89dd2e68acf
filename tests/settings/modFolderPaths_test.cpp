#include "settings/modFolderPaths.h"

#include <gtest/gtest.h>

#include "support/desktop_fixture.h"

namespace brimwork {
namespace modFolderPaths_test {

TEST(GetSpecialFolderPath, GivesTheDesktopFolderAsTheShellHasIt) {
  DesktopFixture desktop;
  desktop.shellFolders.SetPath(kDesktopFolderId, "C:\\Users\\Ann\\Desktop");
  EXPECT_EQ(GetSpecialFolderPath(desktop.environment, kDesktopFolderId), "C:\\Users\\Ann\\Desktop");
}

TEST(GetSpecialFolderPath, NeitherAddsNorRemovesATrailingSeparator) {
  DesktopFixture desktop;
  desktop.shellFolders.SetPath(kDesktopFolderId, "D:\\");
  EXPECT_EQ(GetSpecialFolderPath(desktop.environment, kDesktopFolderId), "D:\\");
}

TEST(GetSpecialFolderPath, AFolderThatTheShellDoesNotKnowGivesAnEmptyText) {
  DesktopFixture desktop;
  EXPECT_EQ(GetSpecialFolderPath(desktop.environment, 99), "");
}

}  // namespace modFolderPaths_test
}  // namespace brimwork

#include "settings/settings.h"

#include <gtest/gtest.h>

#include "settings/setting_keys.h"
#include "support/desktop_fixture.h"

namespace brimwork {
namespace settings_settings_test {

TEST(Settings, AKeyThatIsNotStoredGivesTheReadersDefault) {
  DesktopFixture desktop;
  EXPECT_EQ(GetSetting(desktop.environment, setting::kHeader, "one"), "one");
  EXPECT_EQ(GetSetting(desktop.environment, setting::kHeader, "two"), "two");
}

TEST(Settings, AValueSavedIsSeenByTheNextRead) {
  DesktopFixture desktop;
  SaveSetting(desktop.environment, setting::kSeparator, "'---");
  EXPECT_EQ(GetSetting(desktop.environment, setting::kSeparator, "default"), "'---");
  SaveSetting(desktop.environment, setting::kSeparator, "'***");
  EXPECT_EQ(GetSetting(desktop.environment, setting::kSeparator, "default"), "'***");
}

TEST(Settings, AStoredEmptyTextIsAValue) {
  DesktopFixture desktop;
  SaveSetting(desktop.environment, setting::kHeader, "");
  EXPECT_EQ(GetSetting(desktop.environment, setting::kHeader, "default"), "");
}

TEST(Settings, ALoneLineFeedIsStoredAsCarriageReturnAndLineFeed) {
  DesktopFixture desktop;
  SaveSetting(desktop.environment, setting::kErrorHandling, "a\nb\r\nc\n");
  EXPECT_EQ(GetSetting(desktop.environment, setting::kErrorHandling, ""), "a\r\nb\r\nc\r\n");
}

TEST(Settings, AreKeptUnderTheTitleOfTheAddInInTheSectionSettings) {
  DesktopFixture desktop;
  SaveSetting(desktop.environment, "AutoLoad", "True");
  EXPECT_EQ(desktop.settingsArea.GetSetting("Brimwork", "Settings", "AutoLoad", ""), "True");
}

TEST(Settings, SettingTheSeparatorLeavesTheLineOfTheSpellCheckAsItIs) {
  DesktopFixture desktop;
  SaveSetting(desktop.environment, setting::kSeparator, "'---");
  EXPECT_EQ(GetCommandSetting(desktop.environment, setting::kSeparator), "'---");
  EXPECT_EQ(GetCommandSetting(desktop.environment, setting::kSeperator), kSeparatorLine);
}

}  // namespace settings_settings_test
}  // namespace brimwork

#include "settings/setting_keys.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <stdexcept>
#include <vector>

#include "environment/text.h"
#include "settings/settings.h"
#include "support/desktop_fixture.h"

namespace brimwork {
namespace setting_keys_test {

std::string SetupText(DesktopFixture& desktop, std::string_view key) {
  const SettingKey* entry = FindSettingKey(key);
  if (entry == nullptr || !entry->setupDefault) return "<no setup default>";
  return DefaultText(desktop.environment, *entry->setupDefault);
}

TEST(SettingKeys, TheTableHoldsEveryKeyOnce) {
  std::multiset<std::string_view> keys;
  for (const SettingKey& entry : SettingKeys()) keys.insert(entry.key);
  EXPECT_EQ(keys,
            (std::multiset<std::string_view>{
                "Header", "AdaptedHeader", "ErrorHandling", "KeyWordList", "Separator", "Seperator",
                "QuickExportPath", "AutoLoad", "SplashScreen", "FirstRun", "CleanUpCodeOptions",
                "ToolbarPosition", "ToolbarIndex", "ToolbarLeft", "ToolbarTop", "ToolbarVisible",
                "AreWindowsToggled", "ToggledWindows", "ToggledMenus"}));
}

TEST(SettingKeys, EveryKeySaysInOneLineWhatAValueLooksLike) {
  for (const SettingKey& entry : SettingKeys()) {
    EXPECT_FALSE(entry.format.empty()) << entry.key;
    EXPECT_FALSE(Contains(entry.format, "\n")) << entry.key;
  }
}

TEST(SettingKeys, AKeyIsFoundInAnyLetterCase) {
  ASSERT_NE(FindSettingKey("autoLOAD"), nullptr);
  EXPECT_EQ(FindSettingKey("autoLOAD")->key, "AutoLoad");
}

TEST(SettingKeys, AnUnknownKeyIsNotFound) {
  EXPECT_EQ(FindSettingKey("Colour"), nullptr);
  EXPECT_EQ(FindSettingKey(""), nullptr);
  DesktopFixture desktop;
  EXPECT_THROW(GetCommandSetting(desktop.environment, "Colour"), std::out_of_range);
}

TEST(SettingKeys, WithAnEmptyStoreTheSetupDialogsDefaultsAreItsOwn) {
  DesktopFixture desktop;
  desktop.shellFolders.SetPath(0, "/home/user/Desktop");
  EXPECT_EQ(SetupText(desktop, setting::kHeader), "");
  EXPECT_EQ(SetupText(desktop, setting::kAdaptedHeader), "");
  EXPECT_EQ(SetupText(desktop, setting::kErrorHandling), "");
  EXPECT_EQ(SetupText(desktop, setting::kSeparator), "'" + std::string(89, '='));
  EXPECT_EQ(SetupText(desktop, setting::kQuickExportPath), "/home/user/Desktop");
  EXPECT_EQ(SetupText(desktop, setting::kAutoLoad), "False");
  EXPECT_EQ(SetupText(desktop, setting::kSplashScreen), "True");
  EXPECT_EQ(SetupText(desktop, setting::kCleanUpCodeOptions),
            "Header,Error,Indent,Comment,LineNumber");
}

TEST(SettingKeys, WithAnEmptyStoreTheSetupDialogOffersTheBuiltInKeywords) {
  DesktopFixture desktop;
  EXPECT_EQ(SetupText(desktop, setting::kKeyWordList), kBuiltInKeyWordList);
}

TEST(SettingKeys, TheBuiltInKeywordsAreJoinedByCommasWithoutBlanks) {
  const auto words = Split(kBuiltInKeyWordList, ",");
  EXPECT_EQ(words.size(), 246u);
  EXPECT_TRUE(kBuiltInKeyWordList.starts_with("-,#Const,#Else,#If,&,*,/,\\,^,+,<,=,>,Abs,"));
  EXPECT_TRUE(kBuiltInKeyWordList.ends_with(",While,Width,With,Write"));
  EXPECT_FALSE(Contains(kBuiltInKeyWordList, " "));
  for (const std::string_view word : words) EXPECT_FALSE(word.empty());
}

TEST(SettingKeys, TheBuiltInKeywordsHoldInputAndOptionTwiceAndEveryOtherOnce) {
  std::map<std::string_view, int> counts;
  for (const std::string_view word : Split(kBuiltInKeyWordList, ",")) ++counts[word];
  for (const auto& [word, count] : counts) {
    EXPECT_EQ(count, word == "Input" || word == "Option" ? 2 : 1) << word;
  }
}

TEST(SettingKeys, WithAnEmptyStoreCommandsReadTheirBuiltInTexts) {
  DesktopFixture desktop;
  desktop.shellFolders.SetPath(0, "/home/user/Desktop");
  const std::vector<std::pair<std::string_view, std::string>> expected{
      {setting::kErrorHandling, "TEST HANDLE"},
      {setting::kKeyWordList, ""},
      {setting::kSeparator, "'" + std::string(89, '=')},
      {setting::kSeperator, "'" + std::string(89, '=')},
      {setting::kQuickExportPath, "/home/user/Desktop"},
      {setting::kAutoLoad, "False"},
      {setting::kSplashScreen, "True"},
      {setting::kFirstRun, "True"},
      {setting::kCleanUpCodeOptions, "Header,Error,Indent,Comment,LineNumber"},
      {setting::kToolbarPosition, "1"},
      {setting::kToolbarIndex, "0"},
      {setting::kToolbarLeft, "0"},
      {setting::kToolbarTop, "0"},
      {setting::kToolbarVisible, "True"},
      {setting::kAreWindowsToggled, "False"},
      {setting::kToggledWindows, ""},
      {setting::kToggledMenus, ""},
  };
  for (const auto& [key, value] : expected)
    EXPECT_EQ(GetCommandSetting(desktop.environment, key), value) << key;
}

TEST(SettingKeys, WithAnEmptyStoreTheStandardHeaderHasEightLines) {
  DesktopFixture desktop;
  const std::string separator = "'" + std::string(89, '=');
  const std::string header = GetCommandSetting(desktop.environment, setting::kHeader);
  EXPECT_THAT(
      SplitLines(header),
      testing::ElementsAre(separator, "'  Code Page Name", "'  Description and Useage", separator,
                           "'  Created By: Your Name Here", "'  Published Date: Release Date",
                           "'  WebSite: Website Name and Address", separator));
  EXPECT_EQ(WithCrLf(header), header);
}

TEST(SettingKeys, WithAnEmptyStoreTheAdaptedHeaderHasElevenLines) {
  DesktopFixture desktop;
  const std::string separator = "'" + std::string(89, '=');
  const std::string header = GetCommandSetting(desktop.environment, setting::kAdaptedHeader);
  EXPECT_THAT(SplitLines(header),
              testing::ElementsAre(
                  separator, "'  Code Page Name", "'  Description and Useage", separator,
                  "'  Adapted and Modified By: Your Name Here", "'  Published Date: Release Date",
                  "'  WebSite: Website Name and Address", separator,
                  "'  Based On: Description of Work Based On",
                  "'  WebSite: Website Name and Address of Original Writer", separator));
  EXPECT_EQ(WithCrLf(header), header);
}

TEST(SettingKeys, TheHeaderTemplatesKeepTheBuiltInSeparatorWhateverTheUserHasSet) {
  DesktopFixture desktop;
  SaveSetting(desktop.environment, setting::kSeparator, "'---");
  EXPECT_TRUE(GetCommandSetting(desktop.environment, setting::kHeader).starts_with(kSeparatorLine));
}

TEST(SettingKeys, AStoredValueComesBeforeTheTablesDefault) {
  DesktopFixture desktop;
  SaveSetting(desktop.environment, setting::kQuickExportPath, "/exports");
  EXPECT_EQ(GetCommandSetting(desktop.environment, setting::kQuickExportPath), "/exports");
}

TEST(SettingKeys, TheExportFolderIsEmptyWhereTheShellKnowsNoDesktop) {
  DesktopFixture desktop;
  EXPECT_EQ(GetCommandSetting(desktop.environment, setting::kQuickExportPath), "");
}

}  // namespace setting_keys_test
}  // namespace brimwork

// The settings file of one user, as every system keeps it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <thread>
#include <vector>

#include "memory/json_settings_area.h"
#include "memory/utf8_path.h"
#include "support/json_settings_fixture.h"
#include "support/scoped_variable.h"
#include "support/temporary_folder.h"

namespace brimwork {
namespace json_settings_portable_test {

namespace fs = std::filesystem;

constexpr const char* kApplication = "Brimwork";
constexpr const char* kSection = "Settings";

struct StoredSettings : JsonSettingsFixture {};

TEST_F(StoredSettings, AMissingFileIsAnEmptyStore) {
  EXPECT_EQ(Get("Header"), "default");
  EXPECT_EQ(area.AllSettings(kApplication, kSection), SettingValues());
  EXPECT_FALSE(fs::exists(file));
}

TEST_F(StoredSettings, AValueSavedIsReadByAnyoneElse) {
  Save("Header", "'one\r\n'two \"Größe\"\t€");
  JsonSettingsArea other(file);
  EXPECT_EQ(other.GetSetting(kApplication, kSection, "Header", ""), "'one\r\n'two \"Größe\"\t€");
}

TEST_F(StoredSettings, AStoredEmptyTextIsAValue) {
  Save("Header", "");
  EXPECT_EQ(Get("Header"), "");
}

TEST_F(StoredSettings, ListsWhatIsStored) {
  Save("B", "2");
  Save("A", "1");
  EXPECT_EQ(area.AllSettings(kApplication, kSection), (SettingValues{{"A", "1"}, {"B", "2"}}));
  EXPECT_EQ(area.AllSettings(kApplication, "Other"), SettingValues());
}

TEST_F(StoredSettings, TheFileIsTextThatPeopleCanRead) {
  Save("AutoLoad", "True");
  EXPECT_EQ(ReadBytes(file),
            "{\n  \"Brimwork\": {\n    \"Settings\": {\n      \"AutoLoad\": \"True\"\n    }\n  "
            "}\n}\n");
}

TEST_F(StoredSettings, ApplicationsAndSectionsAreKeptApart) {
  area.SaveSetting("Other", kSection, "Header", "other");
  area.SaveSetting(kApplication, "Windows", "Header", "windows");
  EXPECT_EQ(Get("Header"), "default");
}

TEST_F(StoredSettings, AFileWithAByteOrderMarkIsRead) {
  Store("\xEF\xBB\xBF{\"Brimwork\": {\"Settings\": {\"Header\": \"x\"}}}");
  EXPECT_EQ(Get("Header"), "x");
}

TEST_F(StoredSettings, SavingAnEqualValueDoesNotWrite) {
  Store(R"({"Brimwork":{"Settings":{"Header":"x"}}})");
  Save("Header", "x");
  EXPECT_EQ(ReadBytes(file), R"({"Brimwork":{"Settings":{"Header":"x"}}})");
}

TEST_F(StoredSettings, AValueThatIsNotUtf8IsNotStored) {
  Save("Header", "x");
  const std::string before = ReadBytes(file);
  EXPECT_EQ(Error([&] { Save("Separator", "'\xE4"); }),
            TextOf(file) + ": nothing was stored: the value for \"Separator\" is not UTF-8");
  EXPECT_EQ(ReadBytes(file), before);
}

TEST_F(StoredSettings, AFolderInTheFilesPlaceIsRefused) {
  fs::create_directory(file);
  EXPECT_EQ(Error([&] { Get("Header"); }),
            TextOf(file) + ": the settings file cannot be read: Is a directory");
  EXPECT_EQ(Error([&] { Save("Header", "x"); }),
            TextOf(file) + ": the settings file cannot be read: Is a directory");
}

TEST_F(StoredSettings, MissingFoldersAreMade) {
  JsonSettingsArea deep(folder / "a/b/settings.json");
  deep.SaveSetting(kApplication, kSection, "Header", "x");
  EXPECT_EQ(deep.GetSetting(kApplication, kSection, "Header", ""), "x");
}

TEST_F(StoredSettings, NothingButTheFileAndItsLockIsLeftBehind) {
  Save("Header", "x");
  Save("Header", "y");
  EXPECT_THAT(Leftovers(), testing::IsEmpty());
}

TEST_F(StoredSettings, TheFilesNameMayHoldAnyCharacter) {
  const fs::path odd = folder / "Größe Ж€/settings.json";
  JsonSettingsArea named(odd);
  named.SaveSetting(kApplication, kSection, "Header", "x");
  EXPECT_EQ(JsonSettingsArea(odd).GetSetting(kApplication, kSection, "Header", ""), "x");
  WriteBytes(odd, "oops");
  EXPECT_THAT(Error([&] { named.GetSetting(kApplication, kSection, "Header", ""); }),
              testing::StartsWith(TextOf(odd) + ":1:1: the settings file is damaged"));
}

TEST_F(StoredSettings, ThreadsThatSaveAtTheSameTimeLoseNothing) {
  constexpr int kThreads = 4;
  constexpr int kKeys = 20;
  std::vector<std::thread> threads;
  std::atomic<int> failures = 0;
  for (int thread = 0; thread < kThreads; ++thread) {
    threads.emplace_back([&, thread] {
      const std::string error = Error([&] {
        JsonSettingsArea own(file);
        for (int i = 0; i < kKeys; ++i) {
          const std::string key = "Key" + std::to_string(thread) + "x" + std::to_string(i);
          own.SaveSetting(kApplication, kSection, key, key + "!");
        }
      });
      if (error != "no error") ++failures;
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(failures, 0);
  const SettingValues values = area.AllSettings(kApplication, kSection);
  EXPECT_EQ(values.size(), kThreads * kKeys);
  for (const auto& [key, value] : values) EXPECT_EQ(value, key + "!");
  EXPECT_THAT(Leftovers(), testing::IsEmpty());
}

TEST_F(StoredSettings, WhoReadsMeanwhileSeesTheOldValueOrTheNew) {
  Save("Header", std::string(100'000, 'a'));
  std::atomic<bool> stop = false;
  std::string firstError = "no error";
  std::thread writer([&] {
    JsonSettingsArea own(file);
    firstError = Error([&] {
      for (int i = 0; i < 50; ++i) {
        own.SaveSetting(kApplication, kSection, "Header", std::string(100'000, i % 2 ? 'a' : 'b'));
      }
    });
    stop = true;
  });
  int odd = 0;
  while (!stop) {
    const std::string value = Get("Header");
    if (value.size() != 100'000 || value.find_first_not_of(value[0]) != value.npos) ++odd;
  }
  writer.join();
  EXPECT_EQ(firstError, "no error");
  EXPECT_EQ(odd, 0);
}

TEST(SettingsPath, NamedByTheUserMayHoldAnyCharacter) {
  const ScopedVariable named("BRIMWORK_SETTINGS", "Größe Ж€.json");
  EXPECT_EQ(TextOf(DefaultSettingsPath()), "Größe Ж€.json");
}

}  // namespace json_settings_portable_test
}  // namespace brimwork

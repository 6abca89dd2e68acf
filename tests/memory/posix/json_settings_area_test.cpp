#include "memory/json_settings_area.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <optional>
#include <vector>

#include "support/json_settings_fixture.h"
#include "support/posix/size_limit.h"
#include "support/scoped_variable.h"
#include "support/temporary_folder.h"

namespace brimwork {
namespace json_settings_area_test {

namespace fs = std::filesystem;

constexpr const char* kApplication = "Brimwork";
constexpr const char* kSection = "Settings";

struct JsonSettingsAreaTest : JsonSettingsFixture {};

TEST_F(JsonSettingsAreaTest, AValueSavedIsReadByAnyoneElse) {
  Save("Header", "'one\r\n'two \"Größe\"\t€");
  JsonSettingsArea other(file);
  EXPECT_EQ(other.GetSetting(kApplication, kSection, "Header", ""), "'one\r\n'two \"Größe\"\t€");
  EXPECT_EQ(
      nlohmann::json::parse(ReadBytes(file)),
      (nlohmann::json{{"Brimwork", {{"Settings", {{"Header", "'one\r\n'two \"Größe\"\t€"}}}}}}));
}

TEST_F(JsonSettingsAreaTest, UnknownContentOfTheFileIsKeptInItsOrder) {
  Store(R"({"z": [1, {"a": null}], "Brimwork": {"Windows": {"Left": 4}, "Note": "mine",
            "Settings": {"Zeta": "1", "Colour": "red"}}, "a": true})");
  Save("Header", "x");
  EXPECT_EQ(nlohmann::ordered_json::parse(ReadBytes(file)).dump(),
            R"({"z":[1,{"a":null}],"Brimwork":{"Windows":{"Left":4},"Note":"mine",)"
            R"("Settings":{"Zeta":"1","Colour":"red","Header":"x"}},"a":true})");
}

TEST_F(JsonSettingsAreaTest, APipeInTheFilesPlaceIsRefusedWithoutWaiting) {
  ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
  EXPECT_EQ(
      Error([&] { Get("Header"); }),
      file.string() + ": the settings file cannot be read: it is no plain file: Invalid argument");
}

TEST_F(JsonSettingsAreaTest, AFileInAFoldersPlaceIsAnEmptyStoreThatCannotBeSavedTo) {
  WriteBytes(folder / "plain", "");
  JsonSettingsArea below(folder / "plain/settings.json");
  EXPECT_EQ(below.GetSetting(kApplication, kSection, "Header", "default"), "default");
  EXPECT_THAT(Error([&] { below.SaveSetting(kApplication, kSection, "Header", "x"); }),
              testing::StartsWith((folder / "plain/settings.json").string() +
                                  ": the settings file cannot be reached: "));
}

TEST_F(JsonSettingsAreaTest, ANewFileIsForItsUserAlone) {
  Save("Header", "x");
  EXPECT_EQ(fs::status(file).permissions(), fs::perms(0600));
}

TEST_F(JsonSettingsAreaTest, ThePermissionsOfTheFileAreKept) {
  Save("Header", "x");
  fs::permissions(file, fs::perms(0644));
  Save("Header", "y");
  EXPECT_EQ(fs::status(file).permissions(), fs::perms(0644));
  EXPECT_EQ(Get("Header"), "y");
}

TEST_F(JsonSettingsAreaTest, AReadOnlyFileStaysAsItIs) {
  if (::geteuid() == 0) GTEST_SKIP() << "the superuser may write read-only files";
  Save("Header", "x");
  fs::permissions(file, fs::perms(0400));
  EXPECT_EQ(Error([&] { Save("Header", "y"); }),
            file.string() + ": the settings file cannot be written: Permission denied");
  EXPECT_EQ(Get("Header"), "x");
}

TEST_F(JsonSettingsAreaTest, AFileThatCannotBeWrittenWholeStaysAsItIs) {
  Save("Header", "x");
  std::string error;
  {
    const SizeLimit limit(100);
    error = Error([&] { Save("Header", std::string(1000, 'y')); });
  }
  EXPECT_EQ(error, file.string() + ": the settings file cannot be written: File too large");
  EXPECT_EQ(Get("Header"), "x");
  EXPECT_THAT(Leftovers(), testing::IsEmpty());
}

TEST_F(JsonSettingsAreaTest, ALinkIsWrittenThrough) {
  fs::create_directory(folder / "real");
  fs::create_symlink("real/own.json", file);
  Save("Header", "x");
  EXPECT_TRUE(fs::is_symlink(file));
  EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(folder / "real/own.json")));
  Save("Header", "y");
  EXPECT_TRUE(fs::is_symlink(file));
  EXPECT_EQ(Get("Header"), "y");
}

TEST_F(JsonSettingsAreaTest, LinksThatGoInACircleAreRefused) {
  fs::create_symlink("settings.json", file);
  EXPECT_EQ(
      Error([&] { Save("Header", "x"); }),
      file.string() + ": the settings file cannot be found: Too many levels of symbolic links");
}

/// One process of the test below; returns its exit code.
int SaveKeys(const fs::path& file, int process, int count) {
  try {
    JsonSettingsArea area(file);
    for (int i = 0; i < count; ++i) {
      const std::string key = "Key" + std::to_string(process) + "x" + std::to_string(i);
      area.SaveSetting(kApplication, kSection, key, key + "!");
    }
    return 0;
  } catch (...) {
    return 1;
  }
}

TEST_F(JsonSettingsAreaTest, ProcessesThatSaveAtTheSameTimeLoseNothing) {
  constexpr int kProcesses = 8;
  constexpr int kKeys = 25;
  std::vector<pid_t> children;
  for (int process = 0; process < kProcesses; ++process) {
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) ::_exit(SaveKeys(file, process, kKeys));
    children.push_back(child);
  }
  for (const pid_t child : children) {
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
  }
  const SettingValues values = area.AllSettings(kApplication, kSection);
  EXPECT_EQ(values.size(), kProcesses * kKeys);
  for (const auto& [key, value] : values) EXPECT_EQ(value, key + "!");
  EXPECT_THAT(Leftovers(), testing::IsEmpty());
}

TEST(DefaultSettingsPath, IsTheFileNamedByTheUserFirst) {
  const ScopedVariable named("BRIMWORK_SETTINGS", "/etc/mine.json");
  EXPECT_EQ(DefaultSettingsPath(), "/etc/mine.json");
}

TEST(DefaultSettingsPath, IsElseInTheConfigurationFolder) {
  const ScopedVariable named("BRIMWORK_SETTINGS", "");
  const ScopedVariable home("HOME", "/home/ann");
  const ScopedVariable config("XDG_CONFIG_HOME", "/conf");
  EXPECT_EQ(DefaultSettingsPath(), "/conf/brimwork/settings.json");
}

TEST(DefaultSettingsPath, IsElseBelowTheHomeFolder) {
  const ScopedVariable named("BRIMWORK_SETTINGS", std::nullopt);
  const ScopedVariable home("HOME", "/home/ann");
  for (const char* unusable : {"", "relative/conf"}) {
    const ScopedVariable config("XDG_CONFIG_HOME", unusable);
    EXPECT_EQ(DefaultSettingsPath(), "/home/ann/.config/brimwork/settings.json");
  }
}

TEST(DefaultSettingsPath, WithoutAnyFolderTheStoreIsEmptyAndCannotBeSavedTo) {
  const ScopedVariable named("BRIMWORK_SETTINGS", std::nullopt);
  const ScopedVariable home("HOME", std::nullopt);
  const ScopedVariable config("XDG_CONFIG_HOME", std::nullopt);
  JsonSettingsArea area;
  EXPECT_EQ(area.GetSetting(kApplication, kSection, "Header", "default"), "default");
  try {
    area.SaveSetting(kApplication, kSection, "Header", "x");
    FAIL() << "no error";
  } catch (const SettingsFileError& error) {
    EXPECT_STREQ(error.what(),
                 "there is no place for the settings file: set BRIMWORK_SETTINGS or HOME");
  }
}

}  // namespace json_settings_area_test
}  // namespace brimwork

// A settings file of a test's own, and the ways that a test looks at it.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "memory/json_settings_area.h"
#include "support/temporary_folder.h"

namespace brimwork {

struct JsonSettingsFixture : testing::Test {
  std::string Get(std::string_view key, std::string_view defaultValue = "default") {
    return area.GetSetting("Brimwork", "Settings", key, defaultValue);
  }
  void Save(std::string_view key, std::string_view value) {
    area.SaveSetting("Brimwork", "Settings", key, value);
  }
  void Store(std::string_view bytes) { WriteBytes(file, bytes); }

  /// Names of everything beside the settings file but its lock.
  std::vector<std::string> Leftovers() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path())) {
      const std::string name = entry.path().filename().string();
      if (name != "settings.json" && name != "settings.json.lock") names.push_back(name);
    }
    return names;
  }

  template <class Step>
  static std::string Error(Step&& step) {
    try {
      step();
      return "no error";
    } catch (const SettingsFileError& error) {
      return error.what();
    }
  }

  TemporaryFolder folder;
  std::filesystem::path file = folder / "settings.json";
  JsonSettingsArea area{file};
};

}  // namespace brimwork

// The user's settings in one JSON file, for systems whose run time has no settings area. Every read
// reads the file and every change is on the disk when the call returns, so that processes running
// side by side see each other's changes and lose none.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>

#include "environment/desktop.h"
#include "memory/setting_values.h"

namespace brimwork {

/// The settings file is damaged or cannot be reached. One line that names the file, and the line
/// and column of a damage. It is no RunTimeError: whoever goes on after a run-time error would take
/// the defaults for what the user has set.
class SettingsFileError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// $BRIMWORK_SETTINGS, else brimwork/settings.json in $XDG_CONFIG_HOME, else in ~/.config. Empty
/// when the process knows none of these folders.
std::filesystem::path DefaultSettingsPath();

class JsonSettingsArea : public SettingsArea {
 public:
  /// The file need not exist: it is then an empty store, and the first value saved creates it and
  /// its folders. An empty path is an empty store that cannot be saved to.
  explicit JsonSettingsArea(std::filesystem::path path = DefaultSettingsPath());

  const std::filesystem::path& Path() const { return path_; }

  /// Throws SettingsFileError; so do the calls below.
  std::string GetSetting(std::string_view application, std::string_view section,
                         std::string_view key, std::string_view defaultValue) override;

  /// A file that is damaged, or cannot be replaced whole, stays as it is.
  void SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                   std::string_view value) override;

  /// What is stored in one section.
  SettingValues AllSettings(std::string_view application, std::string_view section) const;

 private:
  std::filesystem::path path_;
};

}  // namespace brimwork

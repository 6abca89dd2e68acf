#include "memory/json_settings_area.h"

#include <optional>
#include <system_error>
#include <utility>

#include "memory/settings_json.h"
#include "memory/shared_file.h"
#include "memory/user_folders.h"
#include "memory/utf8_path.h"

namespace brimwork {
namespace {

namespace fs = std::filesystem;

/// Runs a step on the settings file; whatever fails in it becomes an error that names the file.
template <class Step>
auto OnSettingsFile(const fs::path& path, Step&& step) {
  const std::string name = TextOf(path);
  try {
    return step();
  } catch (const SettingsTextError& error) {
    throw SettingsFileError(
        name + ":" + std::to_string(error.Line()) + ":" + std::to_string(error.Column()) +
        ": the settings file is damaged: " + error.what() + "; correct it or remove the file");
  } catch (const fs::filesystem_error& error) {
    throw SettingsFileError(name +
                            ": the settings file cannot be reached: " + error.code().message());
  } catch (const std::system_error& error) {
    throw SettingsFileError(name + ": the settings file " + error.what());
  } catch (const std::invalid_argument& error) {
    throw SettingsFileError(name + ": nothing was stored: " + error.what());
  }
}

std::optional<std::string> Stored(const SettingValues& values, std::string_view key) {
  const auto value = values.find(key);
  if (value == values.end()) return std::nullopt;
  return value->second;
}

}  // namespace

fs::path DefaultSettingsPath() {
  if (const std::string named = EnvironmentVariable("BRIMWORK_SETTINGS"); !named.empty())
    return PathOf(named);
  const fs::path folder = ConfigFolder();
  return folder.empty() ? folder : folder / "brimwork" / "settings.json";
}

JsonSettingsArea::JsonSettingsArea(fs::path path) : path_(std::move(path)) {}

SettingValues JsonSettingsArea::AllSettings(std::string_view application,
                                            std::string_view section) const {
  if (path_.empty()) return {};
  return OnSettingsFile(path_, [&]() -> SettingValues {
    const std::optional<std::string> text = ReadSharedFile(path_);
    if (!text) return {};
    return ReadSettingsSection(*text, application, section);
  });
}

std::string JsonSettingsArea::GetSetting(std::string_view application, std::string_view section,
                                         std::string_view key, std::string_view defaultValue) {
  return Stored(AllSettings(application, section), key).value_or(std::string(defaultValue));
}

void JsonSettingsArea::SaveSetting(std::string_view application, std::string_view section,
                                   std::string_view key, std::string_view value) {
  if (path_.empty()) {
    throw SettingsFileError(
        "there is no place for the settings file: set BRIMWORK_SETTINGS or HOME");
  }
  OnSettingsFile(path_, [&] {
    const fs::path file = FollowLinks(path_);
    if (file.has_parent_path()) fs::create_directories(file.parent_path());
    const SharedFileLock lock(file);
    const std::string text = ReadSharedFile(file).value_or("{}");
    if (Stored(ReadSettingsSection(text, application, section), key) == value) return;
    ReplaceSharedFile(file, WithSetting(text, application, section, key, value));
  });
}

}  // namespace brimwork

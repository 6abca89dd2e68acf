#include "settings/setting_keys.h"

#include <stdexcept>
#include <vector>

#include "environment/text.h"
#include "settings/modFolderPaths.h"
#include "settings/settings.h"

namespace brimwork {
namespace {

constexpr std::string_view kTrueOrFalse = "True or False";
constexpr std::string_view kWholeNumber = "a whole number";

SettingDefault Text(std::string_view text) { return {SettingDefault::Source::kText, text}; }

SettingDefault DesktopFolder() { return {SettingDefault::Source::kDesktopFolder, {}}; }

/// A key that commands and the setup dialog read with the same default.
SettingKey Shared(std::string_view key, std::string_view format, SettingDefault value) {
  return {key, format, value, value};
}

SettingKey CommandsOnly(std::string_view key, std::string_view format, std::string_view value) {
  return {key, format, Text(value), std::nullopt};
}

void AddEditingKeys(std::vector<SettingKey>& keys) {
  keys.push_back({setting::kHeader, "the lines of the standard header",
                  Text(kStandardHeaderTemplate), Text("")});
  keys.push_back({setting::kAdaptedHeader, "the lines of the header for adapted code",
                  Text(kAdaptedHeaderTemplate), Text("")});
  keys.push_back({setting::kErrorHandling,
                  "lines of code; CURRENTFULLPROCEDUREPATH stands for the procedure's path",
                  Text(kDefaultErrorHandling), Text("")});
  keys.push_back({setting::kKeyWordList, "words joined by commas, without blanks", Text(""),
                  Text(kBuiltInKeyWordList)});
  keys.push_back(Shared(setting::kSeparator, "one comment line", Text(kSeparatorLine)));
  keys.push_back(CommandsOnly(setting::kSeperator,
                              "one comment line; the spell check's own, written by nothing",
                              kSeparatorLine));
  keys.push_back(
      Shared(setting::kCleanUpCodeOptions,
             "Header, Error, Indent, Comment, LineNumber, those wanted, joined by commas",
             Text(kDefaultCleanUpCodeOptions)));
}

void AddStartUpKeys(std::vector<SettingKey>& keys) {
  keys.push_back(Shared(setting::kQuickExportPath, "a folder's path", DesktopFolder()));
  keys.push_back(Shared(setting::kAutoLoad, kTrueOrFalse, Text("False")));
  keys.push_back(Shared(setting::kSplashScreen, kTrueOrFalse, Text("True")));
  keys.push_back(CommandsOnly(setting::kFirstRun, kTrueOrFalse, "True"));
}

void AddWindowKeys(std::vector<SettingKey>& keys) {
  keys.push_back(CommandsOnly(setting::kToolbarPosition, kWholeNumber, "1"));
  keys.push_back(CommandsOnly(setting::kToolbarIndex, kWholeNumber, "0"));
  keys.push_back(CommandsOnly(setting::kToolbarLeft, kWholeNumber, "0"));
  keys.push_back(CommandsOnly(setting::kToolbarTop, kWholeNumber, "0"));
  keys.push_back(CommandsOnly(setting::kToolbarVisible, kTrueOrFalse, "True"));
  keys.push_back(CommandsOnly(setting::kAreWindowsToggled, kTrueOrFalse, "False"));
  keys.push_back(CommandsOnly(setting::kToggledWindows,
                              "the hidden windows, each as caption,type and an asterisk", ""));
  keys.push_back(CommandsOnly(setting::kToggledMenus,
                              "the hidden command bars, each as name and an asterisk", ""));
}

std::vector<SettingKey> MakeTable() {
  std::vector<SettingKey> keys;
  AddEditingKeys(keys);
  AddStartUpKeys(keys);
  AddWindowKeys(keys);
  return keys;
}

}  // namespace

std::span<const SettingKey> SettingKeys() {
  static const std::vector<SettingKey> table = MakeTable();
  return table;
}

const SettingKey* FindSettingKey(std::string_view key) {
  for (const SettingKey& entry : SettingKeys()) {
    if (EqualNames(entry.key, key)) return &entry;
  }
  return nullptr;
}

std::string DefaultText(Environment& environment, const SettingDefault& settingDefault) {
  if (settingDefault.source == SettingDefault::Source::kText)
    return std::string(settingDefault.text);
  return GetSpecialFolderPath(environment, kDesktopFolderId);
}

std::string GetCommandSetting(Environment& environment, std::string_view key) {
  const SettingKey* entry = FindSettingKey(key);
  if (entry == nullptr) throw std::out_of_range("no setting is named " + std::string(key));
  return GetSetting(environment, entry->key, DefaultText(environment, entry->commandDefault));
}

}  // namespace brimwork

#include "cli/settings_command.h"

#include <vector>

#include "cli/command_request.h"
#include "cli/near_miss.h"
#include "cli/user_settings.h"
#include "environment/text.h"
#include "settings/setting_keys.h"
#include "settings/settings.h"

namespace brimwork {
namespace {

/// A value on one line, its line ends written as \n.
std::string OnOneLine(std::string_view value) {
  return Replace(Replace(Replace(value, "\\", "\\\\"), "\r\n", "\\n"), "\n", "\\n");
}

std::string ListedSetting(Environment& environment, const SettingValues& stored,
                          const SettingKey& key) {
  const auto value = stored.find(std::string(key.key));
  const bool isStored = value != stored.end();
  const std::string text = isStored ? value->second : DefaultText(environment, key.commandDefault);
  std::string line(key.key);
  line.append(isStored ? "=" : " (default)=").append(OnOneLine(text)).append("\n");
  return line;
}

}  // namespace

void ListSettings(Console& console) {
  UserSettings user;
  const SettingValues stored = user.area.AllSettings(kApplicationTitle, kSettingsSection);
  for (const SettingKey& key : SettingKeys()) {
    console.Out(ListedSetting(user.environment, stored, key));
  }
}

void PrintSetting(Console& console, const std::string& key) {
  UserSettings user;
  console.Out(GetCommandSetting(user.environment, CheckedSettingKey(key)) + "\n");
}

void StoreSetting(const std::string& key, const std::string& value) {
  UserSettings user;
  SaveSetting(user.environment, CheckedSettingKey(key), value);
}

void PrintSettingsPath(Console& console) { console.Out(DefaultSettingsPath().string() + "\n"); }

std::string CheckedSettingKey(const std::string& key) {
  if (const SettingKey* known = FindSettingKey(key)) return std::string(known->key);
  std::vector<std::string_view> keys;
  for (const SettingKey& row : SettingKeys()) keys.push_back(row.key);
  throw UsageError("there is no setting \"" + key + '"' + NearMissHint(key, keys) +
                   "; \"brimwork settings list\" shows them all");
}

}  // namespace brimwork

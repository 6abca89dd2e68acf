#include "settings/settings.h"

#include "environment/text.h"

namespace brimwork {

std::string GetSetting(Environment& environment, std::string_view key,
                       std::string_view defaultValue) {
  return environment.settingsArea.GetSetting(kApplicationTitle, kSettingsSection, key,
                                             defaultValue);
}

void SaveSetting(Environment& environment, std::string_view key, std::string_view value) {
  environment.settingsArea.SaveSetting(kApplicationTitle, kSettingsSection, key, WithCrLf(value));
}

}  // namespace brimwork

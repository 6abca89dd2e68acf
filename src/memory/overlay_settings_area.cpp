#include "memory/overlay_settings_area.h"

#include <utility>

namespace brimwork {

OverlaySettingsArea::OverlaySettingsArea(SettingsArea& behind, std::string application,
                                         std::string section, SettingValues stored)
    : behind_(behind),
      application_(std::move(application)),
      section_(std::move(section)),
      values_(std::move(stored)) {}

void OverlaySettingsArea::SetForThisRun(std::string_view key, std::string_view value) {
  values_.insert_or_assign(std::string(key), std::string(value));
}

std::string OverlaySettingsArea::GetSetting(std::string_view application, std::string_view section,
                                            std::string_view key, std::string_view defaultValue) {
  if (!IsOwnSection(application, section))
    return behind_.GetSetting(application, section, key, defaultValue);
  const auto value = values_.find(key);
  return value == values_.end() ? std::string(defaultValue) : value->second;
}

void OverlaySettingsArea::SaveSetting(std::string_view application, std::string_view section,
                                      std::string_view key, std::string_view value) {
  behind_.SaveSetting(application, section, key, value);
  if (IsOwnSection(application, section)) SetForThisRun(key, value);
}

}  // namespace brimwork

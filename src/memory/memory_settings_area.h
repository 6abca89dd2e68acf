// The settings area as plain data.
#pragma once

#include <map>
#include <string>
#include <utility>

#include "environment/desktop.h"
#include "memory/setting_values.h"

namespace brimwork {

class MemorySettingsArea : public SettingsArea {
 public:
  std::string GetSetting(std::string_view application, std::string_view section,
                         std::string_view key, std::string_view defaultValue) override {
    const auto values = sections_.find(Address(application, section));
    if (values == sections_.end()) return std::string(defaultValue);
    const auto value = values->second.find(key);
    return value == values->second.end() ? std::string(defaultValue) : value->second;
  }

  void SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                   std::string_view value) override {
    sections_[Address(application, section)].insert_or_assign(std::string(key), std::string(value));
  }

  /// What is stored in one section.
  SettingValues AllSettings(std::string_view application, std::string_view section) const {
    const auto values = sections_.find(Address(application, section));
    return values == sections_.end() ? SettingValues() : values->second;
  }

 private:
  using SectionAddress = std::pair<std::string, std::string>;

  static SectionAddress Address(std::string_view application, std::string_view section) {
    return {std::string(application), std::string(section)};
  }

  std::map<SectionAddress, SettingValues> sections_;
};

}  // namespace brimwork

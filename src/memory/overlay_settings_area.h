// Settings for one run in front of the stored ones. The stored values are taken once, so that a
// command over thousands of procedures reads the file once and sees one state of it.
#pragma once

#include <string>

#include "environment/desktop.h"
#include "memory/setting_values.h"

namespace brimwork {

class OverlaySettingsArea : public SettingsArea {
 public:
  /// Stands in front of one section of behind; stored are that section's values. Other sections are
  /// handed through. behind outlives this object.
  OverlaySettingsArea(SettingsArea& behind, std::string application, std::string section,
                      SettingValues stored);

  /// A value that only this run sees; it is never stored.
  void SetForThisRun(std::string_view key, std::string_view value);

  /// Several threads may read at the same time as long as none saves.
  std::string GetSetting(std::string_view application, std::string_view section,
                         std::string_view key, std::string_view defaultValue) override;

  /// Stores the value behind, and then also answers with it, in place of a value for this run.
  void SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                   std::string_view value) override;

 private:
  bool IsOwnSection(std::string_view application, std::string_view section) const {
    return application == application_ && section == section_;
  }

  SettingsArea& behind_;
  std::string application_;
  std::string section_;
  SettingValues values_;
};

}  // namespace brimwork

// The run time's settings area: the keys of the current user that Visual Basic's own GetSetting and
// SaveSetting use, so that both see the same values.
#pragma once

#include "environment/desktop.h"

namespace brimwork::windows {

class RegistrySettingsArea : public SettingsArea {
 public:
  std::string GetSetting(std::string_view application, std::string_view section,
                         std::string_view key, std::string_view defaultValue) override;
  /// Raises error 5 when the registry takes no value.
  void SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                   std::string_view value) override;
};

}  // namespace brimwork::windows

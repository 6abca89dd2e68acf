// brimwork settings: list, get, set and path.
#pragma once

#include <string>

#include "cli/console.h"

namespace brimwork {

/// Every key with its stored value or its default.
void ListSettings(Console& console);
/// The stored value of a key, or what the commands take when nothing is stored.
void PrintSetting(Console& console, const std::string& key);
void StoreSetting(const std::string& key, const std::string& value);
void PrintSettingsPath(Console& console);

/// The key as the table spells it. Throws UsageError, with the nearest key, for an unknown one.
std::string CheckedSettingKey(const std::string& key);

}  // namespace brimwork

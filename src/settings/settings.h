// The per-user options, read at the moment of use and written at once: nothing is cached, so a
// value written by one command is seen by the next read anywhere.
#pragma once

#include <string>
#include <string_view>

#include "environment/environment.h"

namespace brimwork {

/// The add-in's title. It is also the application under which the settings are kept.
inline constexpr std::string_view kApplicationTitle = "Brimwork";

inline constexpr std::string_view kSettingsSection = "Settings";

/// The stored text of a key, or defaultValue when nothing is stored; a stored empty text is a
/// value. Raises RunTimeError when the settings area cannot be reached.
std::string GetSetting(Environment& environment, std::string_view key,
                       std::string_view defaultValue);

/// Creates or overwrites the value of a key. A lone LF in value is stored as CR LF, as every text
/// of several lines in the settings has it. Raises RunTimeError when nothing could be stored.
void SaveSetting(Environment& environment, std::string_view key, std::string_view value);

}  // namespace brimwork

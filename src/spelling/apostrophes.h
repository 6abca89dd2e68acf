// The apostrophe as keyboards write it and as printers set it.
#pragma once

#include <string_view>

namespace brimwork {

inline constexpr std::string_view kPlainApostrophe = "'";
inline constexpr std::string_view kTypographicApostrophe = "\u2019";

}  // namespace brimwork

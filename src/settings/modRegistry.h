// Reads one value of the system registry; nothing here writes to it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "environment/registry.h"

namespace brimwork {

/// Reads a value below hive (kHiveCurrentUser). A text comes without its terminating zero, a DWORD
/// as "&h" and its bytes in hexadecimal, the highest first, each without leading zeros and a zero
/// in the highest byte left out: 4 gives "&h004". A value of another type leaves result as it is.
/// Returns true when a value was read; when the key or the value cannot be read, result becomes "".
bool ReadRegistryValue(Registry& registry, std::uint32_t hive, std::string_view keyPath,
                       std::string_view valueName, std::string& result);

}  // namespace brimwork

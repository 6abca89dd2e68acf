// Names as automation compares them.
#pragma once

#include <windows.h>

#include <string_view>

namespace brimwork::bench {

/// Whether two names are one, case set aside.
inline bool SameName(std::wstring_view a, std::wstring_view b) {
  return a.size() == b.size() &&
         CompareStringOrdinal(a.data(), static_cast<int>(a.size()), b.data(),
                              static_cast<int>(b.size()), TRUE) == CSTR_EQUAL;
}

}  // namespace brimwork::bench

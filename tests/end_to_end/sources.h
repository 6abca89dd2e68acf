// Small modules that the end-to-end tests work on.
#pragma once

namespace brimwork {

inline constexpr const char* kMessy =
    "Sub Main()\n"
    "If Ready Then\n"
    "Work\n"
    "End If\n"
    "End Sub\n";

/// kMessy as the indenter leaves it.
inline constexpr const char* kIndented =
    "Sub Main()\n"
    "    If Ready Then\n"
    "        Work\n"
    "    End If\n"
    "End Sub\n";

}  // namespace brimwork

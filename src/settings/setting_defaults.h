// The texts that readers of the settings fall back on: the separator line, the header templates,
// the error-handling text and the clean-up steps.
#pragma once

#include <string_view>

namespace brimwork {

/// An apostrophe and 89 equals signs: 90 characters.
inline constexpr std::string_view kSeparatorLine =
    "'=========================================================================================";

/// Eight lines joined by CR LF. The separators in it are kSeparatorLine, whatever separator the
/// user has set.
extern const std::string_view kStandardHeaderTemplate;

/// Eleven lines joined by CR LF, for code that is based on another writer's work.
extern const std::string_view kAdaptedHeaderTemplate;

inline constexpr std::string_view kDefaultErrorHandling = "TEST HANDLE";

inline constexpr std::string_view kDefaultCleanUpCodeOptions =
    "Header,Error,Indent,Comment,LineNumber";

}  // namespace brimwork

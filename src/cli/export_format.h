// The formats that code is exported in.
#pragma once

#include <string_view>

namespace brimwork {

struct ExportFormat {
  std::string_view name;       // as --format takes it
  std::string_view caption;    // of the command that writes it
  std::string_view extension;  // of the files, with its dot
};

inline constexpr ExportFormat kTextExport{"text", "Text", ".txt"};
inline constexpr ExportFormat kRtfExport{"rtf", "RTF", ".rtf"};
inline constexpr ExportFormat kHtmlExport{"html", "Web Page", ".htm"};

/// Throws UsageError, with the nearest name, for a name that is none.
const ExportFormat& ExportFormatNamed(std::string_view name);

}  // namespace brimwork

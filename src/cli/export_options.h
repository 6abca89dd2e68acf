// The options of brimwork export as they are typed, and what they come to.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cli/app_options.h"
#include "cli/export_request.h"

namespace CLI {
class App;
}

namespace brimwork {

struct ExportOptions {
  std::optional<std::string> format;
  std::optional<std::string> output;
  std::optional<std::string> lines;
  std::optional<std::string> keywords;
  bool quick = false;
  bool force = false;
};

void AddExportOptions(CLI::App& command, AppOptions& options, ExportOptions& exporting);

/// Throws UsageError, SourceError for a keyword file, and what MakeCommonOptions throws.
ExportRequest MakeExportRequest(const AppOptions& options, const ExportOptions& exporting);

/// "A:B". Throws UsageError.
LineRange ParseLineRange(std::string_view text);

}  // namespace brimwork

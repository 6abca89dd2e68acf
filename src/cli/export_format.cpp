#include "cli/export_format.h"

#include <string>
#include <vector>

#include "cli/command_request.h"
#include "cli/near_miss.h"

namespace brimwork {
namespace {

constexpr const ExportFormat* kFormats[] = {&kTextExport, &kRtfExport, &kHtmlExport};

}  // namespace

const ExportFormat& ExportFormatNamed(std::string_view name) {
  std::vector<std::string_view> names;
  for (const ExportFormat* format : kFormats) {
    if (format->name == name) return *format;
    names.push_back(format->name);
  }
  throw UsageError("--format: there is no format \"" + std::string(name) + '"' +
                   NearMissHint(name, names) + "; the formats are text, rtf and html");
}

}  // namespace brimwork

#include "cli/export_options.h"

#include <CLI/CLI.hpp>
#include <charconv>

#include "cli/export_keywords.h"
#include "settings/setting_keys.h"

namespace brimwork {
namespace {

void CheckQuick(const ExportOptions& exporting, const ExportFormat& format) {
  if (format.name != kTextExport.name) {
    throw UsageError("--quick exports text: leave out --format " + std::string(format.name));
  }
  if (exporting.output) {
    throw UsageError(
        "--quick writes to the folder of the setting QuickExportPath: leave out --output");
  }
  if (exporting.force) {
    throw UsageError("--quick replaces its file without asking: leave out --force");
  }
}

ExportFormat FormatOf(const ExportOptions& exporting) {
  if (exporting.format) return ExportFormatNamed(*exporting.format);
  if (exporting.quick) return kTextExport;
  throw UsageError("say what to export: --format text, rtf or html");
}

/// The command on the whole module, or on the selection.
CommandRequest CommandOf(const ExportRequest& request) {
  const std::string_view caption =
      request.quick ? CaptionOf("export --quick") : request.format.caption;
  return {std::string(caption), {}, !request.lines.has_value()};
}

/// A line number at the start of text, and what follows it; 0 for none.
int TakeLineNumber(std::string_view& text) {
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc()) return 0;
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  return number;
}

}  // namespace

void AddExportOptions(CLI::App& command, AppOptions& options, ExportOptions& exporting) {
  AddInputOptions(command, options);
  command.add_option("--format", exporting.format, "text, rtf or html")->option_text("FORMAT");
  command.add_option("-o,--output", exporting.output, "File or folder to write (standard output)")
      ->option_text("PATH");
  command.add_flag("--quick", exporting.quick, "As text to the folder set for Quick Export");
  command.add_flag("--force", exporting.force, "Replace files that are already there");
  command.add_option("--lines", exporting.lines, "Only these lines of the file")
      ->option_text("A:B");
  command.add_option("--keywords", exporting.keywords, "builtin, words joined by commas, or @FILE")
      ->option_text("LIST");
  AddSettingOption(command, options);
  command.add_flag("-q,--quiet", options.quiet, "Errors only");
  command.add_flag("-v,--verbose", options.verbose, "Also tell lines and encoding of each file");
}

ExportRequest MakeExportRequest(const AppOptions& options, const ExportOptions& exporting) {
  ExportRequest request;
  request.format = FormatOf(exporting);
  if (exporting.quick) CheckQuick(exporting, request.format);
  if (exporting.output == "") throw UsageError("--output needs the name of a file or a folder");
  request.quick = exporting.quick;
  request.output = exporting.output;
  request.mayReplace = exporting.force || exporting.quick;
  if (exporting.lines) request.lines = ParseLineRange(*exporting.lines);
  request.run = MakeCommonOptions(options);
  request.run.command = CommandOf(request);
  if (exporting.keywords) {
    request.run.settings[std::string(setting::kKeyWordList)] =
        KeywordsOf(*exporting.keywords, request.run.encoding);
  }
  return request;
}

LineRange ParseLineRange(std::string_view text) {
  std::string_view rest = text;
  LineRange range;
  range.first = TakeLineNumber(rest);
  const bool hasColon = rest.starts_with(':');
  if (hasColon) rest.remove_prefix(1);
  range.last = TakeLineNumber(rest);
  if (range.first >= 1 && hasColon && range.last >= range.first && rest.empty()) return range;
  throw UsageError("--lines " + std::string(text) +
                   ": write it as A:B, the first and the last line, as in 10:25");
}

}  // namespace brimwork

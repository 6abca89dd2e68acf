#include "cli/app_options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <map>
#include <string_view>

#include "cli/near_miss.h"
#include "cli/settings_command.h"
#include "environment/text.h"
#include "memory/json_settings_area.h"
#include "memory/locale_clock.h"
#include "memory/text_codec.h"
#include "settings/setting_keys.h"
#include "settings/settings.h"

namespace brimwork {
namespace {

constexpr int kWidestTab = 32;
constexpr int kMostJobs = 256;

constexpr std::array<std::string_view, 6> kSteps{"Header",  "Error",      "Indent",
                                                 "Comment", "LineNumber", "SpellCheck"};

/// The step as the setting spells it.
std::string_view CheckedStep(std::string_view word) {
  const auto step =
      std::ranges::find_if(kSteps, [&](std::string_view known) { return EqualNames(known, word); });
  if (step != kSteps.end()) return *step;
  throw UsageError("--steps: there is no step \"" + std::string(word) + '"' +
                   NearMissHint(word, kSteps) +
                   "; the steps are Header, Error, Indent, Comment, LineNumber and SpellCheck");
}

std::string CheckedSteps(const std::string& steps) {
  std::string checked;
  for (const std::string_view word : Split(steps, ",")) {
    if (Trim(word).empty()) continue;
    if (!checked.empty()) checked += ',';
    checked += CheckedStep(Trim(word));
  }
  return checked;
}

void TakeSetting(SettingValues& settings, const std::string& assignment) {
  const auto equals = assignment.find('=');
  if (equals == std::string::npos) {
    throw UsageError("--set " + assignment + ": write it as KEY=VALUE");
  }
  settings[CheckedSettingKey(assignment.substr(0, equals))] =
      WithCrLf(assignment.substr(equals + 1));
}

SettingValues SettingsOfRun(const AppOptions& options) {
  SettingValues settings = JsonSettingsArea().AllSettings(kApplicationTitle, kSettingsSection);
  for (const std::string& assignment : options.settings) TakeSetting(settings, assignment);
  if (options.steps)
    settings[std::string(setting::kCleanUpCodeOptions)] = CheckedSteps(*options.steps);
  return settings;
}

/// A wrong name is told once instead of for each file.
std::string CheckedEncoding(const std::string& encoding) {
  try {
    return TextCodec(encoding).Encoding();
  } catch (const std::invalid_argument& error) {
    throw UsageError("--encoding: " + std::string(error.what()));
  }
}

}  // namespace

namespace {

void AddModes(CLI::App& command, AppOptions& options) {
  command.add_flag("-w,--write", options.write, "Write the result back to the files")
      ->group("Modes");
  command.add_flag("--check", options.check, "List files that would change; exit with 1")
      ->group("Modes");
  command.add_flag("--diff", options.diff, "Show the changes as a unified diff")->group("Modes");
}

void AddRuleOptions(CLI::App& command, AppOptions& options) {
  AddSettingOption(command, options);
  command.add_option("--tab-width", options.tabWidth, "Blanks of one indent, 0 to 32 (4)")
      ->check(CLI::Range(0, kWidestTab))
      ->option_text("N");
  command.add_option("--now", options.now, "Time of stamps, as 2026-11-21T10:20:30")
      ->option_text("TIME");
}

void AddReportOptions(CLI::App& command, AppOptions& options) {
  const std::map<std::string, ColorChoice> choices{{"auto", ColorChoice::kAuto},
                                                   {"always", ColorChoice::kAlways},
                                                   {"never", ColorChoice::kNever}};
  command.add_option("--jobs", options.jobs, "Files worked on at a time (one a processor)")
      ->check(CLI::Range(1, kMostJobs))
      ->option_text("N");
  command.add_option("--color", options.color, "auto, always or never")
      ->transform(CLI::CheckedTransformer(choices))
      ->option_text("WHEN");
  command.add_flag("--unsafe", options.isUnsafe, "Write what brimwork cannot vouch for");
  command.add_flag("--no-warnings", options.noWarnings, "No warnings");
  command.add_flag("-q,--quiet", options.quiet, "Errors and warnings only");
  command.add_flag("-v,--verbose", options.verbose, "Also name files that stay as they are");
}

}  // namespace

void AddInputOptions(CLI::App& command, AppOptions& options) {
  command.add_option("files", options.paths, "Files, folders, .vbp, .vbg, or - (standard input)")
      ->option_text("FILE...");
  command.add_option("--encoding", options.encoding, "Of files without byte-order mark (cp1252)")
      ->option_text("NAME");
  command.add_option("--stdin-filename", options.stdinFileName, "The path that - stands for")
      ->option_text("PATH");
}

void AddSettingOption(CLI::App& command, AppOptions& options) {
  command.add_option("--set", options.settings, "A setting for this run only (repeatable)")
      ->option_text("KEY=VALUE")
      ->allow_extra_args(false);
}

void AddRunOptions(CLI::App& command, AppOptions& options) {
  AddInputOptions(command, options);
  AddModes(command, options);
  AddRuleOptions(command, options);
  AddReportOptions(command, options);
}

void AddLineOptions(CLI::App& command, AppOptions& options) {
  command.add_option("--line", options.place.line, "Only at this line of the file")
      ->check(CLI::PositiveNumber)
      ->option_text("N")
      ->group("Place");
  command.add_option("--column", options.place.column, "Column in that line (behind its text)")
      ->check(CLI::PositiveNumber)
      ->option_text("C")
      ->group("Place");
}

void AddPlaceOptions(CLI::App& command, AppOptions& options) {
  AddLineOptions(command, options);
  command.add_option("--procedure", options.place.procedure, "Only in the procedures of this name")
      ->option_text("NAME")
      ->group("Place");
}

RunOptions MakeCommonOptions(const AppOptions& options) {
  RunOptions run;
  run.write = options.write;
  run.check = options.check;
  run.diff = options.diff;
  run.isUnsafe = options.isUnsafe;
  run.warnings = !options.noWarnings;
  run.encoding = CheckedEncoding(options.encoding);
  run.tabWidth = options.tabWidth;
  run.settings = SettingsOfRun(options);
  run.now = ResolveNow(options.now);
  run.dateLocale = DateLocaleName();
  run.paths = options.paths;
  run.stdinFileName = options.stdinFileName;
  run.jobs = options.jobs;
  return run;
}

RunOptions MakeRunOptions(const std::string& caption, const AppOptions& options) {
  const CommandRequest command = MakeCommandRequest(caption, options.place);
  RunOptions run = MakeCommonOptions(options);
  run.command = command;
  return run;
}

}  // namespace brimwork

// The options of a run as they are typed, and what they come to.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/console.h"
#include "cli/run_options.h"
#include "cli/spell_options.h"

namespace CLI {
class App;
}

namespace brimwork {

struct AppOptions {
  std::vector<std::string> paths;
  bool write = false;
  bool check = false;
  bool diff = false;
  bool isUnsafe = false;
  bool noWarnings = false;
  bool quiet = false;
  bool verbose = false;
  bool adapted = false;
  ColorChoice color = ColorChoice::kAuto;
  std::string encoding = "WINDOWS-1252";
  std::string stdinFileName;
  std::optional<std::string> now;
  std::optional<std::string> steps;
  std::optional<int> tabWidth;
  std::optional<int> jobs;
  std::vector<std::string> settings;  // KEY=VALUE
  PlaceRequest place;
  SpellOptions spelling;
};

/// What is read: the files and how they are encoded.
void AddInputOptions(CLI::App& command, AppOptions& options);

/// --set.
void AddSettingOption(CLI::App& command, AppOptions& options);

/// The options that every command that changes files takes.
void AddRunOptions(CLI::App& command, AppOptions& options);

/// --line and --column.
void AddLineOptions(CLI::App& command, AppOptions& options);

/// --line, --column and --procedure.
void AddPlaceOptions(CLI::App& command, AppOptions& options);

/// All but the command. Reads the stored settings and the clock where the options leave them to the
/// user's own. Throws UsageError, DateTimeError and SettingsFileError.
RunOptions MakeCommonOptions(const AppOptions& options);

/// The same with the command of that caption.
RunOptions MakeRunOptions(const std::string& caption, const AppOptions& options);

}  // namespace brimwork

#include "cli/app.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <exception>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/app_options.h"
#include "cli/command_request.h"
#include "cli/commands_list.h"
#include "cli/console.h"
#include "cli/export_files.h"
#include "cli/export_options.h"
#include "cli/msgbox_command.h"
#include "cli/near_miss.h"
#include "cli/run_files.h"
#include "cli/settings_command.h"
#include "cli/setup_command.h"
#include "cli/spell_command.h"

namespace brimwork {
namespace {

constexpr const char* kDescription =
    "Tools for Visual Basic 6 source code: indenting, line numbers, error handling,\n"
    "comments and headers, on files, folders, projects (.vbp) and groups (.vbg).";

constexpr const char* kExamples =
    "Examples:\n"
    "  brimwork indent Module1.bas              print the indented file\n"
    "  brimwork cleanup --write Shop.vbp        clean up every module of a project\n"
    "  brimwork indent --check src/             exit with 1 when a file would change\n"
    "  brimwork number --diff Form1.frm         show what would change\n"
    "  brimwork export --format rtf Form1.frm   print the code as rich text\n"
    "  brimwork run \"Comment Procedure\" --line 40 Module1.bas\n"
    "\n"
    "Exit codes: 0 done, 1 --check or --list found something, 2 an error.";

constexpr std::size_t kHelpColumn = 28;

struct SubcommandText {
  const char* name;
  const char* description;
  const char* examples;
};

constexpr SubcommandText kFriendlyCommands[] = {
    {"cleanup", "Run the clean-up steps over the whole module",
     "Examples:\n"
     "  brimwork cleanup --diff Shop.vbp\n"
     "  brimwork cleanup --steps Indent,Comment --write Module1.bas\n"
     "\n"
     "Steps: Header, Error, Indent, Comment, LineNumber, SpellCheck. Without --steps,\n"
     "those of the setting CleanUpCodeOptions. SpellCheck asks about each word, on a\n"
     "terminal, unless --replace is given."},
    {"indent", "Re-indent every procedure",
     "Examples:\n"
     "  brimwork indent --write --tab-width 2 Module1.bas\n"
     "  brimwork indent - < Module1.bas"},
    {"number", "Number the statements of every procedure",
     "Examples:\n"
     "  brimwork number --write Module1.bas\n"
     "  brimwork number --procedure Form_Load Form1.frm"},
    {"unnumber", "Take line numbers away",
     "Examples:\n"
     "  brimwork unnumber --write Module1.bas\n"
     "  brimwork unnumber --line 40 Module1.bas"},
    {"comment", "Frame procedures, label their closing lines",
     "Examples:\n"
     "  brimwork comment --diff Module1.bas\n"
     "  brimwork comment --procedure Form_Load Form1.frm"},
    {"error-handling", "Insert the error handler of the settings",
     "Examples:\n"
     "  brimwork error-handling --procedure Save --diff Module1.bas\n"
     "  brimwork error-handling --set ErrorHandling=\"MsgBox Err\" Module1.bas"},
    {"header", "Insert the module header of the settings",
     "Examples:\n"
     "  brimwork header --write Module1.bas\n"
     "  brimwork header --adapted --now 2026-11-21 Module1.bas"},
    {"timestamp", "Insert a comment with the date and time",
     "Examples:\n"
     "  brimwork timestamp --line 12 Module1.bas\n"
     "  brimwork timestamp --line 12 --column 1 --write Module1.bas\n"
     "\n"
     "Without --column, the stamp goes behind the text of the line."},
    {"spell", "Check the spelling of literals and comments",
     "Examples:\n"
     "  brimwork spell Module1.bas               ask about each word, then write\n"
     "  brimwork spell --diff Form1.frm          ask, then show the changes only\n"
     "  brimwork spell --list Shop.vbp           list words as FILE:LINE:COLUMN\n"
     "  brimwork spell --replace teh=the --write src/\n"
     "\n"
     "Of several dictionaries (--dictionary de_DE --dictionary en_US), one must have\n"
     "the word. --replace needs none. The words that you add are kept in words.txt\n"
     "beside the settings file."},
};

/// Everything that one parse of the command line leaves behind.
struct ParsedLine {
  AppOptions options;
  ExportOptions exporting;
  MsgBoxOptions msgBox;
  std::string caption;
  std::string settingKey;
  std::string settingValue;
  bool setupDefaults = false;
};

void DefineRun(CLI::App& run, ParsedLine& line) {
  run.add_option("caption", line.caption, "Caption, as \"brimwork commands\" lists it")
      ->required()
      ->option_text("CAPTION");
  AddRunOptions(run, line.options);
  AddPlaceOptions(run, line.options);
  run.footer(
      "Examples:\n"
      "  brimwork run \"Indent All Procedures\" Module1.bas\n"
      "  brimwork run \"Add Line Numbers\" --procedure Main --write Module1.bas");
}

void DefineFriendlyCommand(CLI::App& command, ParsedLine& line, const SubcommandText& text) {
  AddRunOptions(command, line.options);
  const std::string name = text.name;
  if (name == "header") {
    command.add_flag("--adapted", line.options.adapted, "The header for adapted code");
  } else if (name == "cleanup") {
    command.add_option("--steps", line.options.steps, "Steps of this run, joined by commas")
        ->option_text("STEP,...");
    AddSpellOptions(command, line.options.spelling);
  } else if (name == "spell") {
    AddListOption(command, line.options.spelling);
    AddSpellOptions(command, line.options.spelling);
  } else if (name == "timestamp") {
    AddLineOptions(command, line.options);
  } else if (name != "indent") {
    AddPlaceOptions(command, line.options);
  }
  command.footer(text.examples);
}

void DefineExport(CLI::App& command, ParsedLine& line) {
  AddExportOptions(command, line.options, line.exporting);
  command.footer(
      "Examples:\n"
      "  brimwork export --format html --keywords builtin Module1.bas > Module1.htm\n"
      "  brimwork export --format rtf --lines 10:25 -o part.rtf Module1.bas\n"
      "  brimwork export --format html -o pages/ Shop.vbp     with an index page\n"
      "  brimwork export --quick Module1.bas\n"
      "\n"
      "Without --keywords, the words of the setting KeyWordList are coloured.");
}

void DefineMsgBox(CLI::App& command, ParsedLine& line) {
  AddMsgBoxOptions(command, line.msgBox);
  command.footer(
      "Examples:\n"
      "  brimwork msgbox --text \"Save it?\" --buttons yes-no --icon question\n"
      "  brimwork msgbox --text Done. --title Shop --icon information --timeout 5\n"
      "  brimwork msgbox --text Stop? --captions Halt --add-to Shop.vbp\n"
      "  brimwork msgbox --text Save? --buttons yes-no-cancel --captions ,Discard\n"
      "\n"
      "Sets: ok-only, ok-cancel, yes-no, yes-no-cancel, retry-cancel,\n"
      "abort-retry-ignore. Icons: none, critical, exclamation, information, question.\n"
      "Of the captions an empty one keeps the usual caption of its button.");
}

void DefineSettings(CLI::App& settings, ParsedLine& line) {
  settings.require_subcommand(1);
  settings.footer(
      "Examples:\n"
      "  brimwork settings list\n"
      "  brimwork settings set CleanUpCodeOptions Indent,Comment");
  settings.add_subcommand("list", "Every key with its value")
      ->footer("Example: brimwork settings list");
  settings.add_subcommand("path", "The file that holds the settings")
      ->footer("Example: brimwork settings path");
  CLI::App* get = settings.add_subcommand("get", "The value of a key");
  get->add_option("key", line.settingKey, "As settings list names it")
      ->required()
      ->option_text("KEY");
  get->footer("Example: brimwork settings get Separator");
  CLI::App* set = settings.add_subcommand("set", "Store the value of a key");
  set->add_option("key", line.settingKey, "As settings list names it")
      ->required()
      ->option_text("KEY");
  set->add_option("value", line.settingValue, "Its new text, may have several lines")
      ->required()
      ->option_text("VALUE");
  set->footer("Example: brimwork settings set SplashScreen False");
}

void DefineSetup(CLI::App& setup, ParsedLine& line) {
  setup.add_flag("--defaults", line.setupDefaults, "Ask nothing, store what the dialog shows");
  setup.footer(
      "Example: brimwork setup --defaults\n"
      "\n"
      "Asks at a terminal; Enter keeps a setting. All of them are stored behind the\n"
      "last answer. When the answers end before that, or with Ctrl+C, none is.");
}

/// The options of the one subcommand that is asked for are defined when it has been named: those of
/// all of them take longer than a small file.
void AddSubcommand(CLI::App& app, const char* name, const char* description,
                   std::function<void(CLI::App&)> define) {
  CLI::App* const command = app.add_subcommand(name, description);
  command->preparse_callback(
      [command, define = std::move(define)](std::size_t) { define(*command); });
}

void DefineCommandLine(CLI::App& app, ParsedLine& line) {
  app.description(kDescription);
  app.footer(kExamples);
  app.set_version_flag("--version", "brimwork " BRIMWORK_VERSION);
  app.require_subcommand(1);
  app.get_formatter()->column_width(kHelpColumn);
  AddSubcommand(app, "run", "Run a command by its caption",
                [&](CLI::App& command) { DefineRun(command, line); });
  for (const SubcommandText& text : kFriendlyCommands) {
    AddSubcommand(app, text.name, text.description,
                  [&](CLI::App& command) { DefineFriendlyCommand(command, line, text); });
  }
  AddSubcommand(app, "export", "Export code as text, rich text or web page",
                [&](CLI::App& command) { DefineExport(command, line); });
  AddSubcommand(app, "msgbox", "Print the code of a message box",
                [&](CLI::App& command) { DefineMsgBox(command, line); });
  app.add_subcommand("commands", "List every command of the catalogue")
      ->footer("Example: brimwork commands");
  AddSubcommand(app, "settings", "List, read and store the settings",
                [&](CLI::App& command) { DefineSettings(command, line); });
  AddSubcommand(app, "setup", "Ask for each setting of the setup dialog",
                [&](CLI::App& command) { DefineSetup(command, line); });
}

void RunSettings(const CLI::App& settings, const ParsedLine& line, Console& console) {
  if (settings.got_subcommand("list")) ListSettings(console);
  if (settings.got_subcommand("path")) PrintSettingsPath(console);
  if (settings.got_subcommand("get")) PrintSetting(console, line.settingKey);
  if (settings.got_subcommand("set")) StoreSetting(line.settingKey, line.settingValue);
}

std::string CaptionAskedFor(const std::string& command, const ParsedLine& line) {
  if (command == "run") return line.caption;
  if (command == "header" && line.options.adapted) return "Adapted Header";
  if (command == "comment" && line.options.place.IsGiven()) return "Comment Procedure";
  return std::string(CaptionOf(command));
}

int RunSubcommand(const CLI::App& app, const ParsedLine& line, Console& console) {
  const CLI::App& subcommand = *app.get_subcommands().front();
  const std::string name = subcommand.get_name();
  if (name == "commands") {
    console.Out(CommandsTable());
    return exit_code::kDone;
  }
  if (name == "settings") {
    RunSettings(subcommand, line, console);
    return exit_code::kDone;
  }
  if (name == "setup") {
    return line.setupDefaults ? StoreShownSettings(console) : AskForSettings(console);
  }
  if (name == "msgbox") return PrintMsgBox(line.msgBox, console);
  if (name == "export") {
    return ExportFiles(MakeExportRequest(line.options, line.exporting), console);
  }
  RunOptions run = MakeRunOptions(CaptionAskedFor(name, line), line.options);
  PrepareSpelling(run, line.options.spelling, console);
  return RunFiles(run, console);
}

/// The hint for a first word that should have been a subcommand, "" when it is one.
std::string UnknownSubcommand(const CLI::App& app, const std::string& word) {
  std::vector<std::string> names;
  for (const CLI::App* subcommand : app.get_subcommands({}))
    names.push_back(subcommand->get_name());
  if (std::ranges::find(names, word) != names.end()) return {};
  return "there is no command \"" + word + '"' +
         NearMissHint(word, std::vector<std::string_view>(names.begin(), names.end()));
}

/// Help and version are printed and done; anything else is one line on standard error.
int TellParseError(const CLI::App& app, const CLI::ParseError& error, const std::string& firstWord,
                   Console& console) {
  if (error.get_exit_code() == 0) return app.exit(error);
  std::string problem = error.what();
  if (!firstWord.empty() && !firstWord.starts_with('-')) {
    const std::string unknown = UnknownSubcommand(app, firstWord);
    if (!unknown.empty()) problem = unknown;
  }
  console.Error(problem + " (\"brimwork --help\" shows how)");
  return exit_code::kError;
}

}  // namespace

int RunApp(int argc, const char* const* argv) {
  CLI::App app("", "brimwork");
  ParsedLine line;
  DefineCommandLine(app, line);
  Console plain(ColorChoice::kAuto, false, false);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return TellParseError(app, error, argc > 1 ? argv[1] : "", plain);
  }
  Console console(line.options.color, line.options.quiet || line.msgBox.quiet,
                  line.options.verbose);
  try {
    return RunSubcommand(app, line, console);
  } catch (const std::exception& error) {
    console.Error(error.what());
    return exit_code::kError;
  }
}

}  // namespace brimwork

#include "cli/spell_command.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/run_inputs.h"
#include "cli/spell_run.h"
#include "cli/user_terminal.h"
#include "environment/text.h"
#include "settings/setting_keys.h"
#include "spelling/user_words.h"

namespace brimwork {
namespace {

using Mode = SpellRun::Mode;

constexpr std::string_view kCleanUp = "Code Clean Up";
constexpr std::string_view kStep = "SpellCheck";

// The words.

std::vector<Dictionary> OpenDictionaries(const SpellOptions& options, Console& console) {
  std::vector<Dictionary> dictionaries;
  for (const std::string& name : options.dictionaries) {
    dictionaries.emplace_back(FindDictionary(name));
  }
  if (!dictionaries.empty()) return dictionaries;
  const DictionaryFiles files = FindLocaleDictionary();
  const std::string wanted = LocaleDictionaryName();
  if (files.name != wanted) {
    console.Note("there is no spelling dictionary \"" + wanted + "\": checking with " + files.name +
                 " (--dictionary names another)");
  }
  dictionaries.emplace_back(files);
  return dictionaries;
}

bool IsOneWord(std::string_view text) {
  const std::vector<TextWord> words = CutWords(text);
  return words.size() == 1 && words[0].size == text.size();
}

void TakeReplacement(SpellingSession& session, const std::string& option) {
  const auto equals = option.find('=');
  if (equals == std::string::npos) {
    throw UsageError("--replace " + option + ": write it as WORD=WORD");
  }
  const std::string word = option.substr(0, equals);
  const std::string replacement = option.substr(equals + 1);
  if (!IsOneWord(word)) throw UsageError("--replace: \"" + word + "\" is not one word");
  if (const auto problem = ProblemOfReplacement(replacement, "UTF-8")) {
    throw UsageError("--replace " + option + ": " + *problem);
  }
  session.ReplaceAll(word, replacement);
}

std::shared_ptr<SpellRun> MakeSpellRun(Mode mode, const SpellOptions& options, Console& console) {
  if (mode == Mode::kReplace) {
    auto run = std::make_shared<SpellRun>(mode, SpellingSession());
    for (const std::string& option : options.replacements) TakeReplacement(run->session, option);
    return run;
  }
  auto run = std::make_shared<SpellRun>(
      mode, SpellingSession(OpenDictionaries(options, console), DefaultUserWordsPath()));
  if (mode == Mode::kAsk) {
    run->questions = std::make_unique<SpellQuestions>(run->session, TerminalOf(console));
  }
  return run;
}

// What the run is asked for.

bool ReadsStandardInput(const RunOptions& run) {
  return std::ranges::count(run.paths, kStandardInputPath) > 0;
}

void CheckListing(const RunOptions& run, const SpellOptions& options) {
  if (run.write || run.check || run.diff) {
    throw UsageError("--list changes nothing: leave out --write, --check and --diff");
  }
  if (!options.replacements.empty()) {
    throw UsageError("--list changes nothing: leave out --replace");
  }
}

void CheckAsking(const RunOptions& run) {
  if (!UserIsThere()) {
    throw UsageError(
        "there is no terminal to ask on: \"brimwork spell --list\" lists the misspelled words, "
        "\"brimwork spell --replace WORD=WORD\" corrects without asking");
  }
  if (run.check) throw UsageError("--check asks nothing: give --list or --replace WORD=WORD");
  if (ReadsStandardInput(run)) {
    throw UsageError("standard input holds your answers: name a file, or give --list or --replace");
  }
}

Mode ModeOfSpellCheck(RunOptions& run, const SpellOptions& options) {
  if (options.list) {
    CheckListing(run, options);
    run.lists = true;
    return Mode::kList;
  }
  if (!options.replacements.empty()) return Mode::kReplace;
  CheckAsking(run);
  run.write = run.write || !run.diff;
  return Mode::kAsk;
}

bool HasSpellingStep(const RunOptions& run) {
  const auto stored = run.settings.find(setting::kCleanUpCodeOptions);
  return Contains(stored != run.settings.end()
                      ? std::string_view(stored->second)
                      : FindSettingKey(setting::kCleanUpCodeOptions)->commandDefault.text,
                  kStep);
}

/// Nothing when the clean-up goes without the step.
std::optional<Mode> ModeOfCleanUp(const RunOptions& run, const SpellOptions& options,
                                  Console& console) {
  const bool hasOptions = !options.replacements.empty() || !options.dictionaries.empty();
  if (!HasSpellingStep(run)) {
    if (!hasOptions) return std::nullopt;
    throw UsageError("--dictionary and --replace are for the step SpellCheck: name it in --steps");
  }
  if (!options.replacements.empty()) return Mode::kReplace;
  if (UserIsThere() && !run.check && !ReadsStandardInput(run)) return Mode::kAsk;
  console.Note("the step SpellCheck is left out: nobody can be asked (--replace asks nothing)");
  return std::nullopt;
}

}  // namespace

void PrepareSpelling(RunOptions& run, const SpellOptions& options, Console& console) {
  RequirePaths(run);
  std::optional<Mode> mode;
  if (run.command.caption == kSpellCheckCaption) mode = ModeOfSpellCheck(run, options);
  if (run.command.caption == kCleanUp) mode = ModeOfCleanUp(run, options, console);
  if (!mode) return;
  run.spelling = MakeSpellRun(*mode, options, console);
  run.jobs = 1;  // the files share their words, and one user
}

}  // namespace brimwork

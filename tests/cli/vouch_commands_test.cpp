// Runs real commands on generated modules: what they write is vouched for, and any damage done to
// it afterwards is found.
#include <gtest/gtest.h>

#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "cli/code_tokens.h"
#include "cli/line_label.h"
#include "cli/vouch.h"
#include "environment/basic_lines.h"
#include "environment/text.h"
#include "settings/setting_keys.h"
#include "support/module_generator.h"
#include "support/opened_module.h"

namespace brimwork {
namespace vouch_commands_test {

struct VouchedCommand {
  std::string_view caption;
  bool wholeModule = true;
  Allowance allowance;
};

const std::string kSeparator = "'" + std::string(89, '=');
constexpr const char* kTemplate = "Log \"CURRENTFULLPROCEDUREPATH\"";

std::vector<std::string> HeaderLines(OpenedModule& opened) {
  const std::string header = Replace(GetCommandSetting(opened.addIn.environment, setting::kHeader),
                                     "Release Date", opened.environment.clock.ShortDate());
  std::vector<std::string> lines;
  for (const std::string_view line : SplitLines(header)) {
    lines.emplace_back(line);
  }
  return lines;
}

std::string PathPrefix(OpenedModule& opened) {
  const auto project = opened.environment.vbe.ActiveVBProject();
  return (project ? project->Name() : "") + "." + opened.Module().Name() + ".";
}

std::vector<VouchedCommand> Commands(OpenedModule& opened) {
  Allowance numbering;
  numbering.labelsMayGo = numbering.labelsMayCome = true;
  Allowance unnumbering;
  unnumbering.labelsMayGo = true;
  Allowance commenting;
  commenting.separatorLines = {kSeparator};
  commenting.blankLinesMayGo = commenting.closingCommentsMayChange = true;
  Allowance handling;
  handling.handler = HandlerAllowance{{kTemplate}, "CURRENTFULLPROCEDUREPATH", PathPrefix(opened)};
  Allowance heading;
  heading.headerLines = HeaderLines(opened);
  Allowance cleaning = commenting;
  cleaning.labelsMayGo = cleaning.labelsMayCome = true;
  cleaning.handler = handling.handler;
  cleaning.headerLines = heading.headerLines;
  return {{"Indent All Procedures", true, {}},        {"Add Line Numbers", true, numbering},
          {"Remove Line Numbers", true, unnumbering}, {"Comment All Procedures", true, commenting},
          {"Insert Error Handling", true, handling},  {"Standard Header", false, heading},
          {"Code Clean Up", true, cleaning}};
}

TextLines GeneratedLines(unsigned seed, bool oddities) {
  GeneratorOptions options;
  options.seed = seed;
  options.lines = 120;
  options.messy = seed % 2 == 0;
  options.continuations = true;
  options.lineNumbers = true;
  options.oddities = oddities;
  const GeneratedModule module = GenerateModule(options);
  TextLines lines;
  for (const std::string_view line : SplitLines(module.text)) {
    lines.emplace_back(line);
  }
  lines.pop_back();  // behind the last line end
  return lines;
}

class VouchForCommands : public ::testing::TestWithParam<std::size_t> {
 protected:
  struct Run {
    TextLines before;
    TextLines after;
    Allowance allowance;
  };

  static Run RunOn(const TextLines& lines) {
    OpenedModule opened(lines);
    opened.Set("ErrorHandling", kTemplate);
    const VouchedCommand command = Commands(opened)[GetParam()];
    ButtonClicked(opened.addIn, command.caption, command.wholeModule);
    return {lines, opened.Lines(), command.allowance};
  }
};

std::string Describe(const Difference& difference) {
  return "line " + std::to_string(difference.beforeLine) + " [" + difference.beforeText +
         "], behind the command line " + std::to_string(difference.afterLine) + " [" +
         difference.afterText + "]";
}

TEST_P(VouchForCommands, WhatACommandWritesIsVouchedFor) {
  for (unsigned seed = 1; seed <= 40; ++seed) {
    const Run run = RunOn(GeneratedLines(seed, false));
    const auto difference = Vouch(VectorLines(run.before), VectorLines(run.after), run.allowance);
    EXPECT_FALSE(difference) << "seed " << seed << ": " << Describe(*difference);
  }
}

TEST_P(VouchForCommands, WhatACommandMakesOfOddCodeIsVouchedFor) {
  for (unsigned seed = 1; seed <= 40; ++seed) {
    const Run run = RunOn(GeneratedLines(seed, true));
    const auto difference = Vouch(VectorLines(run.before), VectorLines(run.after), run.allowance);
    EXPECT_FALSE(difference) << "seed " << seed << ": " << Describe(*difference);
  }
}

TEST_P(VouchForCommands, TheAlignmentPairsEveryLineThatIsKept) {
  const Run run = RunOn(GeneratedLines(3, false));
  Alignment alignment;
  ASSERT_FALSE(Vouch(VectorLines(run.before), VectorLines(run.after), run.allowance, &alignment));
  int lastAfter = 0;
  for (int line = 1; line <= static_cast<int>(run.before.size()); ++line) {
    const int after = alignment.AfterLine(line);
    if (after == 0) {
      EXPECT_EQ(TrimBlanksAndTabs(run.before[line - 1]), "");
      continue;
    }
    EXPECT_GT(after, lastAfter);
    EXPECT_EQ(alignment.BeforeLine(after), line);
    lastAfter = after;
  }
}

/// Does one piece of damage to what a command wrote, where no allowance covers it.
class Damager {
 public:
  Damager(const Allowance& allowance, unsigned seed) : allowance_(allowance), random_(seed) {}

  /// Says what it did; "" when the line it chose could not be damaged for sure.
  std::string Damage(TextLines& lines) {
    const std::size_t at = Pick(lines.size());
    if (!IsUsers(lines[at])) return {};
    const std::string where = " line " + std::to_string(at + 1) + " [" + lines[at] + "]";
    const auto place = lines.begin() + static_cast<std::ptrdiff_t>(at);
    switch (Pick(4)) {
      case 0:
        return Change(lines[at]) ? "change in" + where : std::string();
      case 1:
        lines.erase(place);
        return "loss of" + where;
      case 2:
        lines.insert(place, std::string(*place));
        return "copy of" + where;
      default:
        return at + 1 < lines.size() && Swap(*place, *std::next(place)) ? "swap below" + where
                                                                        : std::string();
    }
  }

 private:
  std::size_t Pick(std::size_t below) {
    return std::uniform_int_distribution<std::size_t>(0, below - 1)(random_);
  }

  /// A separator or a jump may be one that the command put there, and blank lines may go.
  bool IsUsers(std::string_view line) const {
    const auto label = SplitNumericLabel(line);
    const std::string_view text = label ? label->rest : TrimBlanksAndTabs(line);
    return !text.empty() && text != kSeparator && text != "On Error GoTo ErrorTrap";
  }

  bool Change(std::string& line) {
    if (allowance_.closingCommentsMayChange && ClosesProcedure(line, Continues::kNothing)) {
      return false;
    }
    const auto first = line.find_first_not_of(" \t");
    line[first + Pick(TrimBlanksAndTabs(line).size())] = '\x01';
    return true;
  }

  bool Swap(std::string& a, std::string& b) const {
    if (!IsUsers(b) || SameTokens(a, b, Continues::kNothing)) return false;
    std::swap(a, b);
    return true;
  }

  const Allowance& allowance_;
  std::mt19937 random_;
};

TEST_P(VouchForCommands, EveryDamageToWhatACommandWroteIsFound) {
  int damages = 0;
  for (unsigned seed = 1; seed <= 600; ++seed) {
    const Run run = RunOn(GeneratedLines(seed % 20, seed % 40 >= 20));
    TextLines damaged = run.after;
    const std::string damage = Damager(run.allowance, seed).Damage(damaged);
    if (damage.empty() || damaged == run.after) continue;
    ++damages;
    EXPECT_TRUE(Vouch(VectorLines(run.before), VectorLines(damaged), run.allowance))
        << "seed " << seed << ": " << damage;
  }
  EXPECT_GT(damages, 300);
}

std::string CommandName(const ::testing::TestParamInfo<std::size_t>& info) {
  constexpr const char* kNames[] = {"Indent", "Number", "Unnumber", "Comment",
                                    "Handle", "Header", "CleanUp"};
  return kNames[info.param];
}

INSTANTIATE_TEST_SUITE_P(AllCommands, VouchForCommands, ::testing::Range<std::size_t>(0, 7),
                         CommandName);

}  // namespace vouch_commands_test
}  // namespace brimwork

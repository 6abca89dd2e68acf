// What the command says about itself.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

#include "end_to_end/spelling_workplace.h"

namespace brimwork {
namespace help_test {

using testing::HasSubstr;

const std::vector<Words>& AllSubcommands() {
  static const std::vector<Words> subcommands{{},
                                              {"run"},
                                              {"cleanup"},
                                              {"indent"},
                                              {"number"},
                                              {"unnumber"},
                                              {"comment"},
                                              {"error-handling"},
                                              {"header"},
                                              {"timestamp"},
                                              {"spell"},
                                              {"export"},
                                              {"msgbox"},
                                              {"commands"},
                                              {"settings"},
                                              {"settings", "list"},
                                              {"settings", "get"},
                                              {"settings", "set"},
                                              {"settings", "path"},
                                              {"setup"}};
  return subcommands;
}

class Help : public testing::TestWithParam<Words> {
 protected:
  std::string Text() const {
    Words words = GetParam();
    words.push_back("--help");
    const ProgramResult result = Workplace().Run(words);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.error, "");
    return result.out;
  }
};

TEST_P(Help, HasAnExample) { EXPECT_THAT(Text(), HasSubstr("Example")); }

TEST_P(Help, FitsInto80Columns) {
  for (const std::string& line : LinesOf(Text())) EXPECT_LE(line.size(), 80u) << line;
}

TEST_P(Help, HoldsPlainCharactersOnly) {
  const std::string text = Text();
  EXPECT_TRUE(
      std::ranges::all_of(text, [](unsigned char c) { return c == '\n' || std::isprint(c); }));
}

std::string NameOf(const testing::TestParamInfo<Words>& info) {
  std::string name = "brimwork";
  for (const std::string& word : info.param) name += "_" + word;
  std::ranges::replace(name, '-', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(OfEverySubcommand, Help, testing::ValuesIn(AllSubcommands()), NameOf);

TEST(HelpOfTheCommand, NamesEverySubcommand) {
  const std::string text = Workplace().Run({"--help"}).out;
  for (const Words& words : AllSubcommands()) {
    if (words.size() != 1) continue;
    EXPECT_THAT(text, HasSubstr("\n  " + words.front() + " "));
  }
}

/// What a line of a help shows to type, without what it says about it; "" for other lines.
std::string ExampleIn(const std::string& line) {
  const auto at = line.find("brimwork ");
  if (!line.starts_with("  brimwork ") && !line.starts_with("Example: brimwork ")) return {};
  const std::string words = line.substr(at + std::string("brimwork ").size());
  return words.substr(0, words.find("   "));
}

/// At a terminal, for some examples ask there.
ProgramResult RunExample(const Workplace& place, const std::string& example) {
  ProgramCall call = place.CallOf({});
  call.words = {"/bin/sh", "-c", "\"$brimwork\" " + example};
  call.variables["brimwork"] = BRIMWORK_COMMAND;
  call.inputIsTerminal = call.errorIsTerminal = true;
  return RunProgram(call);
}

TEST(HelpOfTheCommand, HasExamplesThatWork) {
  if (!HasPseudoTerminal()) GTEST_SKIP() << "this system opens no pseudo-terminal";
  const SpellingWorkplace place;
  std::string module = "Sub Main()\n";
  for (int line = 0; line < 50; ++line) module += "x = 1\n";
  place.Write("Module1.bas", module + "End Sub\nSub Save()\nx = 1\nEnd Sub\n");
  place.Write("Form1.frm", "VERSION 5.00\nBegin VB.Form Form1\nEnd\nSub Form_Load()\nEnd Sub\n");
  place.Write("Shop.vbp", "Module=M; Module1.bas\nForm=Form1.frm\n");
  place.Write("src/M.bas", "x = 1\n");
  int examples = 0;
  for (Words words : AllSubcommands()) {
    words.push_back("--help");
    for (const std::string& line : LinesOf(place.Run(words).out)) {
      const std::string example = ExampleIn(line);
      if (example.empty()) continue;
      ++examples;
      const ProgramResult result = RunExample(place, example);
      EXPECT_LE(result.exitCode, 1) << line << '\n' << result.terminal;
    }
  }
  EXPECT_GE(examples, 16);
}

TEST(Version, IsPrinted) {
  const ProgramResult result = Workplace().Run({"--version"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_THAT(result.out, testing::MatchesRegex("brimwork [0-9]+\\.[0-9]+\\.[0-9]+\n"));
}

TEST(CommandLine, AMistakeIsOneLineAndExitCode2) {
  Workplace place;
  place.Write("a.bas", "x = 1\n");
  for (const Words& words :
       {Words{}, Words{"indnt", "a.bas"}, Words{"indent", "--bogus", "a.bas"}, Words{"run"},
        Words{"indent", "--jobs", "0", "a.bas"}, Words{"settings"}, Words{"settings", "get"},
        Words{"indent", "--line", "1", "a.bas"}}) {
    const ProgramResult result = place.Run(words);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(LinesOf(result.error).size(), 1u) << result.error;
    EXPECT_THAT(result.error, testing::StartsWith("brimwork: "));
  }
}

}  // namespace help_test
}  // namespace brimwork

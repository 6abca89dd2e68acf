// The generator must be trusted before anything tested with it: its code is checked here by rules
// that know nothing of how it was made.
#include "support/module_generator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <optional>
#include <set>

#include "environment/basic_lines.h"
#include "environment/text.h"

namespace brimwork {
namespace {

using ::testing::ElementsAreArray;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

constexpr unsigned kSeeds = 20;

GeneratorOptions AllOptions(unsigned seed) {
  GeneratorOptions options;
  options.seed = seed;
  options.messy = options.continuations = options.lineNumbers = options.oddities = true;
  return options;
}

std::vector<std::string_view> LinesOf(const GeneratedModule& module) {
  std::vector<std::string_view> lines = SplitLines(module.text);
  lines.pop_back();  // behind the last line end
  return lines;
}

/// The line without blanks, tabs and an old line number.
std::string_view CodeOf(std::string_view line) {
  std::string_view code = TrimBlanksAndTabs(line);
  const auto colon = code.find_first_not_of("0123456789");
  if (colon == 0 || colon == std::string_view::npos || code[colon] != ':') return code;
  return TrimBlanksAndTabs(code.substr(colon + 1));
}

struct Pair {
  std::string_view opener, closer;
};

constexpr std::array<Pair, 6> kPairs = {{
    {"For ", "Next"},
    {"Do ", "Loop"},
    {"While ", "Wend"},
    {"With ", "End With"},
    {"Select Case ", "End Select"},
    {"If ", "End If"},
}};

/// The line that says how to close what this statement opens, or nothing.
std::optional<std::string> CloserOf(std::string_view statement) {
  if (const auto declaration = ParseDeclaration(statement)) {
    return "End " + std::string(declaration->word);
  }
  for (const Pair& pair : kPairs) {
    if (!statement.starts_with(pair.opener)) continue;
    const std::string_view code = statement.substr(0, statement.find(" '"));
    if (pair.opener == "If " && !code.ends_with("Then")) return std::nullopt;
    return std::string(pair.closer);
  }
  return std::nullopt;
}

/// Continued lines put together to whole statements, without comments.
std::vector<std::string> StatementsOf(const GeneratedModule& module) {
  std::vector<std::string> statements;
  std::string statement;
  for (const std::string_view line : LinesOf(module)) {
    const std::string_view code = CodeOf(line);
    if (IsBlankLine(code) || IsCommentLine(code, Continues::kNothing)) continue;
    const bool continued = IsContinued(line);
    statement += continued ? code.substr(0, code.size() - 1) : code;
    if (continued) continue;
    statements.push_back(statement);
    statement.clear();
  }
  return statements;
}

/// What is wrong with the blocks of a well-formed module; "" when nothing is.
std::string FaultInBlocks(const GeneratedModule& module) {
  std::vector<std::string> open;
  for (const std::string& statement : StatementsOf(module)) {
    if (const auto closer = CloserOf(statement)) {
      open.push_back(*closer);
    } else if (!open.empty() && statement.starts_with(open.back())) {
      open.pop_back();
    } else if (statement.starts_with("End ") && statement != "End Type") {
      return "nothing to close for: " + statement;
    }
  }
  return open.empty() ? "" : "never closed: " + open.back();
}

/// Names declared at the start of a line, Type and Enum members left out.
std::vector<std::string> DeclaredNames(const GeneratedModule& module) {
  std::vector<std::string> names;
  Continues above = Continues::kNothing;
  bool inType = false;
  for (const std::string_view line : LinesOf(module)) {
    if (inType) {
      inType = !ClosesTypeBlock(line);
    } else if (above == Continues::kNothing) {
      inType = OpensTypeBlock(line);
      if (const auto declaration = ParseDeclaration(line)) names.emplace_back(declaration->name);
    }
    above = ContinuedBelow(line, above);
  }
  return names;
}

std::vector<std::string> ListedNames(const GeneratedModule& module) {
  std::vector<std::string> names;
  for (const GeneratedProcedure& procedure : module.procedures) names.push_back(procedure.name);
  return names;
}

TEST(ModuleGenerator, GivesTheSameModuleForTheSameOptions) {
  const GeneratedModule first = GenerateModule(AllOptions(7));
  const GeneratedModule second = GenerateModule(AllOptions(7));
  EXPECT_EQ(first.text, second.text);
  EXPECT_EQ(first.procedures, second.procedures);
}

TEST(ModuleGenerator, GivesAnotherModuleForAnotherSeed) {
  EXPECT_NE(GenerateModule(AllOptions(1)).text, GenerateModule(AllOptions(2)).text);
}

TEST(ModuleGenerator, ReachesTheNumberOfLinesWithinOneProcedure) {
  for (const int lines : {1, 100, 10000}) {
    GeneratorOptions options;
    options.lines = lines;
    const int made = static_cast<int>(LinesOf(GenerateModule(options)).size());
    EXPECT_GE(made, lines);
    EXPECT_LT(made, lines + 40);
  }
}

TEST(ModuleGenerator, MakesNothingOfNoLines) {
  GeneratorOptions options;
  options.lines = 0;
  EXPECT_EQ(GenerateModule(options).text, "");
  EXPECT_THAT(GenerateModule(options).procedures, IsEmpty());
}

TEST(ModuleGenerator, WritesProceduresAndLinesOfAUsualLength) {
  GeneratorOptions options;
  options.lines = 10000;
  const GeneratedModule module = GenerateModule(options);
  const double lines = static_cast<double>(LinesOf(module).size());
  const double linesPerProcedure = lines / static_cast<double>(module.procedures.size());
  const double bytesPerLine = static_cast<double>(module.text.size()) / lines;
  EXPECT_GT(linesPerProcedure, 20);
  EXPECT_LT(linesPerProcedure, 30);
  EXPECT_GT(bytesPerLine, 28);
  EXPECT_LT(bytesPerLine, 42);
}

TEST(ModuleGenerator, ClosesEveryBlockThatItOpens) {
  for (unsigned seed = 1; seed <= kSeeds; ++seed) {
    GeneratorOptions options;
    options.seed = seed;
    options.messy = seed % 2 == 1;
    options.continuations = seed % 3 == 1;
    options.lineNumbers = seed % 5 < 2;
    EXPECT_EQ(FaultInBlocks(GenerateModule(options)), "") << "seed " << seed;
  }
}

TEST(ModuleGenerator, ListsTheProceduresOfWellFormedCodeFromTheTopDown) {
  GeneratorOptions options;
  options.messy = options.continuations = options.lineNumbers = true;
  const GeneratedModule module = GenerateModule(options);
  const std::vector<std::string> names = ListedNames(module);
  EXPECT_THAT(DeclaredNames(module), ElementsAreArray(names));
  EXPECT_EQ(std::set<std::string>(names.begin(), names.end()).size(), names.size());
}

TEST(ModuleGenerator, ListsTheProceduresOfOddCodeFromTheTopDown) {
  for (unsigned seed = 1; seed <= kSeeds; ++seed) {
    const GeneratedModule module = GenerateModule(AllOptions(seed));
    std::vector<std::string> declared = DeclaredNames(module);
    // Only the second of two alternative heads is declared without being listed.
    for (const std::string& name : ListedNames(module)) {
      const auto at = std::find(declared.begin(), declared.end(), name);
      ASSERT_NE(at, declared.end()) << name << ", seed " << seed;
      ASSERT_TRUE(at - declared.begin() <= 1) << name << " is out of order, seed " << seed;
      declared.erase(declared.begin(), at + 1);
    }
    EXPECT_LE(declared.size(), 1U);
  }
}

TEST(ModuleGenerator, TellsTheKindOfEachProcedure) {
  GeneratorOptions options;
  const GeneratedModule module = GenerateModule(options);
  for (const GeneratedProcedure& procedure : module.procedures) {
    const auto at = module.text.find(" " + procedure.name + "(");
    const auto start = module.text.rfind('\n', at) + 1;
    const auto declaration = ParseDeclaration(std::string_view(module.text).substr(start));
    ASSERT_TRUE(declaration) << procedure.name;
    EXPECT_EQ(declaration->word, procedure.word);
    EXPECT_EQ(declaration->kind, procedure.kind);
  }
}

TEST(ModuleGenerator, EndsLinesAsTold) {
  GeneratorOptions options;
  EXPECT_THAT(GenerateModule(options).text, HasSubstr("Option Explicit\r\n"));
  options.lineEnd = "\n";
  EXPECT_THAT(GenerateModule(options).text, Not(HasSubstr("\r")));
}

TEST(ModuleGenerator, ContinuesStatementsOnlyWhenTold) {
  GeneratorOptions options;
  EXPECT_THAT(GenerateModule(options).text, Not(HasSubstr(" _\r\n")));
  options.continuations = true;
  EXPECT_THAT(GenerateModule(options).text, HasSubstr(" _\r\n"));
}

TEST(ModuleGenerator, WritesTidyCodeUnlessTold) {
  GeneratorOptions options;
  EXPECT_THAT(GenerateModule(options).text, Not(HasSubstr("\t")));
  options.messy = true;
  EXPECT_THAT(GenerateModule(options).text, HasSubstr("\t"));
}

TEST(ModuleGenerator, NumbersLinesOnlyWhenTold) {
  GeneratorOptions options;
  EXPECT_THAT(GenerateModule(options).text, Not(HasSubstr("\r\n10:    ")));
  options.lineNumbers = true;
  EXPECT_THAT(GenerateModule(options).text, HasSubstr("\r\n10:    "));
}

/// Each piece of unusual code that oddities promise, as it is written at least once.
TEST(ModuleGenerator, WritesEveryOddityWithinAFewModules) {
  std::string all;
  for (unsigned seed = 1; seed <= kSeeds; ++seed) all += GenerateModule(AllOptions(seed)).text;
  for (const std::string_view oddity :
       {"Rem", "#If DEBUGGING Then", "Property Set ", "(): total = 1: End Sub",
        "' End Sub is missing below", "#Else", "' End Sub is not the end here",
        "\"End Sub: Loop ' Next\"", "Retry:", "    Sub As Long", "SHELFÄÖÜ", "Shelfäöü", "end sub",
        "EndGame", "PrüfeGröße", "public  static\tFunction", "' that is the End"}) {
    EXPECT_THAT(all, HasSubstr(std::string(oddity)));
  }
}

}  // namespace
}  // namespace brimwork

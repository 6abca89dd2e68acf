// The generator must be trusted before anything tested with it: its code is checked here by rules
// that know nothing of how it was made.
#include "support/module_generator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <optional>
#include <set>

#include "core/modButtonClicked.h"
#include "environment/basic_lines.h"
#include "environment/text.h"
#include "memory/memory_code_pane.h"
#include "memory/memory_environment.h"

namespace brimwork {
namespace module_generator_test {

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

/// Procedures declared at the start of a line, Type and Enum members left out.
std::vector<GeneratedProcedure> DeclaredProcedures(const GeneratedModule& module) {
  std::vector<GeneratedProcedure> declared;
  Continues above = Continues::kNothing;
  bool inType = false;
  for (const std::string_view line : LinesOf(module)) {
    if (inType) {
      inType = !ClosesTypeBlock(line);
    } else if (above == Continues::kNothing) {
      inType = OpensTypeBlock(line);
      if (const auto found = ParseDeclaration(line)) {
        declared.push_back({std::string(found->name), std::string(found->word), found->kind});
      }
    }
    above = ContinuedBelow(line, above);
  }
  return declared;
}

/// The module as "Indent All Procedures" leaves it.
std::string Indented(const GeneratedModule& module) {
  MemoryEnvironment environment;
  const auto pane = environment.Open("Generated", ModuleText::FromText(module.text));
  AddIn addIn(environment.Parts());
  ButtonClicked(addIn, "Indent All Procedures", true);
  return pane->Module()->Lines(1, pane->Module()->CountOfLines()) + "\r\n";
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
  EXPECT_THAT(DeclaredProcedures(module), ElementsAreArray(module.procedures));
}

TEST(ModuleGenerator, GivesEachProcedureOfWellFormedCodeANameOfItsOwn) {
  const GeneratedModule module = GenerateModule({});
  std::set<std::string> names;
  for (const GeneratedProcedure& procedure : module.procedures) names.insert(procedure.name);
  EXPECT_EQ(names.size(), module.procedures.size());
}

TEST(ModuleGenerator, ListsTheProceduresOfOddCodeFromTheTopDown) {
  for (unsigned seed = 1; seed <= kSeeds; ++seed) {
    const GeneratedModule module = GenerateModule(AllOptions(seed));
    std::vector<GeneratedProcedure> declared = DeclaredProcedures(module);
    // Only the second of two alternative heads is declared without being listed.
    for (const GeneratedProcedure& procedure : module.procedures) {
      const auto at = std::find_if(declared.begin(), declared.end(), [&](const auto& other) {
        return other.name == procedure.name && other.kind == procedure.kind;
      });
      ASSERT_NE(at, declared.end()) << procedure.name << ", seed " << seed;
      ASSERT_LE(at - declared.begin(), 1) << procedure.name << " is out of order, seed " << seed;
      declared.erase(declared.begin(), at + 1);
    }
    EXPECT_LE(declared.size(), 1U) << "seed " << seed;
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

TEST(ModuleGenerator, LaysTidyCodeOutAsTheIndenterDoes) {
  for (unsigned seed = 1; seed <= kSeeds; ++seed) {
    GeneratorOptions options;
    options.seed = seed;
    options.continuations = seed % 2 == 1;
    const GeneratedModule module = GenerateModule(options);
    EXPECT_EQ(Indented(module), module.text) << "seed " << seed;
  }
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
       {"Rem", "#If DEBUGGING Then", "Property Set ", ": total = 1: End Property",
        "' End Sub is missing below", "#Else", "' End Sub is not the end here",
        "\"End Sub: Loop ' Next\"", "Retry:", "    Sub As Long", "SHELFÄÖÜ", "Shelfäöü", "end sub",
        "EndGame", "PrüfeGröße", "public  static\tFunction", "' that is the End"}) {
    EXPECT_THAT(all, HasSubstr(std::string(oddity)));
  }
}

}  // namespace module_generator_test
}  // namespace brimwork

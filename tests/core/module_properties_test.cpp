// What holds for every module, checked on generated ones: half-written, messy and unusual code
// included. A failure names its seed.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "environment/text.h"
#include "support/commanded_module.h"
#include "support/every_command.h"
#include "support/kept_lines.h"
#include "support/module_generator.h"

namespace brimwork {
namespace module_properties_test {

constexpr unsigned kSeeds = 300;

constexpr const char* kIndent = "Indent All Procedures";
constexpr const char* kNumber = "Add Line Numbers";
constexpr const char* kUnnumber = "Remove Line Numbers";
constexpr const char* kComment = "Comment All Procedures";
constexpr const char* kCleanUp = "Code Clean Up";

/// The first line that differs, "" when none does: a whole module is too much to read.
std::string Difference(const std::string& expected, const std::string& actual) {
  if (expected == actual) return "";
  const auto left =
      std::mismatch(expected.begin(), expected.end(), actual.begin(), actual.end()).first;
  const auto line = 1 + std::count(expected.begin(), left, '\n');
  const auto lineOf = [line](const std::string& text) {
    const auto lines = SplitLines(text);
    const auto at = static_cast<std::size_t>(line - 1);
    return at < lines.size() ? '[' + std::string(lines[at]) + ']' : "nothing";
  };
  return "line " + std::to_string(line) + " is " + lineOf(actual) + " instead of " +
         lineOf(expected);
}

/// The module without blanks behind its lines' leading tabs. The indenter drops outer blanks first
/// and leading tabs then, so it keeps such blanks, and takes them in the next run.
std::string WithoutBlanksBehindLeadingTabs(const std::string& text) {
  std::string result;
  for (const std::string_view line : SplitLines(text)) {
    if (!result.empty()) result += "\r\n";
    const std::string_view code = TrimLeft(line, " \t");
    const std::string_view indent = line.substr(0, line.size() - code.size());
    result.append(Contains(indent, "\t") ? "\t" : indent).append(code);
  }
  return result;
}

TEST(ModuleProperties, IndentingAModuleAgainChangesNothing) {
  for (unsigned seed = 1; seed <= kSeeds; ++seed) {
    const std::string text = AnyText(seed);
    CommandedModule module(WithoutBlanksBehindLeadingTabs(text));
    const std::string once = module.After(kIndent);
    ASSERT_EQ(Difference(once, module.After(kIndent)), "") << "seed " << seed;
  }
}

/// A keyword behind such blanks is not seen before they are gone, so the first run may stop where
/// the second does not; the lines below were then not read once, and such modules are left out.
TEST(ModuleProperties, IndentingAModuleOnceMoreTakesOnlyBlanksThatStoodBehindLeadingTabs) {
  int compared = 0;
  for (unsigned seed = 1; seed <= kSeeds; ++seed) {
    CommandedModule module(GenerateModule(NumberedOptions(seed)).text);
    module.After(kIndent);
    if (module.SkippedErrors() > 0) continue;
    ++compared;
    const std::string twice = module.After(kIndent);
    ASSERT_EQ(Difference(twice, module.After(kIndent)), "") << "seed " << seed;
  }
  EXPECT_GT(compared, static_cast<int>(kSeeds / 2));
}

bool HasLineNumbers(const std::string& text) {
  const auto lines = SplitLines(text);
  return std::any_of(lines.begin(), lines.end(), [](std::string_view line) {
    return WithoutNumber(line) != TrimBlanksAndTabs(line);
  });
}

/// Left out are modules in which a block ends that did not begin in its procedure: there indenting
/// stops, the lines below stay as they came, and taking numbers off has changed how they came. Line
/// numbers that were there before are taken off with the others, so there are to be none.
TEST(ModuleProperties, AddingAndRemovingLineNumbersLeavesAModuleAsIndentingItDoes) {
  int compared = 0;
  for (unsigned seed = 1; seed <= kSeeds; ++seed) {
    const std::string text = GenerateModule(OddOptions(seed)).text;
    CommandedModule indented(text);
    indented.After(kIndent);
    indented.After(kIndent);  // blanks behind leading tabs go with the second run
    if (indented.SkippedErrors() > 0 || HasLineNumbers(text)) continue;
    ++compared;
    CommandedModule numbered(text);
    numbered.After(kNumber);
    numbered.After(kUnnumber);
    ASSERT_EQ(Difference(indented.Text(), numbered.After(kIndent)), "") << "seed " << seed;
  }
  EXPECT_GT(compared, static_cast<int>(kSeeds / 3));
}

TEST(ModuleProperties, CommentingAModuleAgainChangesNothing) {
  for (unsigned seed = 1; seed <= kSeeds; ++seed) {
    CommandedModule module(AnyText(seed));
    const std::string once = module.After(kComment);
    ASSERT_EQ(Difference(once, module.After(kComment)), "") << "seed " << seed;
  }
}

int CountOf(std::string_view part, std::string_view text) {
  return static_cast<int>(Split(text, part).size()) - 1;
}

std::string WithoutDeclarations(const std::string& text) {
  CommandedModule module(text);
  const int first = module.Module().CountOfDeclarationLines() + 1;
  return module.Module().Lines(first, module.Module().CountOfLines());
}

TEST(ModuleProperties, CleaningUpTwiceOnOneDayWritesOneHeader) {
  constexpr std::string_view kHeaderLine = "'  Published Date: 11/21/2026";
  for (unsigned seed = 1; seed <= kSeeds; ++seed) {
    const std::string text = GenerateModule(NumberedOptions(seed)).text;
    // Where there are no declarations the header belongs to the first procedure.
    CommandedModule module(seed % 4 == 0 ? WithoutDeclarations(text) : text);
    ASSERT_EQ(CountOf(kHeaderLine, module.After(kCleanUp)), 1) << "seed " << seed;
    ASSERT_EQ(CountOf(kHeaderLine, module.After(kCleanUp)), 1) << "seed " << seed;
  }
}

bool AddsToAnyModule(const DispatchedCommand& command) {
  return command.caption == "Standard Header" || command.caption == "Adapted Header" ||
         command.caption == "Insert Time Stamp";
}

/// The generated module down to its last declaration line, which leaves nothing but Types, Enums,
/// constants, Declare statements and remarks.
std::string DeclarationsOf(unsigned seed) {
  CommandedModule module(GenerateModule(OddOptions(seed)).text);
  return module.Module().Lines(1, module.Module().CountOfDeclarationLines());
}

TEST(ModuleProperties, AModuleWithoutProceduresStaysAsItIs) {
  std::vector<std::string> texts = {"", "\r\n", "  ", "' End Sub", "Dim a As Long \r\n \t\r\n\r\n"};
  for (unsigned seed = 1; seed <= 10; ++seed) texts.push_back(DeclarationsOf(seed));
  for (const DispatchedCommand& command : EveryCommand()) {
    if (AddsToAnyModule(command)) continue;
    for (const std::string& text : texts) {
      CommandedModule module(text);
      const std::string before = module.Text();
      const int lines = module.Module().CountOfLines();
      for (const int line : {1, lines / 2, lines}) {
        if (line > 0) module.PutCaretBehind(line);
        ASSERT_EQ(Difference(before, module.After(command)), "") << command.Title();
      }
    }
  }
}

}  // namespace module_properties_test
}  // namespace brimwork

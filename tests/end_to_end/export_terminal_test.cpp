// The progress of a long export, which only a terminal gets.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "end_to_end/workplace.h"
#include "support/posix/program.h"

namespace brimwork {
namespace export_terminal_test {

/// What the terminal gets of an export whose input comes so late that the run is a long one.
std::string ShownOnSlowInput(const std::string& options) {
  Workplace place;
  std::string module;
  for (int i = 0; i < 3000; ++i) module += "Call Work(" + std::to_string(i) + ")\n";
  place.Write("long.bas", module);
  ProgramCall call = place.CallOf({});
  call.variables["brimwork"] = BRIMWORK_COMMAND;
  call.words = {"/bin/sh", "-c",
                "(sleep 1.2; cat long.bas) | \"$brimwork\" export --keywords If " + options};
  call.errorIsTerminal = true;
  const ProgramResult result = RunProgram(call);
  EXPECT_EQ(result.exitCode, 0);
  return result.terminal;
}

TEST(ExportAtATerminal, ShowsItsProgressAndWipesItAway) {
  if (!HasPseudoTerminal()) GTEST_SKIP() << "this system opens no pseudo-terminal";
  for (const char* format : {"html", "rtf"}) {
    const std::string shown = ShownOnSlowInput("--format " + std::string(format) + " -");
    EXPECT_THAT(shown, testing::StartsWith("\r\x1b[K<standard input>: "));
    EXPECT_THAT(shown, testing::ContainsRegex("[0-9]%"));
    EXPECT_THAT(shown, testing::EndsWith("\r\x1b[K"));
  }
}

TEST(ExportAtATerminal, CountsTheFiles) {
  if (!HasPseudoTerminal()) GTEST_SKIP() << "this system opens no pseudo-terminal";
  EXPECT_THAT(ShownOnSlowInput("--format html -o out - long.bas"), testing::HasSubstr(" of 2: "));
}

TEST(ExportAtATerminal, ShowsNoProgressWithQuiet) {
  if (!HasPseudoTerminal()) GTEST_SKIP() << "this system opens no pseudo-terminal";
  EXPECT_EQ(ShownOnSlowInput("-q --format html -"), "");
}

}  // namespace export_terminal_test
}  // namespace brimwork

// What a terminal gets that a file does not: colours and progress.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "end_to_end/sources.h"
#include "end_to_end/workplace.h"
#include "support/posix/program.h"

namespace brimwork {
namespace terminal_test {

using testing::HasSubstr;
using testing::Not;

constexpr const char* kEscape = "\x1b[";

class Terminal : public testing::Test {
 protected:
  Terminal() { place.Write("a.bas", kMessy); }

  std::string DiffOnTerminal(const Words& options = {}) const {
    Words words{"indent", "--diff"};
    words.insert(words.end(), options.begin(), options.end());
    words.push_back("a.bas");
    ProgramCall call = place.CallOf(words);
    call.outIsTerminal = true;
    const ProgramResult result = RunProgram(call);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.terminal, HasSubstr("        Work"));
    return result.terminal;
  }

  Workplace place;
};

TEST_F(Terminal, GetsAColouredDiff) {
  if (!HasPseudoTerminal()) GTEST_SKIP() << "this system opens no pseudo-terminal";
  const std::string diff = DiffOnTerminal();
  EXPECT_THAT(diff, HasSubstr("\x1b[31m-Work"));
  EXPECT_THAT(diff, HasSubstr("\x1b[32m+        Work"));
}

TEST_F(Terminal, GetsNoColoursWithNoColor) {
  if (!HasPseudoTerminal()) GTEST_SKIP() << "this system opens no pseudo-terminal";
  place.SetVariable("NO_COLOR", "1");
  EXPECT_THAT(DiffOnTerminal(), Not(HasSubstr(kEscape)));
  EXPECT_THAT(DiffOnTerminal({"--color", "always"}), HasSubstr(kEscape));
}

TEST_F(Terminal, GetsNoColoursWhenTheyAreTurnedOff) {
  if (!HasPseudoTerminal()) GTEST_SKIP() << "this system opens no pseudo-terminal";
  EXPECT_THAT(DiffOnTerminal({"--color", "never"}), Not(HasSubstr(kEscape)));
  EXPECT_THAT(DiffOnTerminal({"--color", "auto"}), HasSubstr(kEscape));
}

TEST_F(Terminal, IsNeededForColoursUnlessTheyAreAlwaysWanted) {
  EXPECT_THAT(place.Run({"indent", "--diff", "a.bas"}).out, Not(HasSubstr(kEscape)));
  EXPECT_THAT(place.Run({"indent", "--diff", "--color", "always", "a.bas"}).out,
              HasSubstr("\x1b[32m+        Work"));
}

TEST_F(Terminal, AColourChoiceThatIsNoneIsAnError) {
  const ProgramResult result = place.Run({"indent", "--diff", "--color", "pink", "a.bas"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.error, HasSubstr("--color"));
  EXPECT_EQ(LinesOf(result.error).size(), 1u) << result.error;
}

/// Waits for its input longer than a run may take without showing how far it is.
ProgramResult RunOnSlowInput(const Workplace& place, const std::string& options) {
  std::string longModule;
  for (int i = 0; i < 2000; ++i) longModule += kMessy;
  place.Write("long.bas", longModule);
  ProgramCall call = place.CallOf({});
  call.variables["brimwork"] = BRIMWORK_COMMAND;
  call.words = {"/bin/sh", "-c",
                "(sleep 1.2; cat long.bas) | \"$brimwork\" indent --check " + options + " -"};
  call.errorIsTerminal = true;
  return RunProgram(call);
}

TEST_F(Terminal, ShowsTheProgressOfALongRunAndWipesItAway) {
  if (!HasPseudoTerminal()) GTEST_SKIP() << "this system opens no pseudo-terminal";
  const std::string shown = RunOnSlowInput(place, "").terminal;
  EXPECT_THAT(shown, testing::ContainsRegex("[0-9]%"));
  EXPECT_THAT(shown, testing::EndsWith("\r\x1b[K"));
}

TEST_F(Terminal, ShowsNoProgressWithQuiet) {
  if (!HasPseudoTerminal()) GTEST_SKIP() << "this system opens no pseudo-terminal";
  EXPECT_EQ(RunOnSlowInput(place, "--quiet").terminal, "");
}

TEST_F(Terminal, ShowsNoProgressOfAShortRun) {
  if (!HasPseudoTerminal()) GTEST_SKIP() << "this system opens no pseudo-terminal";
  ProgramCall call = place.CallOf({"indent", "--check", "a.bas"});
  call.errorIsTerminal = true;
  EXPECT_THAT(RunProgram(call).terminal, Not(HasSubstr("%")));
}

TEST_F(Terminal, IsNeededForProgress) {
  place.Write("long.bas", std::string(kMessy));
  const ProgramResult result =
      place.Shell("(sleep 1.2; cat long.bas) | \"$brimwork\" indent --check -");
  EXPECT_EQ(result.error, "");
}

}  // namespace terminal_test
}  // namespace brimwork

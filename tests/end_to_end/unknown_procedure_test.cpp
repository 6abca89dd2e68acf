// A procedure name that no file has.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "end_to_end/sources.h"
#include "end_to_end/workplace.h"
#include "support/posix/program.h"

namespace brimwork {
namespace unknown_procedure_test {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

TEST(UnknownProcedure, PrintsNothingAndNamesTheFile) {
  Workplace place;
  place.Write("a.bas", kMessy);
  const ProgramResult result = place.Run({"number", "--procedure", "Gone", "a.bas"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.out, "");
  EXPECT_THAT(result.error, AllOf(HasSubstr("a.bas"), HasSubstr("\"Gone\"")));
}

TEST(TimeStampWithoutALine, AsksForWhatItTakes) {
  Workplace place;
  place.Write("a.bas", kMessy);
  const ProgramResult result = place.Run({"timestamp", "a.bas"});
  EXPECT_THAT(result.error, AllOf(HasSubstr("--line"), Not(HasSubstr("--procedure"))));
}

TEST(ShortRunOnATerminal, WritesNothingAtAll) {
  if (!HasPseudoTerminal()) GTEST_SKIP() << "this system opens no pseudo-terminal";
  Workplace place;
  place.Write("a.bas", kMessy);
  ProgramCall call = place.CallOf({"indent", "--check", "a.bas"});
  call.errorIsTerminal = true;
  EXPECT_EQ(RunProgram(call).terminal, "");
}

}  // namespace unknown_procedure_test
}  // namespace brimwork

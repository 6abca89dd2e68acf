// Settings of one run: --set, --steps and --tab-width.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "end_to_end/sources.h"
#include "end_to_end/workplace.h"

namespace brimwork {
namespace run_settings_test {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

class RunSettings : public testing::Test {
 protected:
  RunSettings() { place.Write("m.bas", "Sub Main()\nWork\nEnd Sub\n"); }

  Workplace place;
};

TEST_F(RunSettings, CanBeGivenSeveralTimes) {
  place.Write("m.bas", "Option Explicit\nSub Main()\nEnd Sub\n");
  const ProgramResult result = place.Run({"cleanup", "--set", "Separator='--", "--set", "Header='H",
                                          "--set", "CleanUpCodeOptions=Header,Comment", "m.bas"});
  EXPECT_EQ(result.out, "'H\nOption Explicit\n'--\nSub Main()\nEnd Sub 'Main()\n'--\n");
}

TEST_F(RunSettings, TheLastOfOneKeyCounts) {
  const ProgramResult result =
      place.Run({"header", "--set", "Header='1", "--set", "Header='2", "m.bas"});
  EXPECT_EQ(result.out, "'2\nSub Main()\nWork\nEnd Sub\n");
}

TEST_F(RunSettings, TakeAKeyInAnyLetterCase) {
  const ProgramResult result = place.Run({"header", "--set", "hEADER='1", "m.bas"});
  EXPECT_EQ(result.out, "'1\nSub Main()\nWork\nEnd Sub\n");
}

TEST_F(RunSettings, AreNotStored) {
  place.Run({"header", "--set", "Header='1", "m.bas"});
  EXPECT_THAT(place.Names(), testing::ElementsAre("m.bas"));
}

TEST_F(RunSettings, AValueMayHoldAnEqualsSign) {
  const ProgramResult result = place.Run({"header", "--set", "Header='a=b=c", "m.bas"});
  EXPECT_THAT(result.out, testing::StartsWith("'a=b=c\n"));
}

TEST_F(RunSettings, AValueMayHaveSeveralLinesWhichTakeTheFilesLineEnds) {
  place.Write("m.bas", "Sub Main()\r\nWork\r\nEnd Sub\r\n");
  for (const char* value : {"ErrorHandling=a\nb", "ErrorHandling=a\r\nb"}) {
    const ProgramResult result = place.Run({"error-handling", "--set", value, "m.bas"});
    EXPECT_THAT(result.out, HasSubstr("ErrorTrap:\r\na\r\nb\r\nEnd Sub\r\n"));
  }
}

TEST_F(RunSettings, AnEmptyValueIsAValue) {
  const ProgramResult result = place.Run({"error-handling", "--set", "ErrorHandling=", "m.bas"});
  EXPECT_THAT(result.out, AllOf(HasSubstr("ErrorTrap:\n\nEnd Sub\n"), Not(HasSubstr("TEST"))));
}

TEST_F(RunSettings, AnUnknownKeyIsAnErrorThatNamesTheNearestOne) {
  const ProgramResult result = place.Run({"comment", "--set", "Seprator='--", "m.bas"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.out, "");
  EXPECT_THAT(result.error,
              AllOf(HasSubstr("\"Seprator\""), HasSubstr("did you mean \"Separator\"?")));
}

TEST_F(RunSettings, AKeyNeedsAValue) {
  const ProgramResult result = place.Run({"comment", "--set", "Separator", "m.bas"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.error, HasSubstr("KEY=VALUE"));
}

TEST_F(RunSettings, StandInFrontOfTheStoredOnes) {
  place.Run({"settings", "set", "Header", "'stored"});
  EXPECT_THAT(place.Run({"header", "m.bas"}).out, testing::StartsWith("'stored\n"));
  EXPECT_THAT(place.Run({"header", "--set", "Header='run", "m.bas"}).out,
              testing::StartsWith("'run\n"));
}

TEST_F(RunSettings, StepsOfTheCleanUpCanBeChosen) {
  const ProgramResult result = place.Run({"cleanup", "--steps", "Indent", "m.bas"});
  EXPECT_EQ(result.out, "Sub Main()\n    Work\nEnd Sub\n");
}

TEST_F(RunSettings, StepsStandInFrontOfTheStoredOptions) {
  place.Run({"settings", "set", "CleanUpCodeOptions", "Comment"});
  EXPECT_THAT(place.Run({"cleanup", "m.bas"}).out, HasSubstr("End Sub 'Main()"));
  EXPECT_EQ(place.Run({"cleanup", "--steps", "Indent", "m.bas"}).out,
            "Sub Main()\n    Work\nEnd Sub\n");
}

TEST_F(RunSettings, AnUnknownStepIsAnErrorThatNamesThemAll) {
  const ProgramResult result = place.Run({"cleanup", "--steps", "Indent,Numbers", "m.bas"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.out, "");
  EXPECT_THAT(result.error, AllOf(HasSubstr("\"Numbers\""), HasSubstr("LineNumber"),
                                  HasSubstr("Header"), HasSubstr("Comment")));
}

TEST_F(RunSettings, TheTabWidthIsTheIndentsUnit) {
  for (const int width : {0, 1, 2, 8}) {
    const ProgramResult result =
        place.Run({"indent", "--tab-width", std::to_string(width), "m.bas"});
    EXPECT_EQ(result.out, "Sub Main()\n" + std::string(static_cast<std::size_t>(width), ' ') +
                              "Work\nEnd Sub\n");
  }
  EXPECT_EQ(place.Run({"indent", "m.bas"}).out, "Sub Main()\n    Work\nEnd Sub\n");
}

TEST_F(RunSettings, ATabWidthOutOfRangeIsAnError) {
  for (const char* width : {"-1", "33", "wide"}) {
    const ProgramResult result = place.Run({"indent", "--tab-width", width, "m.bas"});
    EXPECT_EQ(result.exitCode, 2) << width;
    EXPECT_THAT(result.error, HasSubstr("--tab-width")) << width;
  }
}

}  // namespace run_settings_test
}  // namespace brimwork

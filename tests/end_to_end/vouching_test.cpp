// Results that brimwork cannot vouch for, and what it warns of.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "end_to_end/sources.h"
#include "end_to_end/workplace.h"

namespace brimwork {
namespace vouching_test {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

// The label for the closing line goes to the first quote, which stands in a literal here.
constexpr const char* kQuoteInClosingLine =
    "Option Explicit\n"
    "Sub A()\n"
    "x = \"it's\": End Sub\n";

class Vouching : public testing::Test {
 protected:
  Vouching() { place.Write("m.bas", kQuoteInClosingLine); }

  Workplace place;
};

TEST_F(Vouching, AResultThatLosesCodeIsAFaultOfBrimworkAndTheFileStays) {
  const ProgramResult result = place.Run({"comment", "--write", "m.bas"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.error, AllOf(StartsWith("brimwork: m.bas:3: "), HasSubstr("fault of brimwork"),
                                  HasSubstr("x = \"it's\": End Sub"), HasSubstr("--unsafe")));
  EXPECT_EQ(LinesOf(result.error).size(), 1u) << result.error;
  EXPECT_EQ(place.Read("m.bas"), kQuoteInClosingLine);
}

TEST_F(Vouching, SuchAResultIsNeitherPrintedNorShownNorCounted) {
  for (const char* mode : {"--diff", "--check", "--quiet"}) {
    const ProgramResult result = place.Run({"comment", mode, "m.bas"});
    EXPECT_EQ(result.exitCode, 2) << mode;
    EXPECT_EQ(result.out, "") << mode;
  }
}

TEST_F(Vouching, UnsafeWritesItAllTheSame) {
  const ProgramResult result = place.Run({"comment", "--write", "--unsafe", "m.bas"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_THAT(place.Read("m.bas"), HasSubstr("x = \"it 'A()\n"));
}

TEST_F(Vouching, AlsoHoldsForTheStepsOfACleanUp) {
  const ProgramResult result = place.Run({"cleanup", "--write", "m.bas"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.error, HasSubstr("fault of brimwork"));
  EXPECT_EQ(place.Read("m.bas"), kQuoteInClosingLine);
}

TEST_F(Vouching, LeavesTheOtherFilesOfTheRunAlone) {
  place.Write("n.bas", "Sub B()\nEnd Sub\n");
  const ProgramResult result = place.Run({"comment", "--write", "--quiet", "m.bas", "n.bas"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(place.Read("n.bas"), HasSubstr("End Sub 'B()\n"));
}

class Warnings : public testing::Test {
 protected:
  /// The places and first words of the warnings.
  std::vector<std::string> WarningsOf(const std::string& command, const std::string& module) const {
    place.Write("m.frm", module);
    const ProgramResult result = place.Run({command, "--check", "--quiet", "m.frm"});
    EXPECT_LE(result.exitCode, 1);
    return LinesOf(result.error);
  }

  Workplace place;
};

TEST_F(Warnings, NameTheLineOfTheFileNotOfTheModule) {
  EXPECT_THAT(WarningsOf("indent",
                         "VERSION 5.00\nBegin VB.Form F\nEnd\nAttribute VB_Name = \"F\"\n"
                         "Sub A()\nAttribute A.VB_Description = \"d\"\nNext\nNext\nEnd Sub\n"),
              ElementsAre(StartsWith("m.frm:8: warning: indenting stopped here")));
}

TEST_F(Warnings, AreGivenForConditionalLinesThatGetALabel) {
  EXPECT_THAT(WarningsOf("number", "Sub A()\n#If X Then\nBeep\n#End If\nEnd Sub\n"),
              ElementsAre(AllOf(StartsWith("m.frm:2: warning: "), HasSubstr("#If")),
                          AllOf(StartsWith("m.frm:4: warning: "), HasSubstr("#End"))));
}

TEST_F(Warnings, AreGivenForConditionalLinesThatLoseALabel) {
  EXPECT_THAT(WarningsOf("unnumber", "Sub A()\n2: #If X Then\nBeep\n4: #End If\nEnd Sub\n"),
              ElementsAre(AllOf(StartsWith("m.frm:2: warning: "), HasSubstr("#If")),
                          AllOf(StartsWith("m.frm:4: warning: "), HasSubstr("#End"))));
}

TEST_F(Warnings, AreGivenForEveryKindOfJumpWhoseTargetLosesItsLabel) {
  for (const char* jump : {"GoTo 90", "GoSub 90", "On Error GoTo 90", "Resume 90", "If x Then 90",
                           "If x Then y = 1 Else 90", "On x GoTo 80, 90", "On x GoSub 90",
                           "10: GoTo 90", "x = 1: GoTo 90"}) {
    const std::string module = "Sub A()\n" + std::string(jump) + "\n90: x = 2\nEnd Sub\n";
    EXPECT_THAT(WarningsOf("unnumber", module), ElementsAre(StartsWith("m.frm:3: warning: ")))
        << jump;
  }
}

TEST_F(Warnings, AreNotGivenForJumpsToNamesOrInLiterals) {
  EXPECT_THAT(WarningsOf("unnumber",
                         "Sub A()\nGoTo Done\nx = \"GoTo 90\" ' GoTo 90\nOn Error GoTo 0\n"
                         "90: x = 2\nDone:\nEnd Sub\n"),
              ElementsAre());
}

TEST_F(Warnings, AreNotGivenWhenATargetKeepsItsNumber) {
  EXPECT_THAT(WarningsOf("number", "Sub A()\nGoTo 3\n3: x = 2\nEnd Sub\n"), ElementsAre());
}

TEST_F(Warnings, AreGivenForASecondErrorTrap) {
  EXPECT_THAT(WarningsOf("error-handling", "Sub A()\nErrorTrap: x = 2\nEnd Sub\n"),
              ElementsAre(AllOf(StartsWith("m.frm:1: warning: "), HasSubstr("ErrorTrap"))));
}

TEST_F(Warnings, AreGivenForAnExitThatDoesNotFit) {
  EXPECT_THAT(WarningsOf("error-handling",
                         "Sub Ok()\nx = 1\nEnd Sub\nFunction SubTotal()\nx = 1\nEnd Function\n"
                         "Property Get Functions()\nx = 1\nEnd Property\n"),
              ElementsAre(AllOf(StartsWith("m.frm:4: warning: "), HasSubstr("Exit Sub")),
                          AllOf(StartsWith("m.frm:7: warning: "), HasSubstr("Exit Function"))));
}

TEST_F(Warnings, OfACleanUpAreThoseOfItsSteps) {
  EXPECT_THAT(WarningsOf("cleanup", "Function SubTotal()\nGoTo 90\n90: x = 1\nEnd Function\n"),
              testing::UnorderedElementsAre(HasSubstr("Exit Sub"), HasSubstr("GoTo at line 2")));
}

}  // namespace vouching_test
}  // namespace brimwork

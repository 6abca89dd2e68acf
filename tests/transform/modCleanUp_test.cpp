#include "transform/modCleanUp.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "environment/run_time_error.h"
#include "settings/setting_keys.h"
#include "support/opened_module.h"
#include "transform/modCommentCode.h"

namespace brimwork {
namespace modCleanUp_test {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string S = "'" + std::string(89, '=');

/// The commands that a clean-up hands to the dispatcher, "+" in front of those for the whole
/// module.
TextLines StepsOf(OpenedModule& opened) {
  TextLines steps;
  CleanUpCode(opened.Commands(), [&](std::string_view caption, bool wholeModule) {
    steps.push_back((wholeModule ? "+" : "") + std::string(caption));
  });
  return steps;
}

TextLines StepsWith(std::string_view options) {
  OpenedModule opened({"Option Explicit", "Sub A()", "End Sub"});
  opened.Set(setting::kCleanUpCodeOptions, options);
  return StepsOf(opened);
}

TEST(CleanUp, RunsItsStepsInAFixedOrder) {
  EXPECT_THAT(StepsWith("Indent,Error,Comment,Header,SpellCheck,LineNumber"),
              ElementsAre("+Remove Line Numbers", "Spell Check - Quotes and Comments",
                          "Standard Header", "+Comment All Procedures", "+Insert Error Handling",
                          "+Indent All Procedures", "+Add Line Numbers"));
}

TEST(CleanUp, RunsAllButTheSpellCheckByDefault) {
  OpenedModule opened({"Option Explicit", "Sub A()", "End Sub"});
  EXPECT_THAT(StepsOf(opened),
              ElementsAre("+Remove Line Numbers", "Standard Header", "+Comment All Procedures",
                          "+Insert Error Handling", "+Indent All Procedures", "+Add Line Numbers"));
}

TEST(CleanUp, EachOptionChoosesItsSteps) {
  EXPECT_THAT(StepsWith("LineNumber"), ElementsAre("+Remove Line Numbers", "+Add Line Numbers"));
  EXPECT_THAT(StepsWith("SpellCheck"), ElementsAre("Spell Check - Quotes and Comments"));
  EXPECT_THAT(StepsWith("Header"), ElementsAre("Standard Header"));
  EXPECT_THAT(StepsWith("Comment"), ElementsAre("+Comment All Procedures"));
  EXPECT_THAT(StepsWith("Error"), ElementsAre("+Insert Error Handling"));
  EXPECT_THAT(StepsWith("Indent"), ElementsAre("+Indent All Procedures"));
  EXPECT_THAT(StepsWith(""), IsEmpty());
}

TEST(CleanUp, AnOptionIsFoundAnywhereInTheTextAndInItsOwnCase) {
  EXPECT_THAT(StepsWith("NoLineNumber"), ElementsAre("+Remove Line Numbers", "+Add Line Numbers"));
  EXPECT_THAT(StepsWith("indent, ERROR"), IsEmpty());
}

TEST(CleanUp, YieldsAfterEachOfTheFirstSixTests) {
  for (const char* options : {"", "Indent", "Header,Error,Indent,Comment,LineNumber,SpellCheck"}) {
    OpenedModule opened({"Sub A()", "End Sub"});
    opened.Set(setting::kCleanUpCodeOptions, options);
    StepsOf(opened);
    EXPECT_EQ(opened.environment.messageLoop.Count(), 6) << options;
  }
}

TEST(CleanUp, AStepThatFailsDoesNotStopTheOthers) {
  OpenedModule opened({"Sub A()", "End Sub"});
  int steps = 0;
  CleanUpCode(opened.Commands(), [&](std::string_view, bool) {
    ++steps;
    throw RunTimeError(error_number::kInvalidProcedureCall, "failed");
  });
  EXPECT_EQ(steps, 6);
}

// Whether a header is there.

bool AddsHeaderTo(OpenedModule& opened) {
  opened.Set(setting::kCleanUpCodeOptions, "Header");
  return !StepsOf(opened).empty();
}

TEST(CleanUp, AddsNoHeaderWhereTheStandardOrTheAdaptedOneStands) {
  for (const char* caption : {"Standard Header", "Adapted Header"}) {
    OpenedModule opened({"Option Explicit", "Sub A()", "End Sub"});
    opened.ClickAt(1, caption);
    EXPECT_FALSE(AddsHeaderTo(opened)) << caption;
  }
}

TEST(CleanUp, FindsAHeaderDirectlyAboveTheFirstDeclaration) {
  OpenedModule opened({"Sub A()", "End Sub"});
  opened.ClickAt(1, "Standard Header");
  ASSERT_EQ(opened.Module().CountOfDeclarationLines(), 0);
  EXPECT_FALSE(AddsHeaderTo(opened));
}

TEST(CleanUp, FindsAHeaderBelowOtherDeclarations) {
  OpenedModule opened({"Option Explicit", "' mine", "", "Sub A()", "End Sub"});
  opened.Set(setting::kHeader, "' mine");
  EXPECT_FALSE(AddsHeaderTo(opened));
}

TEST(CleanUp, DoesNotFindAHeaderBelowTheFirstDeclaration) {
  OpenedModule opened({"Option Explicit", "Sub A()", "' mine", "End Sub"});
  opened.Set(setting::kHeader, "' mine");
  EXPECT_TRUE(AddsHeaderTo(opened));
}

TEST(CleanUp, AHeaderOfAnotherDayIsNotRecognised) {
  OpenedModule opened({"Option Explicit", "Sub A()", "End Sub"});
  opened.ClickAt(1, "Standard Header");
  opened.environment.clock = FixedClock("11/22/2026", "11/22/2026 9:00:00 AM");
  EXPECT_TRUE(AddsHeaderTo(opened));
}

TEST(CleanUp, AnEmptyHeaderCountsAsContained) {
  for (const auto key : {setting::kHeader, setting::kAdaptedHeader}) {
    OpenedModule opened({"Sub A()", "End Sub"});
    opened.Set(key, "");
    EXPECT_FALSE(AddsHeaderTo(opened)) << key;
  }
}

// The whole clean-up.

TEST(CleanUp, IndentAloneIndentsEveryProcedureAndChangesNothingElse) {
  OpenedModule opened({"  Dim x", "Sub A()", "y = 1", "End Sub", "", "  Sub B()", "If z Then",
                       "w = 1", "End If", "End Sub", "  ' rest"});
  opened.Set(setting::kCleanUpCodeOptions, "Indent");
  opened.ClickAll("Code Clean Up");
  EXPECT_THAT(opened.Lines(),
              ElementsAre("  Dim x", "Sub A()", "    y = 1", "End Sub", "", "  Sub B()",
                          "    If z Then", "        w = 1", "    End If", "End Sub", "  ' rest"));
}

TEST(CleanUp, DoesAllItsStepsByDefault) {
  EXPECT_THAT(
      AfterClickAll("Code Clean Up", {"Option Explicit", "", "Sub A()", "x = 1", "End Sub"}),
      ElementsAre(S, "'  Code Page Name", "'  Description and Useage", S,
                  "'  Created By: Your Name Here", "'  Published Date: 11/21/2026",
                  "'  WebSite: Website Name and Address", S, "Option Explicit", S, "Sub A()",
                  "12:        On Error GoTo ErrorTrap", "13:        x = 1",
                  "14:    ", "15:        Exit Sub",
                  "16:    ", "           ErrorTrap:", "18:        TEST HANDLE", "End Sub 'A()", S));
}

TEST(CleanUp, DoneTwiceOnOneDayAddsNoSecondHeader) {
  OpenedModule opened({"Sub A()", "x = 1", "End Sub"});
  opened.ClickAll("Code Clean Up");
  opened.ClickAll("Code Clean Up");
  const TextLines lines = opened.Lines();
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "'  Code Page Name"), 1);
}

TEST(CleanUp, LineNumbersComeOffFirstAndGoBackOnLast) {
  OpenedModule opened({"Sub A()", "99:    x = 1", "End Sub"});
  opened.Set(setting::kCleanUpCodeOptions, "LineNumber,Comment");
  opened.ClickAll("Code Clean Up");
  EXPECT_THAT(opened.Lines(), ElementsAre(S, "Sub A()", "3:         x = 1", "End Sub 'A()", S));
}

}  // namespace modCleanUp_test
}  // namespace brimwork

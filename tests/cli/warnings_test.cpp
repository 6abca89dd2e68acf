#include "cli/warnings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cli/vouch.h"

namespace brimwork {
namespace warnings_test {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::Field;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

using Lines = std::vector<std::string>;

auto WarningAt(int line, const std::string& part) {
  return AllOf(Field(&Warning::line, line), Field(&Warning::text, HasSubstr(part)));
}

Alignment Align(const Lines& before, const Lines& after) {
  Allowance allowance;
  allowance.labelsMayGo = allowance.labelsMayCome = true;
  allowance.handler = HandlerAllowance{{"TEST HANDLE"}, "", ""};
  Alignment alignment;
  EXPECT_FALSE(Vouch(VectorLines(before), VectorLines(after), allowance, &alignment));
  return alignment;
}

/// The warnings for one Sub that is the whole module.
std::vector<Warning> OfLabels(const Lines& before, const Lines& after,
                              std::function<int(int)> shownLine = {}) {
  const std::vector<ProcedureSpan> procedures = {
      {"A", "Sub", 1, 1, static_cast<int>(after.size())}};
  const VectorLines linesBefore(before);
  const VectorLines linesAfter(after);
  const Alignment alignment = Align(before, after);
  return LabelWarnings({linesBefore, linesAfter, alignment, procedures, std::move(shownLine)});
}

std::vector<Warning> OfHandlers(const Lines& before, const Lines& after,
                                const std::vector<ProcedureSpan>& procedures) {
  const VectorLines linesBefore(before);
  const VectorLines linesAfter(after);
  const Alignment alignment = Align(before, after);
  return HandlerWarnings({linesBefore, linesAfter, alignment, procedures, {}});
}

/// The same Sub with its line 3 labelled and unlabelled, and a jump in line 2.
std::vector<Warning> WhenLabelGoes(const std::string& jump, const std::string& labelled = "100: x",
                                   const std::string& unlabelled = "x") {
  return OfLabels({"Sub A()", jump, labelled, "End Sub"}, {"Sub A()", jump, unlabelled, "End Sub"});
}

TEST(LabelWarnings, AreNoneWhenNoJumpAimsAtANumber) {
  EXPECT_THAT(WhenLabelGoes("GoTo Retry"), IsEmpty());
  EXPECT_THAT(WhenLabelGoes("x = 100"), IsEmpty());
  EXPECT_THAT(WhenLabelGoes("GoTo 200"), IsEmpty());
}

TEST(LabelWarnings, AreNoneWhenTheLabelStays) {
  EXPECT_THAT(WhenLabelGoes("GoTo 100", "100: x", "100: x"), IsEmpty());
}

TEST(LabelWarnings, ALostTargetIsNamedWithTheJumpAndWhatToDo) {
  EXPECT_THAT(WhenLabelGoes("GoTo 100"),
              ElementsAre(Warning{3,
                                  "label 100 that GoTo at line 2 jumps to was removed; the jump no "
                                  "longer compiles: give the line a name as its label (Line100:) "
                                  "and jump to that"}));
}

TEST(LabelWarnings, EveryKindOfJumpCounts) {
  for (const char* jump :
       {"goto 100", "Go To 100", "GoSub 100", "Resume 100", "On Error GoTo 100",
        "On x GoTo 5, 100, 7", "On x GoSub 5,100", "If x Then 100", "If x Then y Else 100",
        "If x Then GoTo 0100", "x = 1: GOTO 100", "x = 1: If y Then Resume 100 Else z"}) {
    EXPECT_THAT(WhenLabelGoes(jump), ElementsAre(WarningAt(3, "label 100 "))) << jump;
  }
}

TEST(LabelWarnings, WhatOnlyLooksLikeAJumpDoesNotCount) {
  for (const char* jump :
       {"x = \"GoTo 100\"", "x = 1 ' GoTo 100", "Rem GoTo 100", "rs.Resume 100", "rs!GoTo 100",
        "GoTo Line100", "Resume Next: x = 100", "If x Then y = 100", "GoTo 5: x 100",
        "Resume 5, 100", "On Error GoTo -100"}) {
    EXPECT_THAT(WhenLabelGoes(jump), IsEmpty()) << jump;
  }
}

TEST(LabelWarnings, ZeroBehindOnErrorAndResumeIsNoLine) {
  EXPECT_THAT(WhenLabelGoes("On Error GoTo 0", "0: x"), IsEmpty());
  EXPECT_THAT(WhenLabelGoes("Resume 0", "0: x"), IsEmpty());
  EXPECT_THAT(WhenLabelGoes("GoTo 0", "0: x"), ElementsAre(WarningAt(3, "label 0 ")));
}

TEST(LabelWarnings, AListOfTargetsMayGoOnInTheNextLine) {
  EXPECT_THAT(OfLabels({"Sub A()", "On x GoTo 5, _", "100", "100: x", "End Sub"},
                       {"Sub A()", "On x GoTo 5, _", "100", "x", "End Sub"}),
              ElementsAre(WarningAt(4, "GoTo at line 3")));
}

TEST(LabelWarnings, ALabelThatAnotherNumberReplacesIsLost) {
  EXPECT_THAT(WhenLabelGoes("GoTo 100", "100: x", "3:     x"),
              ElementsAre(WarningAt(3, "was removed")));
  EXPECT_THAT(WhenLabelGoes("GoTo 100", "100 x", "3:     100 x"),
              ElementsAre(WarningAt(3, "was removed")));
}

TEST(LabelWarnings, ALabelThatMovesToAnotherLineIsOneWarning) {
  EXPECT_THAT(OfLabels({"Sub A()", "GoTo 4", "4: x", "y", "End Sub"},
                       {"Sub A()", "2:     GoTo 4", "3:     x", "4:     y", "End Sub"}),
              ElementsAre(WarningAt(3, "stands at another line now (line 4 before)")));
}

TEST(LabelWarnings, ASecondLineOfTheSameNumberIsNamed) {
  EXPECT_THAT(OfLabels({"Sub A()", "GoTo 4", " 4: x", "y", "End Sub"},
                       {"Sub A()", "2:     GoTo 4", "       4: x", "4:     y", "End Sub"}),
              ElementsAre(WarningAt(4,
                                    "the line number 4 was put here, but it stands at another "
                                    "line already, one that GoTo at line 2 jumps to")));
}

TEST(LabelWarnings, AJumpThatFindsItsTargetOnlyNowIsNamed) {
  EXPECT_THAT(
      OfLabels({"Sub A()", "GoTo 3", "x", "End Sub"}, {"Sub A()", "GoTo 3", "3:     x", "End Sub"}),
      ElementsAre(WarningAt(3, "GoTo at line 2 goes to it now")));
}

TEST(LabelWarnings, SeveralJumpsToOneLabelAreOneWarning) {
  EXPECT_THAT(OfLabels({"Sub A()", "GoTo 9", "GoTo 9", "Resume 9", "9: x", "End Sub"},
                       {"Sub A()", "GoTo 9", "GoTo 9", "Resume 9", "x", "End Sub"}),
              ElementsAre(WarningAt(5, "GoTo at line 2 (and 2 more)")));
}

TEST(LabelWarnings, NumbersAreThoseThatTheUserKnows) {
  EXPECT_THAT(OfLabels({"Sub A()", "GoTo 100", "100: x", "End Sub"},
                       {"Sub A()", "GoTo 100", "x", "End Sub"}, [](int line) { return line + 10; }),
              ElementsAre(WarningAt(3, "GoTo at line 12")));
}

TEST(LabelWarnings, AJumpInAnotherProcedureDoesNotCount) {
  const Lines before = {"Sub A()", "GoTo 5", "End Sub", "Sub B()", "5: x", "End Sub"};
  const Lines after = {"Sub A()", "GoTo 5", "End Sub", "Sub B()", "x", "End Sub"};
  const std::vector<ProcedureSpan> procedures = {{"A", "Sub", 1, 1, 3}, {"B", "Sub", 4, 4, 6}};
  const VectorLines linesBefore(before);
  const VectorLines linesAfter(after);
  const Alignment alignment = Align(before, after);
  EXPECT_THAT(LabelWarnings({linesBefore, linesAfter, alignment, procedures, {}}), IsEmpty());
}

TEST(LabelWarnings, EveryConditionalLineThatGetsALabelIsNamed) {
  EXPECT_THAT(
      OfLabels({"Sub A()", "#If X Then", "y", " #else", "#Const A = 1", "#End If", "End Sub"},
               {"Sub A()", "2:     #If X Then", "3:     y", "4:     #else", "5:     #Const A = 1",
                "6:     #End If", "End Sub"}),
      ElementsAre(WarningAt(2, "the line number 2 stands in front of #If now"),
                  WarningAt(4, "#else"), WarningAt(5, "#Const"), WarningAt(6, "#End")));
}

TEST(LabelWarnings, AConditionalLineThatLosesItsLabelIsNamed) {
  EXPECT_THAT(
      OfLabels({"Sub A()", "20: #If X Then", "End Sub"}, {"Sub A()", "#If X Then", "End Sub"}),
      ElementsAre(WarningAt(2, "the line number 20 was removed from in front of #If")));
}

TEST(LabelWarnings, AConditionalLineThatKeepsItsPlaceIsNotNamed) {
  EXPECT_THAT(
      OfLabels({"Sub A()", "#If X Then", "End Sub"}, {"Sub A()", "       #If X Then", "End Sub"}),
      IsEmpty());
}

Lines WithHandler(const Lines& body, const std::string& exit) {
  Lines lines = {body.front(), "On Error GoTo ErrorTrap"};
  lines.insert(lines.end(), body.begin() + 1, body.end() - 1);
  lines.insert(lines.end(), {"", exit, "", "ErrorTrap:", "TEST HANDLE", body.back()});
  return lines;
}

TEST(HandlerWarnings, AreNoneForAFirstHandlerThatFits) {
  EXPECT_THAT(OfHandlers({"Sub A()", "End Sub"}, WithHandler({"Sub A()", "End Sub"}, "Exit Sub"),
                         {{"A", "sub", 1, 1, 8}}),
              IsEmpty());
}

TEST(HandlerWarnings, ASecondErrorTrapIsNamedAtTheDeclaration) {
  const Lines before = {"Sub A()", "errortrap :", "x", "End Sub"};
  EXPECT_THAT(OfHandlers(before, WithHandler(before, "Exit Sub"), {{"A", "Sub", 1, 1, 10}}),
              ElementsAre(WarningAt(1, "Sub A had an ErrorTrap label already and has 2 now")));
}

TEST(HandlerWarnings, AnErrorTrapInACommentOrAnotherProcedureIsNoSecondOne) {
  const Lines before = {"Sub A()", "'ErrorTrap:", "' a _", "ErrorTrap:", "End Sub"};
  Lines after = WithHandler(before, "Exit Sub");
  EXPECT_THAT(OfHandlers(before, after, {{"A", "Sub", 1, 1, 11}}), IsEmpty());
}

TEST(HandlerWarnings, TwoTrapsThatTheUserWroteAreTheUsersAffair) {
  const Lines lines = {"Sub A()", "ErrorTrap:", "ErrorTrap:", "Exit Function", "End Sub"};
  EXPECT_THAT(OfHandlers(lines, lines, {{"A", "Sub", 1, 1, 5}}), IsEmpty());
}

TEST(HandlerWarnings, AnExitThatDoesNotFitIsNamed) {
  const Lines before = {"Function SubTotal()", "End Function"};
  EXPECT_THAT(
      OfHandlers(before, WithHandler(before, "Exit Sub"), {{"SubTotal", "Function", 1, 1, 8}}),
      ElementsAre(Warning{1,
                          "Exit Sub was put into Function SubTotal, where it does not "
                          "compile: change it to Exit Function"}));
}

TEST(HandlerWarnings, AnExitThatDoesNotFitIsNamedBehindALineNumberToo) {
  const Lines before = {"Property Get Sub1()", "x", "End Property"};
  EXPECT_THAT(OfHandlers(before,
                         {"Property Get Sub1()", "2:     On Error GoTo ErrorTrap", "3:     x",
                          "4:     ", "5:     Exit Sub",
                          "6:     ", "       ErrorTrap:", "8:     TEST HANDLE", "End Property"},
                         {{"Sub1", "Property", 1, 1, 9}}),
              ElementsAre(WarningAt(1, "Exit Sub was put into Property Sub1")));
}

TEST(HandlerWarnings, StandAtTheLineThatTheDeclarationHadBefore) {
  const Lines before = {"Function SubA()", "End Function", "Function SubB()", "End Function"};
  Lines after = WithHandler({before[0], before[1]}, "Exit Sub");
  const Lines second = WithHandler({before[2], before[3]}, "Exit Sub");
  after.insert(after.end(), second.begin(), second.end());
  EXPECT_THAT(
      OfHandlers(before, after, {{"SubA", "Function", 1, 1, 8}, {"SubB", "Function", 9, 9, 16}}),
      ElementsAre(WarningAt(1, "SubA"), WarningAt(3, "SubB")));
}

}  // namespace warnings_test
}  // namespace brimwork

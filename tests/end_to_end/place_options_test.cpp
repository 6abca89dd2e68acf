// Where in a file a command works: --line, --column and --procedure.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "end_to_end/workplace.h"

namespace brimwork {
namespace place_options_test {

using testing::AllOf;
using testing::HasSubstr;

// Lines 1 to 8 of the file are hidden above the module, and line 11 below a declaration.
constexpr const char* kForm =
    "VERSION 5.00\n"
    "Begin VB.Form frmMain\n"
    "   Caption = \"Main\"\n"
    "End\n"
    "Attribute VB_Name = \"frmMain\"\n"
    "Attribute VB_Exposed = False\n"
    "Option Explicit\n"
    "\n"
    "Property Get Age() As Long\n"
    "1:     Age = 1\n"
    "End Property\n"
    "Property Let Age(ByVal n As Long)\n"
    "Attribute Age.VB_Description = \"In years\"\n"
    "1:     mAge = n\n"
    "End Property\n"
    "Property Set Age(ByVal n As Object)\n"
    "1:     Beep\n"
    "End Property\n"
    "Sub Other()\n"
    "1:     Beep\n"
    "End Sub\n";

class PlaceOptions : public testing::Test {
 protected:
  PlaceOptions() { place.Write("f.frm", kForm); }

  ProgramResult Unnumber(const Words& options) const {
    Words words{"unnumber"};
    words.insert(words.end(), options.begin(), options.end());
    words.push_back("f.frm");
    return place.Run(words);
  }

  /// The file's lines that still have a number, as the numbers of those lines.
  static std::vector<int> NumberedLines(const ProgramResult& result) {
    std::vector<int> numbered;
    int number = 0;
    for (const std::string& line : LinesOf(result.out)) {
      ++number;
      if (line.starts_with("1:")) numbered.push_back(number);
    }
    return numbered;
  }

  Workplace place;
};

TEST_F(PlaceOptions, ALineIsALineOfTheFile) {
  EXPECT_THAT(NumberedLines(Unnumber({"--line", "14"})), testing::ElementsAre(10, 17, 20));
  EXPECT_THAT(NumberedLines(Unnumber({"--line", "18"})), testing::ElementsAre(10, 14, 20));
}

TEST_F(PlaceOptions, AHiddenLineIsTheVisibleLineItHangsOn) {
  EXPECT_THAT(NumberedLines(Unnumber({"--line", "13"})), testing::ElementsAre(10, 17, 20));
}

TEST_F(PlaceOptions, ALineAboveTheModuleIsItsFirstLine) {
  const ProgramResult result =
      place.Run({"timestamp", "--line", "2", "--now", "2026-11-21", "f.frm"});
  EXPECT_EQ(LinesOf(result.out)[6], "Option Explicit ' 11/21/2026 12:00:00 AM ");
  EXPECT_EQ(LinesOf(result.out)[1], "Begin VB.Form frmMain");
}

TEST_F(PlaceOptions, ALineInTheDeclarationsChangesNothing) {
  const ProgramResult result = Unnumber({"--line", "7"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.out, kForm);
}

TEST_F(PlaceOptions, ALineBehindTheEndIsAnErrorThatSaysHowManyThereAre) {
  const ProgramResult result = Unnumber({"--line", "22"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.out, "");
  EXPECT_THAT(result.error, AllOf(HasSubstr("f.frm: "), HasSubstr("22"), HasSubstr("21 lines")));
}

TEST_F(PlaceOptions, ALineIsAPositiveNumber) {
  for (const char* line : {"0", "-3", "x", ""}) {
    const ProgramResult result = Unnumber({"--line", line});
    EXPECT_EQ(result.exitCode, 2) << line;
    EXPECT_THAT(result.error, HasSubstr("--line")) << line;
    EXPECT_EQ(LinesOf(result.error).size(), 1u) << result.error;
  }
}

TEST_F(PlaceOptions, AProcedureIsEveryOneOfThatNameInAnyLetterCase) {
  EXPECT_THAT(NumberedLines(Unnumber({"--procedure", "Age"})), testing::ElementsAre(20));
  EXPECT_THAT(NumberedLines(Unnumber({"--procedure", "aGE"})), testing::ElementsAre(20));
  EXPECT_THAT(NumberedLines(Unnumber({"--procedure", "OTHER"})), testing::ElementsAre(10, 14, 17));
}

TEST_F(PlaceOptions, EveryProcedureOfANameIsWorkedOnThoughTheOnesAboveGrow) {
  const ProgramResult result =
      place.Run({"comment", "--procedure", "age", "--set", "Separator='--", "f.frm"});
  EXPECT_THAT(result.out, AllOf(HasSubstr("End Property 'Age() As Long\n'--\n"),
                                HasSubstr("End Property 'Age(ByVal n As Long)\n'--\n"),
                                HasSubstr("End Property 'Age(ByVal n As Object)\n'--\n"),
                                testing::EndsWith("End Sub\n")));
}

TEST_F(PlaceOptions, AnUnknownProcedureIsAnError) {
  const ProgramResult result = Unnumber({"--procedure", "Agee"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.error, HasSubstr("\"Agee\""));
}

TEST_F(PlaceOptions, AProcedureNeedNotBeInEveryFile) {
  place.Write("b.bas", "Sub Nothing2()\nEnd Sub\n");
  const ProgramResult result =
      place.Run({"unnumber", "--check", "--procedure", "Other", "f.frm", "b.bas"});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.out, "f.frm\n");
}

TEST_F(PlaceOptions, ALineAndAProcedureAreOneTooMany) {
  const ProgramResult result = Unnumber({"--line", "10", "--procedure", "Age"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.error, AllOf(HasSubstr("--line"), HasSubstr("--procedure")));
}

TEST_F(PlaceOptions, AColumnNeedsALine) {
  const ProgramResult result = place.Run({"timestamp", "--column", "3", "f.frm"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.error, HasSubstr("--column needs --line"));
}

TEST_F(PlaceOptions, AColumnCountsCharactersNotBytes) {
  place.Write("u.bas", "\xEF\xBB\xBFx = \"\xC3\xA9\xE2\x82\xAC\"\n");
  const ProgramResult result =
      place.Run({"timestamp", "--line", "1", "--column", "9", "--now", "2026-11-21", "u.bas"});
  EXPECT_EQ(result.out, "\xEF\xBB\xBFx = \"\xC3\xA9\xE2\x82\xAC\" ' 11/21/2026 12:00:00 AM \n");
}

TEST_F(PlaceOptions, AColumnBehindTheTextIsTheTextsEnd) {
  place.Write("c.bas", "x = 1\ny = 2\n");
  const ProgramResult result =
      place.Run({"timestamp", "--line", "1", "--column", "80", "--now", "2026-11-21", "c.bas"});
  EXPECT_EQ(result.out, "x = 1 ' 11/21/2026 12:00:00 AM \ny = 2\n");
}

TEST_F(PlaceOptions, ATimeStampNeedsALine) {
  EXPECT_EQ(place.Run({"timestamp", "f.frm"}).exitCode, 2);
  EXPECT_EQ(place.Run({"timestamp", "--procedure", "Age", "f.frm"}).exitCode, 2);
}

}  // namespace place_options_test
}  // namespace brimwork

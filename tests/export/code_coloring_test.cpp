#include "export/code_coloring.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "environment/run_time_error.h"
#include "environment/text.h"
#include "support/export_fixture.h"
#include "support/text_colors.h"

namespace brimwork {
namespace code_coloring_test {

using testing::ElementsAre;

constexpr const char* kWords = "If,Then,End";

/// A text, and under it a letter for each character: '.' black, 'n' navy, 'g' green.
struct Colored {
  std::string text;
  std::string colors;

  bool operator==(const Colored&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Colored& colored) {
  return out << '\n' << Replace(colored.text, "\r\n", "\\n") << '\n' << colored.colors;
}

struct CodeColors : testing::Test, ExportFixture {
  Colored Of(const std::string& text, const std::string& words = kWords) {
    work.SetText(text);
    work.SetSelLength(CharacterCount(text));
    work.SetSelColor(Rgb(0, 0, 0));
    KeywordList keywords(words);
    CodeColoring(tools, work, keywords, text).Run();
    return {work.Text(), ColorsOf(work.Content())};
  }

  /// The line named by the error that the text brings about.
  int FailingLine(const std::string& text) {
    try {
      Of(text);
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.Number(), error_number::kInvalidProcedureCall);
      return error.Line();
    }
    ADD_FAILURE() << "no error";
    return -1;
  }

  /// How far the bar was told that the work is, and how often the window came to its turn.
  Events StepsOf(const std::string& text) {
    events.clear();
    const int before = messageLoop.Count();
    Of(text);
    EXPECT_EQ(messageLoop.Count() - before, static_cast<int>(events.size()));
    return events;
  }

  MemoryRichTextBox work{1, textFiles};
};

TEST_F(CodeColors, KeywordsAreNavyAndSpelledAsInTheList) {
  EXPECT_EQ(Of("if x then"), (Colored{"If x Then",  //
                                      "nn...nnnn"}));
  EXPECT_EQ(Of("IF X THEN"), (Colored{"If X Then",  //
                                      "nn...nnnn"}));
}

TEST_F(CodeColors, WordsOutsideTheListStayBlackAndAsTheyAre) {
  EXPECT_EQ(Of("Loop wHILE x"), (Colored{"Loop wHILE x",  //
                                         "............"}));
}

TEST_F(CodeColors, AnEmptyListHasNoKeywords) {
  EXPECT_EQ(Of("If x 'If", ""), (Colored{"If x 'If",  //
                                         ".....ggg"}));
}

TEST_F(CodeColors, AnyPartOfTheListIsAKeyword) {
  EXPECT_EQ(Of("dIM x", "ReDim"), (Colored{"Dim x",  //
                                           "nnn.."}));
  EXPECT_EQ(Of("HEN", "Then"), (Colored{"hen",  //
                                        "nnn"}));
  EXPECT_EQ(Of("t", "Then"), (Colored{"T",  //
                                      "n"}));
}

TEST_F(CodeColors, TheFirstPlaceInTheListGivesTheSpelling) {
  EXPECT_EQ(Of("if If IF", "elseIF,If,if"), (Colored{"IF IF IF",  //
                                                     "nn.nn.nn"}));
}

TEST_F(CodeColors, AWordMayNotGoOverTheListsCommas) {
  EXPECT_EQ(Of("fThen", "If,Then"), (Colored{"fThen",  //
                                             "....."}));
}

TEST_F(CodeColors, UnderscoresBelongToWords) {
  EXPECT_EQ(Of("my_word If_", "My_Word,If"), (Colored{"My_Word If_",  //
                                                      "nnnnnnn...."}));
  EXPECT_EQ(Of("x _\r\nIf", "If,_"), (Colored{"x _\r\nIf",  //
                                              "..n..nn"}));
}

TEST_F(CodeColors, DigitsEndWords) {
  EXPECT_EQ(Of("Len2", "Len"), (Colored{"Len2",  //
                                        "nnn."}));
  EXPECT_EQ(Of("2len2x", "Len"), (Colored{"2Len2x",  //
                                          ".nnn.."}));
  EXPECT_EQ(Of("a1end", "End"), (Colored{"a1End",  //
                                         "..nnn"}));
}

TEST_F(CodeColors, PunctuationAndTabsEndWords) {
  EXPECT_EQ(Of("(if)\tEnd.if,x"), (Colored{"(If)\tEnd.If,x",  //
                                           ".nn..nnn.nn.."}));
  EXPECT_EQ(Of("@If[If`If{If"), (Colored{"@If[If`If{If",  //
                                         ".nn.nn.nn.nn"}));
}

TEST_F(CodeColors, LineEndsEndWords) {
  EXPECT_EQ(Of("end\r\nend\r\n"), (Colored{"End\r\nEnd\r\n",  //
                                           "nnn..nnn.."}));
}

TEST_F(CodeColors, OtherLettersEndWords) {
  EXPECT_EQ(Of("If\u00f6If \u20acend"), (Colored{"If\u00f6If \u20acEnd",  //
                                                 "nn.nn..nnn"}));
}

TEST_F(CodeColors, AreRightBehindOtherLetters) {
  EXPECT_EQ(Of("\u00e4\u20ac\U0001F600 if '\u00e4\u20ac!\r\nend"),
            (Colored{"\u00e4\u20ac\U0001F600 If '\u00e4\u20ac!\r\nEnd", "....nn.gggg..nnn"}));
  EXPECT_EQ(Of("\"\u00e4\u20ac\" end"), (Colored{"\"\u00e4\u20ac\" End",  //
                                                 ".....nnn"}));
}

TEST_F(CodeColors, LiteralsStayBlack) {
  EXPECT_EQ(Of("s = \"End\""), (Colored{"s = \"End\"",  //
                                        "........."}));
  EXPECT_EQ(Of("\"if\" if \"if\""), (Colored{"\"if\" If \"if\"",  //
                                             ".....nn....."}));
  EXPECT_EQ(Of("\"\" if"), (Colored{"\"\" If",  //
                                    "...nn"}));
}

TEST_F(CodeColors, TheWordInFrontOfALiteralsBlankIsChecked) {
  EXPECT_EQ(Of("if \"End\""), (Colored{"If \"End\"",  //
                                       "nn......"}));
}

TEST_F(CodeColors, DoubledQuotesAreTwoLiteralsInARow) {
  EXPECT_EQ(Of("\"a \"\"if\"\" b\" if"), (Colored{"\"a \"\"if\"\" b\" If",  //
                                                  ".............nn"}));
}

TEST_F(CodeColors, AnApostropheInALiteralBeginsNoComment) {
  EXPECT_EQ(Of("\"it's\" end 'x"), (Colored{"\"it's\" End 'x",  //
                                            ".......nnn.gg"}));
}

TEST_F(CodeColors, ALiteralMayGoOnInTheNextLine) {
  EXPECT_EQ(Of("\"if\r\nif\" if"), (Colored{"\"if\r\nif\" If",  //
                                            ".........nn"}));
}

TEST_F(CodeColors, CommentsAreGreenUpToTheLineEnd) {
  EXPECT_EQ(Of("x 'if\r\nif"), (Colored{"x 'if\r\nIf",  //
                                        "..ggg..nn"}));
  EXPECT_EQ(Of("'\r\n'\r\n"), (Colored{"'\r\n'\r\n",  //
                                       "g..g.."}));
}

TEST_F(CodeColors, ACommentMayEndTheText) {
  EXPECT_EQ(Of("'note"), (Colored{"'note",  //
                                  "ggggg"}));
  EXPECT_EQ(Of("x '"), (Colored{"x '",  //
                                "..g"}));
}

TEST_F(CodeColors, AQuoteInACommentBeginsNoLiteral) {
  EXPECT_EQ(Of("' comment \"quote"), (Colored{"' comment \"quote",  //
                                              "gggggggggggggggg"}));
  EXPECT_EQ(Of("' \"\r\nend 's \"\r\nend"), (Colored{"' \"\r\nEnd 's \"\r\nEnd",  //
                                                     "ggg..nnn.gggg..nnn"}));
}

TEST_F(CodeColors, ACommentNeedsNoBlankInFrontOfIt) {
  EXPECT_EQ(Of("x=1'if"), (Colored{"x=1'if",  //
                                   "...ggg"}));
}

TEST_F(CodeColors, RemIsAWordLikeOthers) {
  EXPECT_EQ(Of("Rem if", "If,Rem"), (Colored{"Rem If",  //
                                             "nnn.nn"}));
}

TEST_F(CodeColors, TheVeryFirstAndTheVeryLastWordAreChecked) {
  EXPECT_EQ(Of("end"), (Colored{"End",  //
                                "nnn"}));
  EXPECT_EQ(Of("x end"), (Colored{"x End",  //
                                  "..nnn"}));
}

TEST_F(CodeColors, AWordDirectlyBeforeALiteralIsCheckedBehindIt) {
  EXPECT_EQ(Of("end\"lit\" x"), (Colored{"End\"lit\" x",  //
                                         "nnn......."}));
  EXPECT_EQ(Of("end\"lit\""), (Colored{"End\"lit\"",  //
                                       "nnn....."}));
}

TEST_F(CodeColors, LettersBehindALiteralJoinTheWordDirectlyBeforeIt) {
  EXPECT_EQ(Of("en\"x\"d y"), (Colored{"Endx\"d y",  //
                                       "nnn....."}));
  EXPECT_EQ(Of("en\"x\"q end"), (Colored{"en\"x\"q End",  //
                                         ".......nnn"}));
}

TEST_F(CodeColors, AWordDirectlyBeforeACommentIsCheckedBehindIt) {
  EXPECT_EQ(Of("end'note\r\nx"), (Colored{"End'note\r\nx",  //
                                          "nnnggggg..."}));
  EXPECT_EQ(Of("en'note\r\nd"), (Colored{"en'note\r\nd",  //
                                         "nnggggg..n"}));
}

TEST_F(CodeColors, AWordDirectlyBeforeACommentThatEndsTheTextIsNotChecked) {
  EXPECT_EQ(Of("end'note"), (Colored{"end'note",  //
                                     "...ggggg"}));
}

TEST_F(CodeColors, AnEmptyTextHasNone) { EXPECT_EQ(Of(""), (Colored{"", ""})); }

TEST_F(CodeColors, EachStepGivesTheWindowItsTurnAndMovesTheBar) {
  EXPECT_THAT(StepsOf("ab"), ElementsAre("1/3", "2/3", "3/3"));
  EXPECT_THAT(StepsOf(""), ElementsAre("1/1"));
}

TEST_F(CodeColors, AWordIsColoredInTheStepThatEndsIt) {
  std::vector<std::string> seen;
  messageLoop.onDoEvents = [&] { seen.push_back(ColorsOf(work.Content())); };
  Of("if'a");
  EXPECT_THAT(seen, ElementsAre("....", "....", "...."));
  seen.clear();
  Of("if a");
  EXPECT_THAT(seen, ElementsAre("....", "....", "....", "nn..", "nn.."));
}

TEST_F(CodeColors, ALiteralIsOneStep) {
  EXPECT_THAT(StepsOf("s = \"End\""), ElementsAre("1/10", "2/10", "3/10", "4/10", "9/10", "10/10"));
  EXPECT_THAT(StepsOf("\"\u00e4\" x"), ElementsAre("3/6", "4/6", "5/6", "6/6"));
}

TEST_F(CodeColors, ACommentIsOneStep) {
  EXPECT_THAT(StepsOf("a 'b\r\nc"), ElementsAre("1/8", "2/8", "5/8", "6/8", "7/8", "8/8"));
  EXPECT_THAT(StepsOf("'bc"), ElementsAre("4/4"));
}

TEST_F(CodeColors, AQuoteWithoutAnotherBehindItIsRefusedWithItsLine) {
  EXPECT_EQ(FailingLine("\""), 1);
  EXPECT_EQ(FailingLine("x = \"a"), 1);
  EXPECT_EQ(FailingLine("x\r\n\r\ny = \"a\r\nz"), 3);
  EXPECT_EQ(FailingLine("\"a\"\r\n\"b\r\n\"\r\n'\"\r\n\"c"), 5);
  EXPECT_EQ(FailingLine("\"a\"\"\r\n"), 1);
}

TEST_F(CodeColors, AQuoteInACommentClosesALiteralThatWasLeftOpen) {
  EXPECT_EQ(Of("\"if\r\n' \" if"), (Colored{"\"if\r\n' \" If",  //
                                            ".........nn"}));
}

TEST_F(CodeColors, LeaveFontAndSize) {
  work.SetText("if x");
  work.SetSelLength(4);
  work.SetSelFontName("Courier New");
  work.SetSelFontSize(10);
  KeywordList keywords(kWords);
  CodeColoring(tools, work, keywords, "if x").Run();
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(work.Content().FormatAt(i).fontName, "Courier New") << i;
    EXPECT_EQ(work.Content().FormatAt(i).halfPoints, 20) << i;
  }
}

}  // namespace code_coloring_test
}  // namespace brimwork

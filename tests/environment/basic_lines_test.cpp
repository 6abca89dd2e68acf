#include "environment/basic_lines.h"

#include <gtest/gtest.h>

namespace brimwork {
namespace basic_lines_test {

constexpr auto kNothing = Continues::kNothing;
constexpr auto kStatement = Continues::kStatement;
constexpr auto kComment = Continues::kComment;

TEST(BasicLines, ABlankLineHoldsBlanksAndTabsOnly) {
  EXPECT_TRUE(IsBlankLine(""));
  EXPECT_TRUE(IsBlankLine(" \t "));
  EXPECT_FALSE(IsBlankLine(" '"));
  EXPECT_FALSE(IsBlankLine("_"));
}

TEST(BasicLines, ACommentLineStartsWithAnApostropheBehindBlanksAndTabs) {
  EXPECT_TRUE(IsCommentLine("' note", kNothing));
  EXPECT_TRUE(IsCommentLine(" \t'note", kNothing));
  EXPECT_FALSE(IsCommentLine("x = 1 ' note", kNothing));
  EXPECT_FALSE(IsCommentLine("", kNothing));
}

TEST(BasicLines, ACommentLineIsRemOrStartsWithRemAndABlankInAnyCase) {
  EXPECT_TRUE(IsCommentLine("Rem", kNothing));
  EXPECT_TRUE(IsCommentLine("  rem  ", kNothing));
  EXPECT_TRUE(IsCommentLine("\tREM note", kNothing));
  EXPECT_FALSE(IsCommentLine("Remark = 1", kNothing));
  EXPECT_FALSE(IsCommentLine("Rem_1 = 1", kNothing));
  EXPECT_FALSE(IsCommentLine("Rem=1", kNothing));
}

TEST(BasicLines, ALineThatContinuesACommentIsAComment) {
  EXPECT_TRUE(IsCommentLine("End Sub", kComment));
  EXPECT_TRUE(IsCommentLine("", kComment));
  EXPECT_FALSE(IsCommentLine("End Sub", kStatement));
}

TEST(BasicLines, ALineThatEndsInABlankAndAnUnderscoreIsContinuedByTheNext) {
  EXPECT_EQ(ContinuedBelow("x = 1 + _", kNothing), kStatement);
  EXPECT_EQ(ContinuedBelow("x = 1", kNothing), kNothing);
  EXPECT_EQ(ContinuedBelow("x = name_", kNothing), kNothing);
  EXPECT_EQ(ContinuedBelow("x = 1", kStatement), kNothing);
  EXPECT_EQ(ContinuedBelow("2 + _", kStatement), kStatement);
}

TEST(BasicLines, ACommentIsContinuedAsAComment) {
  EXPECT_EQ(ContinuedBelow("' note _", kNothing), kComment);
  EXPECT_EQ(ContinuedBelow("Rem note _", kNothing), kComment);
  EXPECT_EQ(ContinuedBelow("more _", kComment), kComment);
  EXPECT_EQ(ContinuedBelow("last", kComment), kNothing);
}

TEST(BasicLines, ACommentBehindCodeIsContinuedAsAComment) {
  EXPECT_EQ(ContinuedBelow("x = 1 ' note _", kNothing), kComment);
  EXPECT_EQ(ContinuedBelow("x = 1: Rem note _", kNothing), kComment);
  EXPECT_EQ(ContinuedBelow("2 + 3 ' note _", kStatement), kComment);
}

TEST(BasicLines, AnApostropheInALiteralStartsNoComment) {
  EXPECT_EQ(ContinuedBelow("x = \"it's\" & _", kNothing), kStatement);
  EXPECT_EQ(ContinuedBelow("x = \"a \"\"quoted\"\" it's\" & _", kNothing), kStatement);
  EXPECT_EQ(ContinuedBelow("x = \": Rem \" & _", kNothing), kStatement);
}

TEST(BasicLines, ConditionalCompilationLinesAreKnownInAnyCase) {
  for (const char* line : {"#If A Then", "  #if A Then", "\t#ElseIf B Then", "#ELSE", "#End If",
                           "#end if", "#Const A = 1", "#const A = 1", "#Else ' note"}) {
    EXPECT_TRUE(IsConditionalCompilationLine(line)) << line;
  }
  for (const char* line :
       {"If A Then", "#Iffy", "#Constant", "# If", "", "x = 1 #If", "'#If A Then", "#1/1/2000#"}) {
    EXPECT_FALSE(IsConditionalCompilationLine(line)) << line;
  }
}

TEST(BasicLines, ConditionalCompilationLinesOpenContinueOrCloseABlock) {
  EXPECT_EQ(ConditionalLineOf("#If A Then"), ConditionalLine::kIf);
  EXPECT_EQ(ConditionalLineOf(" #elseif B Then"), ConditionalLine::kElse);
  EXPECT_EQ(ConditionalLineOf("#Else"), ConditionalLine::kElse);
  EXPECT_EQ(ConditionalLineOf("\t#END IF"), ConditionalLine::kEndIf);
  EXPECT_EQ(ConditionalLineOf("#Const A = 1"), ConditionalLine::kNone);
  EXPECT_EQ(ConditionalLineOf("If A Then"), ConditionalLine::kNone);
  EXPECT_EQ(ConditionalLineOf(""), ConditionalLine::kNone);
}

TEST(BasicLines, TypeAndEnumLinesOpenABlock) {
  for (const char* line : {"Type Point", "Public Type Point", "private enum Colours", "\tEnum E",
                           "Type Größe", "Enum Ärzte"}) {
    EXPECT_TRUE(OpensTypeBlock(line)) << line;
  }
  for (const char* line : {"Typewriter x", "Type", "Type = 5", "Type(1) = 2", "Static Type X",
                           "Dim Type As Long", "End Type", "'Type X"}) {
    EXPECT_FALSE(OpensTypeBlock(line)) << line;
  }
}

TEST(BasicLines, EndTypeAndEndEnumStatementsCloseTheBlock) {
  for (const char* line : {"End Type", "  end enum ' done", "End  Type", "x As Long: End Type"}) {
    EXPECT_TRUE(ClosesTypeBlock(line)) << line;
  }
  for (const char* line : {"End Sub", "EndType", "' End Type", "End Types"}) {
    EXPECT_FALSE(ClosesTypeBlock(line)) << line;
  }
}

TEST(BasicLines, AnEndStatementOfAnyWordInAnyCaseClosesAProcedure) {
  for (const char* line :
       {"End Sub", "End Function", "End Property", "end sub", "END FUNCTION", "  End Sub",
        "\tEnd Sub", "End   Sub", "End\tSub", "End Sub 'A()", "End Sub'A()", "End Sub: ' x"}) {
    EXPECT_TRUE(ClosesProcedure(line, kNothing)) << line;
  }
}

TEST(BasicLines, OtherWordsThatHoldEndCloseNoProcedure) {
  for (const char* line :
       {"End", "End If", "End Type", "EndSub", "End Subs", "End Sub_1", "Ends Sub", "Exit Sub",
        "EndDate = 1", "Sub EndGame()", "End Subä", ""}) {
    EXPECT_FALSE(ClosesProcedure(line, kNothing)) << line;
  }
}

TEST(BasicLines, AClosingStatementMayStandBehindANumericLabel) {
  EXPECT_TRUE(ClosesProcedure("120 End Sub", kNothing));
  EXPECT_TRUE(ClosesProcedure("  120\tEnd Function", kNothing));
  EXPECT_TRUE(ClosesProcedure("120: End Sub", kNothing));
  EXPECT_TRUE(ClosesProcedure("120:End Sub", kNothing));
  EXPECT_FALSE(ClosesProcedure("x End Sub", kNothing));
}

TEST(BasicLines, AClosingStatementMayStandBehindAColon) {
  EXPECT_TRUE(ClosesProcedure("x = 1: End Sub", kNothing));
  EXPECT_TRUE(ClosesProcedure("x = 1:End Sub", kNothing));
  EXPECT_TRUE(ClosesProcedure("Done: end function", kNothing));
  EXPECT_TRUE(ClosesProcedure("Sub A(): x = \"a:b\": End Sub", kNothing));
}

TEST(BasicLines, ALineThatContinuesAStatementClosesOnlyBehindAColon) {
  EXPECT_FALSE(ClosesProcedure("End Sub", kStatement));
  EXPECT_FALSE(ClosesProcedure("120 End Sub", kStatement));
  EXPECT_TRUE(ClosesProcedure("2: End Sub", kStatement));
}

TEST(BasicLines, AClosingStatementInALiteralClosesNothing) {
  EXPECT_FALSE(ClosesProcedure("x = \": End Sub\"", kNothing));
  EXPECT_FALSE(ClosesProcedure("x = \"a \"\": End Sub\"", kNothing));
}

TEST(BasicLines, AClosingStatementInACommentClosesNothing) {
  EXPECT_FALSE(ClosesProcedure("' End Sub", kNothing));
  EXPECT_FALSE(ClosesProcedure("Rem : End Sub", kNothing));
  EXPECT_FALSE(ClosesProcedure("x = 1 ' : End Sub", kNothing));
  EXPECT_FALSE(ClosesProcedure("x = 1: Rem : End Sub", kNothing));
  EXPECT_FALSE(ClosesProcedure("End Sub", kComment));
  EXPECT_FALSE(ClosesProcedure("x: End Sub", kComment));
}

TEST(ClosesProcedure, NotInARemBehindANumericLabel) {
  EXPECT_FALSE(ClosesProcedure("10 Rem closed by: End Sub", Continues::kNothing));
  EXPECT_TRUE(ClosesProcedure("10 Remove: End Sub", Continues::kNothing));
}

TEST(ContinuedBelow, IsACommentBehindARemBehindANumericLabel) {
  EXPECT_EQ(ContinuedBelow("10 Rem goes on _", Continues::kNothing), Continues::kComment);
}

}  // namespace basic_lines_test
}  // namespace brimwork

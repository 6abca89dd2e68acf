// The code of designed message boxes.
#include "msgbox/code_generator.h"

#include <gtest/gtest.h>

#include <limits>

#include "environment/run_time_error.h"

namespace brimwork {
namespace code_generator_test {

std::string Escaped(std::string_view text) { return EscapePrompt(text, LineEnds::kConverted); }

MsgBoxDesign Question() {
  MsgBoxDesign design;
  design.prompt = "Go on?";
  design.title = "Stock";
  design.buttonsSet = 4;
  design.icon = 32;
  design.buttonCount = 2;
  design.standardCaptions = "&Yes,&No";
  return design;
}

TEST(EscapePrompt, LosesBlanksAtBothEnds) { EXPECT_EQ(Escaped("  Go on?  "), "Go on?"); }

TEST(EscapePrompt, LosesLineEndsAndTabsBehindTheText) {
  EXPECT_EQ(Escaped("Go on?\r\n"), "Go on?");
  EXPECT_EQ(Escaped("Go on?\t\r\n\r\n\t"), "Go on?");
  EXPECT_EQ(Escaped("\r\n\t\r\n"), "");
}

TEST(EscapePrompt, KeepsBlanksThatOnlyControlsHid) {
  EXPECT_EQ(Escaped("Go on? \r\n"), "Go on? ");
  EXPECT_EQ(Escaped("\tGo on?"), "\tGo on?");
}

TEST(EscapePrompt, TakesNoLetterBeyondAsciiForAControl) {
  EXPECT_EQ(Escaped("Weiter mit Größe"), "Weiter mit Größe");
  EXPECT_EQ(Escaped("déjà"), "déjà");
}

TEST(EscapePrompt, TurnsADoubleQuoteIntoAChrTerm) {
  EXPECT_EQ(Escaped("a \"b\" c"), "a \" & chr(34) & \"b\" & chr(34) & \" c");
}

TEST(EscapePrompt, KeepsTheEmptyLiteralBehindAQuoteAtTheEnd) {
  EXPECT_EQ('"' + Escaped("say \"yes\"") + '"', "\"say \" & chr(34) & \"yes\" & chr(34) & \"\"");
}

TEST(EscapePrompt, JoinsTwoQuotesInARowByOneAmpersand) {
  EXPECT_EQ(Escaped("a\"\"b"), "a\" & chr(34) & chr(34) & \"b");
}

TEST(EscapePrompt, TurnsALineEndIntoAVbCrLfTerm) {
  EXPECT_EQ('"' + Escaped("one\r\ntwo") + '"', "\"one\" & vbCrLf & \"two\"");
}

TEST(EscapePrompt, JoinsTheLineEndsAroundEmptyLinesByOneAmpersand) {
  EXPECT_EQ(Escaped("one\r\n\r\ntwo"), "one\" & vbCrLf & vbCrLf & \"two");
  EXPECT_EQ(Escaped("one\r\n\r\n\r\ntwo"), "one\" & vbCrLf & vbCrLf & vbCrLf & \"two");
}

TEST(EscapePrompt, JoinsAQuoteAndALineEndByOneAmpersand) {
  EXPECT_EQ(Escaped("\"a\"\r\nb"), "\" & chr(34) & \"a\" & chr(34) & vbCrLf & \"b");
}

TEST(EscapePrompt, KeepsALoneCrAndALoneLf) {
  EXPECT_EQ(Escaped("one\rtwo\nthree"), "one\rtwo\nthree");
}

TEST(EscapePrompt, KeepsLineEndsWhereTheyAreNotToBeConverted) {
  EXPECT_EQ(EscapePrompt("\"one\r\ntwo\r\n", LineEnds::kKept), "\" & chr(34) & \"one\r\ntwo");
}

TEST(EscapePrompt, ProtectsWhatLooksLikeCode) {
  EXPECT_EQ(Escaped("a & \"\" & b"), "a & \" & chr(34) & chr(34) & \" & b");
}

TEST(ButtonCaptionsText, JoinsTheTrimmedOnesThatAreNotEmpty) {
  EXPECT_EQ(ButtonCaptionsText({" &Now ", "  ", "&Never"}), "&Now,&Never");
  EXPECT_EQ(ButtonCaptionsText({"", "", "Last"}), "Last");
  EXPECT_EQ(ButtonCaptionsText({"", " "}), "");
  EXPECT_EQ(ButtonCaptionsText({}), "");
}

TEST(MsgBoxStyle, IsTheSumOfItsParts) {
  MsgBoxDesign design;
  EXPECT_EQ(MsgBoxStyle(design), 0);
  design.buttonsSet = 3;
  design.icon = 48;
  design.defaultButton = 512;
  design.modality = 4096;
  design.options = 16384 + 524288 + 1048576 + 65536;
  EXPECT_EQ(MsgBoxStyle(design), 3 + 48 + 512 + 4096 + 16384 + 524288 + 1048576 + 65536);
}

int ErrorOf(const MsgBoxDesign& design) {
  try {
    MsgBoxStyle(design);
    return 0;
  } catch (const RunTimeError& error) {
    return error.Number();
  }
}

TEST(MsgBoxStyle, OverflowsWhereTheSmallPartsNeedMoreThan16Bits) {
  MsgBoxDesign design;
  design.buttonsSet = 32'767;
  EXPECT_EQ(ErrorOf(design), 0);
  design.modality = 1;
  EXPECT_EQ(ErrorOf(design), error_number::kOverflow);
  design.icon = -1;
  EXPECT_EQ(ErrorOf(design), 0);
  design = {};
  design.buttonsSet = -32'768;
  design.icon = -1;
  EXPECT_EQ(ErrorOf(design), error_number::kOverflow);
}

TEST(MsgBoxStyle, ChecksEachAdditionInTheOrderOfTheParts) {
  MsgBoxDesign design;
  design.icon = 32'767;
  design.defaultButton = 1;
  design.modality = -1;
  EXPECT_EQ(ErrorOf(design), error_number::kOverflow);
}

TEST(MsgBoxStyle, OverflowsWhereAllNeedMoreThan32Bits) {
  MsgBoxDesign design;
  design.options = std::numeric_limits<std::int32_t>::max();
  EXPECT_EQ(ErrorOf(design), 0);
  design.buttonsSet = 1;
  EXPECT_EQ(ErrorOf(design), error_number::kOverflow);
}

TEST(PlainMsgBoxCode, HasNoBlanksBehindTheCommas) {
  EXPECT_EQ(PlainMsgBoxCode(Question()), "MsgBox \"Go on?\",36,\"Stock\"");
}

TEST(PlainMsgBoxCode, EscapesThePromptAndTrimsTheTitle) {
  MsgBoxDesign design = Question();
  design.prompt = " Open \"Stock\"?\r\n";
  design.title = "  Stock of today  ";
  EXPECT_EQ(PlainMsgBoxCode(design),
            "MsgBox \"Open \" & chr(34) & \"Stock\" & chr(34) & \"?\",36,\"Stock of today\"");
}

TEST(PlainMsgBoxCode, CopiesTheQuotesOfATitle) {
  MsgBoxDesign design = Question();
  design.title = "The \"Stock\"";
  EXPECT_EQ(PlainMsgBoxCode(design), "MsgBox \"Go on?\",36,\"The \"Stock\"\"");
}

TEST(PlainMsgBoxCode, RaisesTheOverflowOfTheStyle) {
  MsgBoxDesign design = Question();
  design.icon = 32'767;
  EXPECT_THROW(PlainMsgBoxCode(design), RunTimeError);
  EXPECT_THROW(CustomMsgBoxCode(design), RunTimeError);
}

TEST(CustomMsgBoxCode, LeavesTheCheckBoxValueOutWithoutACheckBox) {
  MsgBoxDesign design = Question();
  design.timeOut = 5;
  EXPECT_EQ(CustomMsgBoxCode(design),
            "CreateSpecialMsgBox \"Go on?\",36,\"Stock\",5,-1,-1,\"\",,2,\"\",\"&Yes,&No\"");
}

TEST(CustomMsgBoxCode, DeclaresTheCheckBoxValueOfACheckBox) {
  MsgBoxDesign design = Question();
  design.timeOut = -1;
  design.x = 10;
  design.y = 2000;
  design.hasCheckBox = true;
  design.checkBoxText = "Do not ask again";
  design.buttonCaptions = {"&Now", " &Never ", ""};
  EXPECT_EQ(CustomMsgBoxCode(design),
            "Dim CheckBoxValue As Boolean\r\n"
            "CreateSpecialMsgBox \"Go on?\",36,\"Stock\",-1,10,2000,\"Do not ask again\", "
            "CheckBoxValue,2,\"&Now,&Never\",\"&Yes,&No\"");
}

TEST(CustomMsgBoxCode, WritesThePromptOverSeveralLiterals) {
  MsgBoxDesign design = Question();
  design.prompt = "one\r\n\r\ntwo";
  EXPECT_EQ(CustomMsgBoxCode(design),
            "CreateSpecialMsgBox \"one\" & vbCrLf & vbCrLf & "
            "\"two\",36,\"Stock\",-1,-1,-1,\"\",,2,\"\",\"&Yes,&No\"");
}

}  // namespace code_generator_test
}  // namespace brimwork

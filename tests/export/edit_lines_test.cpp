#include "export/edit_lines.h"

#include <gtest/gtest.h>

#include "support/export_fixture.h"

namespace brimwork {
namespace edit_lines_test {

struct EditLines : testing::Test, ExportFixture {
  RichTextBox& editor = form.rtf();

  /// "start|text" of the line at a position.
  std::string LineAt(int position) {
    editor.SetSelStart(position);
    std::string line = "what was there before";
    GetCurrentLine(editor, line);
    return std::to_string(GetCurrentLineStart(editor)) + '|' + line;
  }
};

TEST_F(EditLines, AnEmptyControlHasOneEmptyLine) {
  editor.SetText("");
  EXPECT_EQ(GetLineCount(editor), 1);
  EXPECT_EQ(LineAt(0), "0|");
  EXPECT_EQ(LineAt(1), "0|");
}

TEST_F(EditLines, CountTheLineThatHasNoEnd) {
  editor.SetText("one\r\ntwo");
  EXPECT_EQ(GetLineCount(editor), 2);
}

TEST_F(EditLines, CountTheEmptyLineBehindTheLastLineEnd) {
  editor.SetText("one\r\ntwo\r\n");
  EXPECT_EQ(GetLineCount(editor), 3);
  EXPECT_EQ(LineAt(10), "10|");
}

TEST_F(EditLines, AreFoundFromAnyPositionWithinThem) {
  editor.SetText("one\r\nfour\r\nx");
  for (const int position : {0, 1, 2, 3}) EXPECT_EQ(LineAt(position), "0|one") << position;
  for (const int position : {5, 6, 8, 9}) EXPECT_EQ(LineAt(position), "5|four") << position;
  for (const int position : {11, 12}) EXPECT_EQ(LineAt(position), "11|x") << position;
}

TEST_F(EditLines, BelongToTheirLineEnds) {
  editor.SetText("one\r\ntwo");
  EXPECT_EQ(LineAt(4), "0|one");  // between CR and LF
}

TEST_F(EditLines, PositionOneIsInTheFirstLineWhenThatIsEmpty) {
  editor.SetText("\r\nsecond");
  EXPECT_EQ(LineAt(0), "0|");
  EXPECT_EQ(LineAt(1), "0|");
  EXPECT_EQ(LineAt(2), "2|second");
}

TEST_F(EditLines, TellEmptyLinesApart) {
  editor.SetText("\r\n\r\n\r\nlast");
  EXPECT_EQ(LineAt(2), "2|");
  EXPECT_EQ(LineAt(4), "4|");
  EXPECT_EQ(LineAt(6), "6|last");
}

TEST_F(EditLines, ABehindPositionIsInTheLastLine) {
  editor.SetText("one\r\ntwo");
  EXPECT_EQ(LineAt(9), "5|two");
  EXPECT_EQ(LineAt(1000), "5|two");
}

TEST_F(EditLines, CountCharactersAndNotBytes) {
  editor.SetText("\u00e4\u00f6\u00fc\r\n\u20ac = 1\r\nx");
  EXPECT_EQ(LineAt(1), "0|\u00e4\u00f6\u00fc");
  EXPECT_EQ(LineAt(5), "5|\u20ac = 1");
  EXPECT_EQ(LineAt(12), "12|x");
}

TEST_F(EditLines, KeepBlanksAndTabs) {
  editor.SetText("  a\t \r\n\t");
  EXPECT_EQ(LineAt(0), "0|  a\t ");
  EXPECT_EQ(LineAt(7), "7|\t");
}

/// A control that answers as one does that cannot say where its caret is.
class LostCaret : public MemoryRichTextBox {
 public:
  explicit LostCaret(MemoryTextFiles& files) : MemoryRichTextBox(1, files) {}
  int LineIndexOfCaret() override { return -1; }
};

TEST_F(EditLines, AreEmptyWhereTheControlKnowsNoStart) {
  LostCaret control(textFiles);
  control.SetText("one");
  std::string line = "what was there before";
  GetCurrentLine(control, line);
  EXPECT_EQ(line, "");
}

}  // namespace edit_lines_test
}  // namespace brimwork

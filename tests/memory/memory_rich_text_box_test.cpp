#include "memory/memory_rich_text_box.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "environment/run_time_error.h"
#include "memory/rtf_reader.h"
#include "memory/text_codec.h"

namespace brimwork {
namespace memory_rich_text_box_test {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr Color kBlack = Rgb(0, 0, 0);
constexpr Color kNavy = Rgb(0, 0, 128);
constexpr Color kGreen = Rgb(0, 128, 0);

std::string LineOf(RichTextBox& box, int line) {
  std::string text = "what was there before";
  box.ReadLine(line, text);
  return text;
}

class MemoryRichTextBoxTest : public testing::Test {
 protected:
  void Select(int start, int length) {
    box.SetSelStart(start);
    box.SetSelLength(length);
  }

  TextFormat FormatAt(int position) { return box.Content().FormatAt(position); }

  MemoryTextFiles files;
  MemoryRichTextBox box{7, files};
};

TEST_F(MemoryRichTextBoxTest, HasNoTextAtFirstAndTheCaretAtItsStart) {
  EXPECT_EQ(box.hWnd(), 7u);
  EXPECT_EQ(box.Text(), "");
  EXPECT_EQ(box.SelStart(), 0);
  EXPECT_EQ(box.SelLength(), 0);
}

TEST_F(MemoryRichTextBoxTest, PutsTheCaretAtTheStartOfANewText) {
  box.SetText("one");
  Select(2, 1);
  box.SetText("one\ntwo");
  EXPECT_EQ(box.Text(), "one\r\ntwo");
  EXPECT_EQ(box.SelStart(), 0);
  EXPECT_EQ(box.SelLength(), 0);
}

TEST_F(MemoryRichTextBoxTest, DrawsTheCaretBackIntoTheText) {
  box.SetText("日本");
  box.SetSelStart(3);
  EXPECT_EQ(box.SelStart(), 2);
  box.SetSelStart(-1);
  EXPECT_EQ(box.SelStart(), 0);
}

TEST_F(MemoryRichTextBoxTest, DrawsTheSelectionsEndBackIntoTheText) {
  box.SetText("日本\r\n");
  Select(1, 99);
  EXPECT_EQ(box.SelLength(), 3);
  box.SetSelLength(0x7FFFFFFF);
  EXPECT_EQ(box.SelLength(), 3);
  box.SetSelLength(-1);
  EXPECT_EQ(box.SelLength(), 0);
}

TEST_F(MemoryRichTextBoxTest, EndsTheSelectionWhenTheCaretMoves) {
  box.SetText("abc");
  Select(0, 3);
  box.SetSelStart(1);
  EXPECT_EQ(box.SelLength(), 0);
}

TEST_F(MemoryRichTextBoxTest, FormatsTheSelectionAlone) {
  box.SetText("If x");
  Select(0, 4);
  box.SetSelColor(kBlack);
  box.SetSelFontName("Courier New");
  box.SetSelFontSize(10);
  Select(0, 2);
  box.SetSelColor(kNavy);
  EXPECT_EQ(FormatAt(1), (TextFormat{"Courier New", 20, kNavy}));
  EXPECT_EQ(FormatAt(2), (TextFormat{"Courier New", 20, kBlack}));
  EXPECT_EQ(box.SelStart(), 0);
  EXPECT_EQ(box.SelLength(), 2);
}

TEST_F(MemoryRichTextBoxTest, FormatsNothingWithoutASelection) {
  box.SetText("abc");
  box.SetSelStart(1);
  box.SetSelColor(kNavy);
  box.SetSelFontName("Courier New");
  box.SetSelFontSize(30);
  EXPECT_EQ(FormatAt(0), TextFormat());
  EXPECT_EQ(FormatAt(1), TextFormat());
}

TEST_F(MemoryRichTextBoxTest, ReplacesTheSelectionInTheFormatOfItsFirstCharacter) {
  box.SetText("a if b");
  Select(2, 2);
  box.SetSelColor(kNavy);
  box.SetSelText("If");
  EXPECT_EQ(box.Text(), "a If b");
  EXPECT_EQ(FormatAt(2).color, kNavy);
  EXPECT_EQ(FormatAt(3).color, kNavy);
  EXPECT_EQ(FormatAt(4).color, std::nullopt);
}

TEST_F(MemoryRichTextBoxTest, PutsTheCaretBehindTheReplacement) {
  box.SetText("日 x");
  Select(2, 1);
  box.SetSelText("語\ny");
  EXPECT_EQ(box.Text(), "日 語\r\ny");
  EXPECT_EQ(box.SelStart(), 6);
  EXPECT_EQ(box.SelLength(), 0);
  box.SetSelText("z");
  EXPECT_EQ(box.Text(), "日 語\r\nyz");
}

TEST_F(MemoryRichTextBoxTest, HandsItsFormatsOverAsRichText) {
  box.SetText("If 'c\r\nx");
  Select(0, 2);
  box.SetSelColor(kNavy);
  Select(3, 2);
  box.SetSelColor(kGreen);
  Select(0, 99);
  MemoryRichTextBox other{8, files};
  other.SetText("old");
  other.SetSelStart(2);
  other.SetTextRTF(box.SelRTF());
  EXPECT_EQ(other.Text(), box.Text());
  EXPECT_TRUE(other.Content() == box.Content());
  EXPECT_EQ(other.SelStart(), 0);
}

TEST_F(MemoryRichTextBoxTest, HandsOverNothingButTheSelection) {
  box.SetText("one two");
  Select(4, 3);
  EXPECT_EQ(ReadRtf(box.SelRTF()).Text(), "two");
}

TEST_F(MemoryRichTextBoxTest, KeepsItsContentWhenItIsGivenNoRichText) {
  box.SetText("kept");
  Select(1, 2);
  try {
    box.SetTextRTF("plain text");
    FAIL() << "no error was raised";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Number(), error_number::kInvalidFileFormat);
  }
  EXPECT_EQ(box.Text(), "kept");
  EXPECT_EQ(box.SelLength(), 2);
}

TEST_F(MemoryRichTextBoxTest, SavesRichTextThatReadsAsItsContent) {
  box.SetText("If Ж\r\n");
  Select(0, 2);
  box.SetSelColor(kNavy);
  box.SaveFile("C:\\a.rtf", SaveAs::kRichText);
  EXPECT_TRUE(ReadRtf(files.BytesOf("C:\\a.rtf")) == box.Content());
  EXPECT_EQ(box.SelLength(), 2);
}

TEST_F(MemoryRichTextBoxTest, SavesRichTextThatCameInAsItWouldWriteIt) {
  box.SetText("a\r\nb");
  Select(0, 99);
  const std::string document = box.SelRTF();
  MemoryRichTextBox other{8, files};
  other.SetTextRTF(document);
  other.SaveFile("b.rtf", SaveAs::kRichText);
  EXPECT_EQ(files.BytesOf("b.rtf"), document);
}

TEST_F(MemoryRichTextBoxTest, SavesPlainTextInTheCodePageOverAnOldFile) {
  files.Write("a.txt", "a much longer text of before");
  box.SetText("caf\u00E9\n\u20AC");
  box.SaveFile("a.txt", SaveAs::kPlainText);
  EXPECT_EQ(files.BytesOf("a.txt"), "caf\xE9\r\n\x80");
}

TEST_F(MemoryRichTextBoxTest, SavesPlainTextInTheCodePageThatTheFilesHave) {
  TextCodec codec("CP932");
  files.SetCodec(codec);
  box.SetText("日本");
  box.SaveFile("a.txt", SaveAs::kPlainText);
  EXPECT_EQ(files.BytesOf("a.txt"), "\x93\xFA\x96\x7B");
}

TEST_F(MemoryRichTextBoxTest, RaisesErrorFiveForTextThatTheCodePageHasNot) {
  files.Write("a.txt", "old");
  box.SetText("x = \"Ж\"");
  try {
    box.SaveFile("a.txt", SaveAs::kPlainText);
    FAIL() << "no error was raised";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Number(), error_number::kInvalidProcedureCall);
    EXPECT_STREQ(error.what(),
                 "a.txt: the character \"Ж\" (U+0416) does not exist in WINDOWS-1252");
  }
  EXPECT_EQ(files.BytesOf("a.txt"), "old");
}

TEST_F(MemoryRichTextBoxTest, RaisesErrorSeventyFiveWhereNothingCanBeWritten) {
  files.isDiskFull = true;
  for (const SaveAs type : {SaveAs::kRichText, SaveAs::kPlainText}) {
    try {
      box.SaveFile("a", type);
      FAIL() << "no error was raised";
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.Number(), error_number::kPathFileAccess);
    }
  }
  EXPECT_FALSE(files.Exists("a"));
}

TEST_F(MemoryRichTextBoxTest, ShowsOtherProgramsTheCharacterOfAnUnusualByteForm) {
  TextCodec codec("CP932");
  files.SetCodec(codec);
  const std::string bytes = "' \x87\x9C \xFA\x54x";  // second forms of U+222A and of U+FFE2
  box.SetText(codec.Decode(std::string(bytes)));
  Select(5, 1);
  box.SetSelColor(kNavy);
  box.SaveFile("a.rtf", SaveAs::kRichText);
  const RichText shown = ReadRtf(files.BytesOf("a.rtf"));
  EXPECT_EQ(shown.Text(), "' \u222A \uFFE2x");
  EXPECT_EQ(shown.FormatAt(5).color, kNavy);
  EXPECT_EQ(shown.FormatAt(4).color, std::nullopt);
  box.SaveFile("a.txt", SaveAs::kPlainText);
  EXPECT_EQ(files.BytesOf("a.txt"), bytes);
}

TEST_F(MemoryRichTextBoxTest, RemembersWhetherItWraps) {
  EXPECT_TRUE(box.WrapsWords());
  box.SetWordWrap(false);
  EXPECT_FALSE(box.WrapsWords());
}

TEST_F(MemoryRichTextBoxTest, TellsTheLineOfTheCaret) {
  box.SetText("ab\r\n\r\nc");
  std::vector<int> lines;
  std::vector<int> starts;
  for (int position = 0; position <= 7; ++position) {
    box.SetSelStart(position);
    lines.push_back(box.LineFromCaret());
    starts.push_back(box.LineIndexOfCaret());
  }
  EXPECT_EQ(box.LineCount(), 3);
  EXPECT_THAT(lines, ElementsAre(0, 0, 0, 0, 1, 1, 2, 2));
  EXPECT_THAT(starts, ElementsAre(0, 0, 0, 0, 4, 4, 6, 6));
}

TEST_F(MemoryRichTextBoxTest, TakesTheStartOfTheSelectionForTheCaret) {
  box.SetText("a\r\nb\r\nc");
  Select(3, 4);
  EXPECT_EQ(box.LineFromCaret(), 1);
}

TEST_F(MemoryRichTextBoxTest, TellsTheLengthOfTheLineThatHoldsAPosition) {
  box.SetText("日本\r\n\r\nabc");
  EXPECT_EQ(box.LineLength(0), 2);
  EXPECT_EQ(box.LineLength(3), 2);
  EXPECT_EQ(box.LineLength(4), 0);
  EXPECT_EQ(box.LineLength(6), 3);
  EXPECT_EQ(box.LineLength(999), 3);
  EXPECT_EQ(box.LineLength(-1), 2);
}

TEST_F(MemoryRichTextBoxTest, SharesTheFileThatItSavedUnread) {
  MemoryRichTextBoxes boxes(files);
  const auto writer = boxes.Create();
  writer->SetText("one");
  writer->SetSelLength(3);
  const std::string richText = writer->SelRTF();
  const auto saver = boxes.Create();
  saver->SetTextRTF(richText);
  saver->SaveFile("a.rtf", SaveAs::kRichText);
  saver->SetText("two");
  EXPECT_EQ(*files.TakeShared("a.rtf"), richText);
  EXPECT_EQ(*files.TakeShared("a.rtf"), "");
}

TEST_F(MemoryRichTextBoxTest, GivesNoTextForALineThatIsNotThere) {
  box.SetText("a\r\n");
  EXPECT_EQ(LineOf(box, 0), "a");
  EXPECT_EQ(LineOf(box, 1), "");
  EXPECT_EQ(LineOf(box, 2), "");
  EXPECT_EQ(LineOf(box, -1), "");
}

TEST_F(MemoryRichTextBoxTest, IsOneEmptyLineWithoutText) {
  EXPECT_EQ(box.LineCount(), 1);
  EXPECT_EQ(box.LineFromCaret(), 0);
  EXPECT_EQ(box.LineIndexOfCaret(), 0);
  EXPECT_EQ(box.LineLength(0), 0);
  EXPECT_EQ(LineOf(box, 0), "");
}

class LinesReadOneCharacterIn : public testing::TestWithParam<std::vector<std::string>> {};

// Behind a line of the text and a blank, two more characters lead one character into the next line,
// be it empty or not.
TEST_P(LinesReadOneCharacterIn, AreAllTheLines) {
  std::string text;
  for (const std::string& line : GetParam()) text += line + "\r\n";
  text.resize(text.size() - 2);
  MemoryTextFiles files;
  MemoryRichTextBox box{1, files};
  box.SetText(text);
  box.SetSelStart(1);
  std::vector<std::string> lines;
  for (int i = box.LineCount(); i > 0; --i) {
    lines.push_back(LineOf(box, box.LineFromCaret()));
    box.SetSelStart(box.LineIndexOfCaret() + box.LineLength(box.SelStart()) + 1 + 2);
  }
  EXPECT_EQ(lines, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Texts, LinesReadOneCharacterIn,
                         testing::Values(std::vector<std::string>{""},
                                         std::vector<std::string>{"a"},
                                         std::vector<std::string>{"a", "b"},
                                         std::vector<std::string>{"", "", "a"},
                                         std::vector<std::string>{"ab", "", "c"},
                                         std::vector<std::string>{"a", "", "", "bc", ""},
                                         std::vector<std::string>{"日本", "", "é", "😀", ""}));

TEST(MemoryRichTextBoxes, CreatesControlsOfDifferentHandles) {
  MemoryTextFiles files;
  MemoryRichTextBoxes boxes(files);
  const auto first = boxes.Create();
  const auto second = boxes.Create();
  EXPECT_NE(first->hWnd(), second->hWnd());
  first->SetText("a");
  EXPECT_EQ(second->Text(), "");
}

}  // namespace memory_rich_text_box_test
}  // namespace brimwork

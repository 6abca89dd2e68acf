// The system's rich text control beside the one of plain data: what they hold, tell and save.
#include "windows/desktop/rich_edit_box.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <memory>

#include "environment/resume_next.h"
#include "environment/text.h"
#include "memory/memory_rich_text_box.h"
#include "memory/rtf_reader.h"
#include "memory/text_codec.h"
#include "support/module_generator.h"
#include "support/random_rich_text.h"
#include "support/temporary_folder.h"
#include "support/text_colors.h"

namespace brimwork::windows {
namespace rich_edit_box_test {

constexpr Color kBlack = Rgb(0, 0, 0);
constexpr Color kNavy = Rgb(0, 0, 128);
constexpr Color kGreen = Rgb(0, 128, 0);

class RichEditBoxTest : public testing::Test {
 protected:
  std::string PathOf(std::string_view name) { return Utf8Of(folder / name); }

  static std::string Utf8Of(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return std::string(text.begin(), text.end());
  }

  /// What a program reads that opens the saved content.
  RichText Saved(RichTextBox& control) {
    control.SaveFile(PathOf("saved.rtf"), SaveAs::kRichText);
    return ReadRtf(ReadBytes(folder / "saved.rtf"));
  }
  RichText SavedByModel() {
    model.SaveFile("saved.rtf", SaveAs::kRichText);
    return ReadRtf(files.BytesOf("saved.rtf"));
  }

  /// Does the same with both controls.
  template <class Action>
  void Both(Action action) {
    action(*box);
    action(static_cast<RichTextBox&>(model));
  }
  void Select(int start, int length) {
    Both([&](RichTextBox& each) {
      each.SetSelStart(start);
      each.SetSelLength(length);
    });
  }

  void ExpectAlike() {
    ASSERT_EQ(box->Text(), model.Text());
    ASSERT_EQ(box->SelStart(), model.SelStart());
    ASSERT_EQ(box->SelLength(), model.SelLength());
    ASSERT_EQ(box->LineCount(), model.LineCount());
    ASSERT_EQ(box->LineFromCaret(), model.LineFromCaret());
    ASSERT_EQ(box->LineIndexOfCaret(), model.LineIndexOfCaret());
  }
  void ExpectSavedAlike() {
    const RichText saved = Saved(*box);
    const RichText expected = SavedByModel();
    ASSERT_EQ(saved.Text(), expected.Text());
    ASSERT_EQ(ColorsOf(saved), ColorsOf(expected));
  }

  TemporaryFolder folder;
  RichEditBoxes boxes{1252};
  std::unique_ptr<RichTextBox> box = boxes.Create();
  MemoryTextFiles files;
  MemoryRichTextBox model{7, files};
};

TEST_F(RichEditBoxTest, IsEmptyAtFirst) {
  EXPECT_TRUE(IsWindow(reinterpret_cast<HWND>(box->hWnd())));
  EXPECT_FALSE(IsWindowVisible(reinterpret_cast<HWND>(box->hWnd())));
  ExpectAlike();
  ExpectSavedAlike();
}

TEST_F(RichEditBoxTest, ItsWindowGoesWithIt) {
  const auto window = reinterpret_cast<HWND>(box->hWnd());
  box.reset();
  EXPECT_FALSE(IsWindow(window));
}

TEST_F(RichEditBoxTest, HoldsTextOfAnyLineEnds) {
  Both([](RichTextBox& each) {
    each.SetText("one");
    each.SetSelStart(2);
    each.SetText("one\ntwo\rthree\r\n\r\n");
  });
  EXPECT_EQ(box->Text(), "one\r\ntwo\r\nthree\r\n\r\n");
  ExpectAlike();
  ExpectSavedAlike();
}

TEST_F(RichEditBoxTest, HoldsTextThatLooksLikeRichText) {
  Both([](RichTextBox& each) { each.SetText("{\\rtf1 x\\par}"); });
  EXPECT_EQ(box->Text(), "{\\rtf1 x\\par}");
  ExpectSavedAlike();
}

TEST_F(RichEditBoxTest, DrawsTheSelectionBackIntoTheText) {
  Both([](RichTextBox& each) { each.SetText("日本\r\n"); });
  for (const auto& [start, length] : {std::pair(1, 99), {1, 0x7FFFFFFF}, {99, 1}, {-1, -1}}) {
    Select(start, length);
    ExpectAlike();
  }
}

TEST_F(RichEditBoxTest, TellsLinesFromEveryPosition) {
  Both([](RichTextBox& each) { each.SetText("ab\r\n\r\n日本😀\r\n"); });
  for (int position = -1; position <= 14; ++position) {
    Select(position, 0);
    ExpectAlike();
    EXPECT_EQ(box->LineLength(position), model.LineLength(position)) << position;
  }
  for (int line = -1; line <= 4; ++line) {
    std::string text = "before";
    std::string expected = "before";
    box->ReadLine(line, text);
    model.ReadLine(line, expected);
    EXPECT_EQ(text, expected) << line;
  }
}

TEST_F(RichEditBoxTest, FormatsTheSelectionAlone) {
  Both([](RichTextBox& each) { each.SetText("If x 'é\r\nEnd"); });
  Select(0, 99);
  Both([](RichTextBox& each) {
    each.SetSelColor(kBlack);
    each.SetSelFontName("Courier New");
    each.SetSelFontSize(10);
  });
  Select(0, 2);
  Both([](RichTextBox& each) { each.SetSelColor(kNavy); });
  Select(5, 2);
  Both([](RichTextBox& each) { each.SetSelColor(kGreen); });
  const RichText saved = Saved(*box);
  EXPECT_EQ(ColorsOf(saved), "nn...gg.....");
  EXPECT_EQ(saved.FormatAt(3), (TextFormat{"Courier New", 20, kBlack}));
  EXPECT_EQ(saved.FormatAt(6), (TextFormat{"Courier New", 20, kGreen}));
  ExpectSavedAlike();
}

TEST_F(RichEditBoxTest, FormatsNothingWithoutASelection) {
  box->SetText("abc");
  box->SetSelStart(1);
  box->SetSelColor(kNavy);
  box->SetSelFontName("Courier New");
  box->SetSelFontSize(30);
  EXPECT_EQ(Saved(*box).FormatAt(0), TextFormat());
  EXPECT_EQ(Saved(*box).FormatAt(1), TextFormat());
}

TEST_F(RichEditBoxTest, ItsEmptyTextTakesAFormatForWhatComesNext) {
  box->SetSelColor(kGreen);
  box->SetSelText("x");
  EXPECT_EQ(ColorsOf(Saved(*box)), "g");
}

TEST_F(RichEditBoxTest, NewTextHasTheFormatOfANewControl) {
  box->SetText("abc");
  box->SetSelLength(3);
  box->SetSelColor(kNavy);
  box->SetSelFontName("Courier New");
  box->SetText("def");
  EXPECT_EQ(Saved(*box).FormatAt(1), TextFormat());
}

TEST_F(RichEditBoxTest, RefusesSizesThatNoFontHas) {
  for (const int points : {0, -1, 2161}) {
    const auto error = ResumeNext([&] { box->SetSelFontSize(points); });
    ASSERT_TRUE(error) << points;
    EXPECT_EQ(error->Number(), error_number::kInvalidProcedureCall);
  }
}

TEST_F(RichEditBoxTest, ReplacesTheSelectionInTheFormatOfItsFirstCharacter) {
  Both([](RichTextBox& each) { each.SetText("a if b\r\nc"); });
  Select(2, 1);
  Both([](RichTextBox& each) { each.SetSelColor(kNavy); });
  Select(2, 2);
  Both([](RichTextBox& each) { each.SetSelText("if"); });
  ExpectAlike();
  EXPECT_EQ(ColorsOf(Saved(*box)), "??nn?????");
  Select(4, 3);
  Both([](RichTextBox& each) { each.SetSelText("\n語"); });
  ExpectAlike();
  ExpectSavedAlike();
}

TEST_F(RichEditBoxTest, HandsItsFormatsOverAsRichText) {
  box->SetText("If 'c\r\nx Ж\r\n");
  box->SetSelLength(2);
  box->SetSelColor(kNavy);
  box->SetSelStart(0);
  box->SetSelLength(99);
  const auto other = boxes.Create();
  other->SetText("old");
  other->SetSelStart(2);
  other->SetTextRTF(box->SelRTF());
  EXPECT_EQ(other->Text(), box->Text());
  EXPECT_EQ(other->SelStart(), 0);
  EXPECT_EQ(ColorsOf(Saved(*other)), ColorsOf(Saved(*box)));
  other->SetSelLength(1);
  other->SetSelColor(kGreen);
  EXPECT_EQ(Saved(*other).Text(), box->Text());
  EXPECT_EQ(ColorsOf(Saved(*other)), "gn??????????");
}

TEST_F(RichEditBoxTest, HandsOverNothingButTheSelection) {
  box->SetText("one two\r\n");
  box->SetSelStart(4);
  box->SetSelLength(3);
  EXPECT_EQ(ReadRtf(box->SelRTF()).Text(), "two");
  box->SetSelStart(4);
  box->SetSelLength(5);
  EXPECT_EQ(ReadRtf(box->SelRTF()).Text(), "two\r\n");
}

TEST_F(RichEditBoxTest, KeepsItsContentWhenItIsGivenNoRichText) {
  box->SetText("kept");
  box->SetSelLength(2);
  const std::string cut = "{\\rtf1 cut off";
  for (const std::string& text : {std::string("plain text"), std::string(), cut}) {
    const auto error = ResumeNext([&] { box->SetTextRTF(text); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Number(), error_number::kInvalidFileFormat);
  }
  EXPECT_EQ(box->Text(), "kept");
  EXPECT_EQ(box->SelLength(), 2);
  EXPECT_EQ(Saved(*box).Text(), "kept");
}

TEST_F(RichEditBoxTest, ReadsTheRichTextOfOtherPrograms) {
  RandomRichText random(5);
  for (int i = 0; i < 20; ++i) {
    model.SetText("Dim \"Größe\" 'комментарий\r\n\tEnd\r\n");
    const TextRange range = random.Range(20);
    model.SetSelStart(range.start);
    model.SetSelLength(range.length);
    model.SetSelColor(kGreen);
    model.SetSelStart(0);
    model.SetSelLength(99);
    box->SetTextRTF(model.SelRTF());
    ASSERT_EQ(box->Text(), model.Text());
    box->SetSelLength(1);
    box->SetSelColor(kNavy);
    model.SetSelLength(0);
    model.SetSelStart(0);
    model.SetSelLength(1);
    model.SetSelColor(kNavy);
    ASSERT_NO_FATAL_FAILURE(ExpectSavedAlike());
  }
}

TEST_F(RichEditBoxTest, SavesPlainTextInItsCodePageOverAnOldFile) {
  WriteBytes(folder / "a.txt", "a much longer text of before");
  box->SetText("café\n€");
  box->SaveFile(PathOf("a.txt"), SaveAs::kPlainText);
  EXPECT_EQ(ReadBytes(folder / "a.txt"), "caf\xE9\r\n\x80");
}

TEST_F(RichEditBoxTest, RaisesErrorFiveForTextThatTheCodePageHasNot) {
  WriteBytes(folder / "a.txt", "old");
  box->SetText("x = \"Ж\"");
  const auto error = ResumeNext([&] { box->SaveFile(PathOf("a.txt"), SaveAs::kPlainText); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Number(), error_number::kInvalidProcedureCall);
  EXPECT_EQ(ReadBytes(folder / "a.txt"), "old");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path()), {}), 1);
}

TEST_F(RichEditBoxTest, RaisesErrorSeventyFiveWhereNothingCanBeWritten) {
  for (const SaveAs type : {SaveAs::kRichText, SaveAs::kPlainText}) {
    const auto error = ResumeNext([&] { box->SaveFile(PathOf("no folder\\a"), type); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Number(), error_number::kPathFileAccess);
  }
}

TEST_F(RichEditBoxTest, DoesAndSavesWhatPlainDataDoes) {
  RandomRichText random(1);
  for (int round = 0; round < 60; ++round) {
    const std::string text = random.Text(random.Below(60));
    Both([&](RichTextBox& each) { each.SetText(text); });
    for (int action = random.Below(25); action > 0; --action) {
      const TextRange range = random.Range(model.Content().Size());
      Select(range.start, range.length);
      if (random.Below(3) == 0) {
        const std::string piece(random.Piece());
        Both([&](RichTextBox& each) { each.SetSelText(piece); });
      } else {
        const Color color = random.AnyColor();
        Both([&](RichTextBox& each) { each.SetSelColor(color); });
      }
      ASSERT_NO_FATAL_FAILURE(ExpectAlike()) << round;
    }
    ASSERT_NO_FATAL_FAILURE(ExpectSavedAlike()) << round << ": " << model.Text();
    const TextRange part = random.Range(model.Content().Size());
    Select(part.start, part.length);
    const RichText handed = ReadRtf(box->SelRTF());
    const RichText expected = ReadRtf(model.SelRTF());
    ASSERT_EQ(handed.Text(), expected.Text()) << round;
    ASSERT_EQ(ColorsOf(handed), ColorsOf(expected)) << round;
  }
}

// Wine's control takes about two seconds for this; looking through the text for each question would
// take minutes.
TEST_F(RichEditBoxTest, KeepsPaceWithALargeModule) {
  const std::string line = "    If Größe = 1 Then Call Something 'x\r\n";
  const int size = CharacterCount(line);
  constexpr int kLines = 4000;
  const auto color = [&](int start, int length, Color chosen) {
    box->SetSelStart(start);
    box->SetSelLength(length);
    box->SetSelColor(chosen);
  };
  const auto start = std::chrono::steady_clock::now();
  std::string text;
  for (int i = 0; i < kLines; ++i) text += line;
  box->SetText(text);
  color(0, size * kLines, kBlack);
  for (int i = 0; i < kLines; ++i) {
    color(i * size + 4, 2, kNavy);
    box->SetSelText("IF");
    color(i * size + 36, 2, kGreen);
  }
  box->SetSelStart(0);
  box->SetSelLength(size * kLines);
  const auto other = boxes.Create();
  other->SetTextRTF(box->SelRTF());
  EXPECT_EQ(other->Text(), Replace(text, "If", "IF"));
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  EXPECT_LT(taken.count(), 30);
}

}  // namespace rich_edit_box_test
}  // namespace brimwork::windows

#include "memory/memory_text_window.h"

#include <gtest/gtest.h>

#include "memory/memory_clipboard.h"
#include "memory/memory_keyboard.h"

namespace brimwork {
namespace memory_text_window_test {

struct MemoryTextWindowTest : testing::Test {
  /// The text after keystrokes with this selection.
  std::string After(std::string_view keys, int start, int length) {
    window.Select(start, length);
    keyboard.SetFocus(&window);
    keyboard.SendKeys(keys, true);
    return window.Text();
  }

  std::string Selected(int start, int length) {
    window.Select(start, length);
    return window.SelectedText();
  }

  MemoryClipboard clipboard;
  MemoryKeyboard keyboard{clipboard};
  MemoryTextWindow window;
};

TEST_F(MemoryTextWindowTest, IsEmptyAtFirst) {
  EXPECT_EQ(window.Text(), "");
  EXPECT_EQ(window.SelectedText(), "");
}

TEST_F(MemoryTextWindowTest, LinesEndInCrLf) {
  window.SetText("a\nb\r\nc");
  EXPECT_EQ(window.Text(), "a\r\nb\r\nc");
}

TEST_F(MemoryTextWindowTest, TheCaretStandsBehindANewText) {
  window.SetText("? x\r\n");
  window.Type("7");
  EXPECT_EQ(window.Text(), "? x\r\n7");
}

TEST_F(MemoryTextWindowTest, SelectionsCountCharacters) {
  window.SetText("Größe 5");
  EXPECT_EQ(Selected(2, 3), "öße");
}

TEST_F(MemoryTextWindowTest, SelectionsAreDrawnBackIntoTheText) {
  window.SetText("abc");
  EXPECT_EQ(Selected(1, 99), "bc");
  EXPECT_EQ(Selected(99, 1), "");
  EXPECT_EQ(Selected(-5, 2), "ab");
  EXPECT_EQ(Selected(1, -1), "");
}

TEST_F(MemoryTextWindowTest, SelectAllAndDeleteEmptyIt) {
  window.SetText("? Größe\r\n 5 ");
  EXPECT_EQ(After("^(a){Del}", 2, 1), "");
  EXPECT_EQ(window.SelectedText(), "");
}

TEST_F(MemoryTextWindowTest, DeleteTakesTheSelectionAway) {
  window.SetText("Größe");
  EXPECT_EQ(After("{Del}", 2, 2), "Gre");
}

TEST_F(MemoryTextWindowTest, DeleteWithoutASelectionTakesOneCharacter) {
  window.SetText("Größe");
  EXPECT_EQ(After("{Del}{Del}", 2, 0), "Gre");
}

TEST_F(MemoryTextWindowTest, DeleteAtALinesEndJoinsTheNextLine) {
  window.SetText("a\r\nb");
  EXPECT_EQ(After("{Del}", 1, 0), "ab");
}

TEST_F(MemoryTextWindowTest, DeleteAtTheEndDoesNothing) {
  window.SetText("ab");
  EXPECT_EQ(After("{Del}", 2, 0), "ab");
}

TEST_F(MemoryTextWindowTest, TypingReplacesTheSelectionAndGoesOnBehindIt) {
  window.SetText("abcd");
  EXPECT_EQ(After("x", 1, 2), "axd");
  keyboard.SendKeys("y", true);
  EXPECT_EQ(window.Text(), "axyd");
}

TEST_F(MemoryTextWindowTest, CopyAndPasteGoByTheClipboard) {
  window.SetText("abc");
  After("^(c)", 1, 2);
  EXPECT_EQ(clipboard.GetText(), "bc");
  EXPECT_EQ(After("^(v)^(v)", 0, 1), "bcbcbc");
}

TEST_F(MemoryTextWindowTest, CopyOfAnEmptySelectionLeavesTheClipboardAlone) {
  clipboard.SetText("the user's");
  window.SetText("abc");
  After("^(c)", 1, 0);
  EXPECT_EQ(clipboard.GetText(), "the user's");
}

TEST_F(MemoryTextWindowTest, PastedLinesEndInCrLf) {
  clipboard.SetText("1\n2");
  EXPECT_EQ(After("^(v)", 0, 0), "1\r\n2");
}

}  // namespace memory_text_window_test
}  // namespace brimwork

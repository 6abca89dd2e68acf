// What a user's typing changes, and taking it back.
#include "bench/screen/edit_history.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brimwork::bench {
namespace edit_history_test {

std::wstring Applied(std::wstring text, const TextChange& change) {
  return text.replace(change.start, change.removed.size(), change.inserted);
}

TEST(ChangeBetween, IsTheSmallestStretchThatDiffers) {
  EXPECT_EQ(ChangeBetween(L"abcdef", L"abXdef"), (TextChange{2, L"c", L"X"}));
  EXPECT_EQ(ChangeBetween(L"abc", L"ab1c"), (TextChange{2, L"", L"1"}));
  EXPECT_EQ(ChangeBetween(L"aaa", L"aa"), (TextChange{2, L"a", L""}));
  EXPECT_TRUE(ChangeBetween(L"same", L"same").IsNone());
  EXPECT_EQ(ChangeBetween(L"", L"all"), (TextChange{0, L"", L"all"}));
}

TEST(ChangeBetween, CutsNoLineEndInTwo) {
  EXPECT_EQ(ChangeBetween(L"a\r\nb", L"a\r\n\r\nb"), (TextChange{3, L"", L"\r\n"}));
  const TextChange joined = ChangeBetween(L"a\r\r\nb", L"a\r\nb");
  EXPECT_EQ(Applied(L"a\r\r\nb", joined), L"a\r\nb");
  EXPECT_NE(joined.inserted, L"\n");
}

TEST(ChangeBetween, CutsNoPairInTwo) {
  const std::wstring before = L"x\xD83D\xDE00y";
  const std::wstring after = L"x\xD83D\xDE01y";
  EXPECT_EQ(ChangeBetween(before, after), (TextChange{1, L"\xD83D\xDE00", L"\xD83D\xDE01"}));
}

TEST(UndoHistory, TakesTypedWordsBackOneByOne) {
  UndoHistory history;
  std::wstring text;
  for (const wchar_t letter : std::wstring(L"one two")) {
    const std::wstring typed = text + letter;
    history.Note(ChangeBetween(text, typed));
    text = typed;
  }
  text = Applied(text, *history.Undo());
  EXPECT_EQ(text, L"one ");
  text = Applied(text, *history.Undo());
  EXPECT_EQ(text, L"");
  EXPECT_FALSE(history.CanUndo());
  EXPECT_EQ(history.Undo(), std::nullopt);
}

TEST(UndoHistory, KeepsDeletionsAndLineEndsApart) {
  UndoHistory history;
  history.Note({0, L"", L"a"});
  history.Note({1, L"", L"\r\n"});
  history.Note({3, L"", L"b"});
  history.Note({0, L"a", L""});
  EXPECT_EQ(history.Undo(), (TextChange{0, L"", L"a"}));
  EXPECT_EQ(history.Undo(), (TextChange{3, L"b", L""}));
  EXPECT_EQ(history.Undo(), (TextChange{1, L"\r\n", L""}));
  EXPECT_EQ(history.Undo(), (TextChange{0, L"a", L""}));
}

TEST(UndoHistory, KeepsWhatIsTypedElsewhereApart) {
  UndoHistory history;
  history.Note({0, L"", L"a"});
  history.Note({9, L"", L"b"});
  EXPECT_EQ(history.Undo(), (TextChange{9, L"b", L""}));
  EXPECT_TRUE(history.CanUndo());
}

TEST(UndoHistory, MakesATakenBackChangeAgain) {
  UndoHistory history;
  history.Note({4, L"old", L"new"});
  EXPECT_FALSE(history.CanRedo());
  history.Undo();
  EXPECT_EQ(history.Redo(), (TextChange{4, L"old", L"new"}));
  EXPECT_TRUE(history.CanUndo());
  EXPECT_EQ(history.Redo(), std::nullopt);
}

TEST(UndoHistory, ForgetsWhatWasTakenBackWhenTheUserGoesOn) {
  UndoHistory history;
  history.Note({0, L"", L"a"});
  history.Undo();
  history.Note({0, L"", L"b"});
  EXPECT_FALSE(history.CanRedo());
}

TEST(UndoHistory, NotesNoChangeThatIsNone) {
  UndoHistory history;
  history.Note({3, L"", L""});
  EXPECT_FALSE(history.CanUndo());
}

}  // namespace edit_history_test
}  // namespace brimwork::bench

#include "core/saved_selection.h"

#include <gtest/gtest.h>

#include "support/opened_module.h"

namespace brimwork {
namespace saved_selection_test {

/// The caret's line after it was put back into a module of these lines.
int LineAfterPuttingBack(int oldLine, std::string_view text, const TextLines& lines) {
  OpenedModule opened(lines);
  PutCaretBack(opened.Pane(), {{oldLine, 1, oldLine, 1}, std::string(text)});
  return opened.CaretLine();
}

TEST(SavedSelection, IsThePanesSelectionWithTheTextOfItsFirstLine) {
  OpenedModule opened({"a", "b", "c"});
  opened.Pane().SetSelection({2, 1, 3, 2});
  const auto saved = SaveSelection(&opened.Pane());
  ASSERT_TRUE(saved);
  EXPECT_EQ(saved->selection, (Selection{2, 1, 3, 2}));
  EXPECT_EQ(saved->lineText, "b");
}

TEST(SavedSelection, IsNothingWithoutAPane) { EXPECT_FALSE(SaveSelection(nullptr)); }

TEST(SavedSelection, TheCaretGoesToTheLineThatHasTheTextNow) {
  EXPECT_EQ(LineAfterPuttingBack(1, "x = 1", {"a", "b", "x = 1"}), 3);
  EXPECT_EQ(LineAfterPuttingBack(3, "x = 1", {"x = 1", "b", "c"}), 1);
}

TEST(SavedSelection, TheTextIsComparedWithItsLetterCase) {
  EXPECT_EQ(LineAfterPuttingBack(1, "x = 1", {"a", "X = 1", "x = 1"}), 3);
}

TEST(SavedSelection, OfSeveralEqualLinesTheNearestToTheOldLineIsTaken) {
  EXPECT_EQ(LineAfterPuttingBack(4, "x", {"x", "a", "b", "c", "d", "x", "x"}), 6);
  EXPECT_EQ(LineAfterPuttingBack(4, "x", {"x", "x", "b", "c", "d", "e", "x"}), 2);
}

TEST(SavedSelection, InATieTheUpperOfTwoEqualLinesIsTaken) {
  EXPECT_EQ(LineAfterPuttingBack(3, "x", {"a", "x", "b", "x", "c"}), 2);
}

TEST(SavedSelection, AnEqualLineIsTakenBeforeANearerOneThatOnlyHoldsTheText) {
  EXPECT_EQ(LineAfterPuttingBack(1, "x", {"xx", "y x", "a", "x"}), 4);
}

TEST(SavedSelection, TheCaretGoesToTheOldLineNumberWhenTheTextIsGone) {
  EXPECT_EQ(LineAfterPuttingBack(2, "x = 1", {"a", "b", "c"}), 2);
}

TEST(SavedSelection, TheCaretGoesToTheEndWhenTheOldLineIsGoneToo) {
  EXPECT_EQ(LineAfterPuttingBack(9, "x = 1", {"a", "b"}), 2);
  EXPECT_EQ(LineAfterPuttingBack(1, "x = 1", {}), 1);
}

TEST(SavedSelection, TheCaretKeepsItsColumn) {
  OpenedModule opened({"a", "Größe = 1"});
  PutCaretBack(opened.Pane(), {{1, 6, 1, 6}, "Größe = 1"});
  EXPECT_EQ(opened.Pane().GetSelection(), (Selection{2, 6, 2, 6}));
}

}  // namespace saved_selection_test
}  // namespace brimwork

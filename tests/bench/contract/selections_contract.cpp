// The caret and the selection of a code pane.
#include "bench/contract/contract_environment.h"

namespace brimwork::contract {

Selection Selected(CodePane& pane, const Selection& selection) {
  pane.SetSelection(selection);
  return pane.GetSelection();
}

TEST_P(SelectionsContract, TheCaretStandsAtTheTopAtFirst) {
  EXPECT_EQ(OpenPane({"abc"})->GetSelection(), (Selection{1, 1, 1, 1}));
}

TEST_P(SelectionsContract, ASelectionIsGivenBackAsItWasSet) {
  const auto pane = OpenPane({"abc", "def"});
  EXPECT_EQ(Selected(*pane, {1, 2, 2, 4}), (Selection{1, 2, 2, 4}));
  EXPECT_EQ(Selected(*pane, {2, 2, 2, 2}), (Selection{2, 2, 2, 2}));
}

TEST_P(SelectionsContract, WholeLinesEndAtTheStartOfTheNextLine) {
  const auto pane = OpenPane({"abc", "def", "ghi"});
  EXPECT_EQ(Selected(*pane, {1, 1, 3, 1}), (Selection{1, 1, 3, 1}));
}

TEST_P(SelectionsContract, TheCaretMayStandBehindTheLastCharacter) {
  const auto pane = OpenPane({"abc", ""});
  EXPECT_EQ(Selected(*pane, {1, 4, 1, 4}), (Selection{1, 4, 1, 4}));
  EXPECT_EQ(Selected(*pane, {2, 1, 2, 1}), (Selection{2, 1, 2, 1}));
}

TEST_P(SelectionsContract, PositionsBehindTheTextAreDrawnBackToItsEnd) {
  const auto pane = OpenPane({"abc", "def"});
  EXPECT_EQ(Selected(*pane, {9, 1, 9, 1}), (Selection{2, 4, 2, 4}));
  EXPECT_EQ(Selected(*pane, {1, 99, 1, 99}), (Selection{1, 4, 1, 4}));
  EXPECT_EQ(Selected(*pane, {1, 2, 3, 1}), (Selection{1, 2, 2, 4}));
}

TEST_P(SelectionsContract, PositionsInFrontOfTheTextAreDrawnToItsStart) {
  const auto pane = OpenPane({"abc", "def"});
  EXPECT_EQ(Selected(*pane, {0, 0, 0, 0}), (Selection{1, 1, 1, 1}));
  EXPECT_EQ(Selected(*pane, {2, -1, 2, -1}), (Selection{2, 1, 2, 1}));
}

TEST_P(SelectionsContract, AnEmptyModuleHasTheCaretAtItsTop) {
  EXPECT_EQ(Selected(*OpenPane({}), {5, 5, 6, 6}), (Selection{1, 1, 1, 1}));
}

TEST_P(SelectionsContract, AReversedSelectionIsTurnedRound) {
  EXPECT_EQ(Selected(*OpenPane({"abc", "def"}), {2, 2, 1, 3}), (Selection{1, 3, 2, 2}));
}

TEST_P(SelectionsContract, ColumnsCountCharacters) {
  const auto pane = OpenPane({"Größe"});
  EXPECT_EQ(Selected(*pane, {1, 3, 1, 5}), (Selection{1, 3, 1, 5}));
  EXPECT_EQ(Selected(*pane, {1, 99, 1, 99}), (Selection{1, 6, 1, 6}));
}

TEST_P(SelectionsContract, ACharacterBeyondTheBasicPlaneIsOneColumn) {
  const auto pane = OpenPane({"\xF0\x9F\x98\x80z\xF0\x9F\x98\x80", "abc"});
  EXPECT_EQ(Selected(*pane, {1, 2, 1, 3}), (Selection{1, 2, 1, 3}));
  EXPECT_EQ(Selected(*pane, {1, 1, 1, 4}), (Selection{1, 1, 1, 4}));
  EXPECT_EQ(Selected(*pane, {1, 99, 1, 99}), (Selection{1, 4, 1, 4}));
}

}  // namespace brimwork::contract

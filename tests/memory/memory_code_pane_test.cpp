// What a pane of plain data does beyond what every pane does (tests/bench/contract).
#include "memory/memory_code_pane.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "memory/memory_clipboard.h"
#include "support/module_lines.h"

namespace brimwork {
namespace memory_code_pane_test {

using testing::ElementsAre;

struct MemoryCodePaneTest : testing::Test {
  void OpenPane(const TextLines& lines) {
    pane = std::make_shared<MemoryCodePane>(
        std::make_shared<MemoryCodeModule>("Module1", ModuleText::FromText(JoinedLines(lines))));
  }
  TextLines Lines() { return LinesOf(*pane->Module()); }

  MemoryClipboard clipboard;
  std::shared_ptr<MemoryCodePane> pane;
};

TEST_F(MemoryCodePaneTest, SelectedTextIsCountedInCharacters) {
  OpenPane({"Größe"});
  pane->SetSelection({1, 3, 1, 5});
  EXPECT_EQ(pane->SelectedText(), "öß");
}

TEST_F(MemoryCodePaneTest, SelectedTextHasItsLinesJoined) {
  OpenPane({"abc", "middle", "def"});
  pane->SetSelection({1, 2, 3, 3});
  EXPECT_EQ(pane->SelectedText(), "bc\r\nmiddle\r\nde");
  pane->SetSelection({1, 2, 1, 2});
  EXPECT_EQ(pane->SelectedText(), "");
}

TEST_F(MemoryCodePaneTest, CopyPutsTheSelectedTextOnTheClipboard) {
  OpenPane({"abc"});
  pane->SetSelection({1, 2, 1, 4});
  pane->Copy(clipboard);
  EXPECT_EQ(clipboard.GetText(), "bc");
}

TEST_F(MemoryCodePaneTest, CopyOfAnEmptySelectionLeavesTheClipboardAlone) {
  OpenPane({"abc"});
  clipboard.SetText("the user's");
  pane->Copy(clipboard);
  EXPECT_EQ(clipboard.GetText(), "the user's");
}

TEST_F(MemoryCodePaneTest, PasteInsertsAtTheCaretWhichThenStandsBehindTheText) {
  OpenPane({"Größe = 1"});
  clipboard.SetText("xy");
  pane->SetSelection({1, 6, 1, 6});
  pane->Paste(clipboard);
  EXPECT_THAT(Lines(), ElementsAre("Größexy = 1"));
  EXPECT_EQ(pane->GetSelection(), (Selection{1, 8, 1, 8}));
}

TEST_F(MemoryCodePaneTest, PasteReplacesTheSelection) {
  OpenPane({"abc", "middle", "def", "end"});
  clipboard.SetText("X");
  pane->SetSelection({1, 2, 3, 3});
  pane->Paste(clipboard);
  EXPECT_THAT(Lines(), ElementsAre("aXf", "end"));
  EXPECT_EQ(pane->GetSelection(), (Selection{1, 3, 1, 3}));
}

TEST_F(MemoryCodePaneTest, PasteOfSeveralLinesMakesSeveralLines) {
  OpenPane({"abc"});
  clipboard.SetText("1\r\n22\r\n333");
  pane->SetSelection({1, 2, 1, 3});
  pane->Paste(clipboard);
  EXPECT_THAT(Lines(), ElementsAre("a1", "22", "333c"));
  EXPECT_EQ(pane->GetSelection(), (Selection{3, 4, 3, 4}));
}

TEST_F(MemoryCodePaneTest, TypingIntoAnEmptyModuleMakesItsFirstLine) {
  OpenPane({});
  pane->Type("x = 1");
  EXPECT_THAT(Lines(), ElementsAre("x = 1"));
  EXPECT_EQ(pane->GetSelection(), (Selection{1, 6, 1, 6}));
}

TEST_F(MemoryCodePaneTest, SelectAllTakesEverything) {
  OpenPane({"abc", "de"});
  pane->SelectAll();
  EXPECT_EQ(pane->SelectedText(), "abc\r\nde");
}

TEST_F(MemoryCodePaneTest, DeleteTakesTheSelectionAway) {
  OpenPane({"abc", "def"});
  pane->SetSelection({1, 3, 2, 2});
  pane->Delete();
  EXPECT_THAT(Lines(), ElementsAre("abef"));
  EXPECT_EQ(pane->GetSelection(), (Selection{1, 3, 1, 3}));
}

TEST_F(MemoryCodePaneTest, DeleteWithoutASelectionTakesTheCharacterBehindTheCaret) {
  OpenPane({"aöc"});
  pane->SetSelection({1, 2, 1, 2});
  pane->Delete();
  EXPECT_THAT(Lines(), ElementsAre("ac"));
}

TEST_F(MemoryCodePaneTest, DeleteAtALinesEndJoinsTheNextLine) {
  OpenPane({"abc", "def"});
  pane->SetSelection({1, 4, 1, 4});
  pane->Delete();
  EXPECT_THAT(Lines(), ElementsAre("abcdef"));
}

TEST_F(MemoryCodePaneTest, DeleteAtTheEndOfTheModuleDoesNothing) {
  OpenPane({"abc"});
  pane->SetSelection({1, 4, 1, 4});
  pane->Delete();
  EXPECT_THAT(Lines(), ElementsAre("abc"));
  OpenPane({});
  pane->Delete();
  EXPECT_THAT(Lines(), ElementsAre());
}

}  // namespace memory_code_pane_test
}  // namespace brimwork

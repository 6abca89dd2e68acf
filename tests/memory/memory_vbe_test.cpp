#include "memory/memory_vbe.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "memory/memory_clipboard.h"
#include "memory/usual_windows.h"
#include "support/shown_windows.h"

namespace brimwork {
namespace memory_vbe_test {

using testing::ElementsAre;

struct MemoryVbeTest : testing::Test {
  std::shared_ptr<MemoryCodePane> Open(const std::string& name) {
    auto pane = std::make_shared<MemoryCodePane>(
        std::make_shared<MemoryCodeModule>(name, ModuleText::FromText("x = 1\r\n")));
    vbe.OpenPane(pane, name + " (Code)");
    return pane;
  }

  MemoryClipboard clipboard;
  MemoryKeyboard keyboard{clipboard};
  MemoryVbe vbe{keyboard, clipboard};
};

TEST_F(MemoryVbeTest, StartsWithTheMainWindowAndTheMenuBar) {
  EXPECT_THAT(ShownWindows(vbe), ElementsAre("Visual Basic"));
  EXPECT_THAT(ShownBars(vbe), ElementsAre("Menu Bar"));
  EXPECT_EQ(vbe.MainWindow()->Type(), window_type::kMainWindow);
  EXPECT_EQ(vbe.ActiveCodePane(), nullptr);
  EXPECT_EQ(vbe.ActiveWindow(), nullptr);
}

TEST_F(MemoryVbeTest, AnOpenedPaneIsActiveWithItsWindowAndTakesTheKeys) {
  const auto pane = Open("Module1");
  EXPECT_EQ(vbe.ActiveCodePane(), pane);
  EXPECT_EQ(vbe.ActiveWindow(), pane->ContainingWindow());
  EXPECT_EQ(vbe.ActiveWindow()->Caption(), "Module1 (Code)");
  EXPECT_EQ(keyboard.Focus(), pane.get());
}

TEST_F(MemoryVbeTest, NoWindowIsActiveWhileTheMainWindowHasTheFocus) {
  Open("Module1");
  vbe.MainWindow()->SetFocus();
  EXPECT_EQ(vbe.ActiveWindow(), nullptr);
}

TEST_F(MemoryVbeTest, ThePaneStaysActiveWhileAToolWindowHasTheFocus) {
  const auto pane = Open("Module1");
  const UsualWindows usual = AddUsualWindows(vbe);
  usual.immediate->SetFocus();
  EXPECT_EQ(vbe.ActiveCodePane(), pane);
  EXPECT_EQ(vbe.ActiveWindow(), usual.immediate);
}

TEST_F(MemoryVbeTest, ThePaneOfTheFocusedCodeWindowBecomesTheActiveOne) {
  const auto first = Open("Module1");
  Open("Module2");
  first->ContainingWindow()->SetFocus();
  EXPECT_EQ(vbe.ActiveCodePane(), first);
  EXPECT_EQ(keyboard.Focus(), first.get());
}

TEST_F(MemoryVbeTest, ClosingTheActiveCodeWindowLeavesNoFocus) {
  Open("Module1");
  const auto second = Open("Module2");
  second->ContainingWindow()->Close();
  EXPECT_EQ(vbe.ActiveWindow(), nullptr);
  EXPECT_EQ(keyboard.Focus(), nullptr);
  EXPECT_EQ(second->ContainingWindow(), nullptr);
}

TEST_F(MemoryVbeTest, ClosingTheActiveCodeWindowFallsBackOnThePaneThatWasActiveBefore) {
  const auto first = Open("Module1");
  const auto second = Open("Module2");
  Open("Module3");
  first->ContainingWindow()->SetFocus();
  second->ContainingWindow()->SetFocus();
  second->ContainingWindow()->Close();
  EXPECT_EQ(vbe.ActiveCodePane(), first);
}

TEST_F(MemoryVbeTest, ClosingAnotherCodeWindowLeavesTheActivePane) {
  const auto first = Open("Module1");
  const auto second = Open("Module2");
  first->ContainingWindow()->Close();
  EXPECT_EQ(vbe.ActiveCodePane(), second);
  EXPECT_EQ(vbe.ActiveWindow(), second->ContainingWindow());
  EXPECT_EQ(keyboard.Focus(), second.get());
}

TEST_F(MemoryVbeTest, ClosingACodeWindowMakesNoPaneActiveWhereNoneWas) {
  const auto first = Open("Module1");
  Open("Module2");
  vbe.SetActivePane(nullptr);
  first->ContainingWindow()->Close();
  EXPECT_EQ(vbe.ActiveCodePane(), nullptr);
}

TEST_F(MemoryVbeTest, NoPaneIsActiveBehindTheLastCodeWindow) {
  Open("Module1")->ContainingWindow()->Close();
  EXPECT_EQ(vbe.ActiveCodePane(), nullptr);
  EXPECT_THAT(ShownWindows(vbe), ElementsAre("Visual Basic"));
}

TEST_F(MemoryVbeTest, ClosingADesignerLeavesTheActivePane) {
  const auto pane = Open("Form1");
  const auto designer = vbe.windows.Add("Form1 (Form)", window_type::kDesigner);
  designer->SetFocus();
  designer->Close();
  EXPECT_EQ(vbe.ActiveCodePane(), pane);
  EXPECT_EQ(vbe.ActiveWindow(), nullptr);
}

TEST_F(MemoryVbeTest, TheListOfWindowsOutlivesTheClosingOfOne) {
  const auto pane = Open("Module1");
  const auto listed = vbe.Windows();
  pane->ContainingWindow()->Close();
  ASSERT_EQ(listed.size(), 2u);
  EXPECT_EQ(listed[1]->Caption(), "Module1 (Code)");
  EXPECT_EQ(vbe.Windows().size(), 1u);
}

TEST_F(MemoryVbeTest, FindsAWindowByItsCaption) {
  const UsualWindows usual = AddUsualWindows(vbe);
  EXPECT_EQ(vbe.WindowOfCaption("Immediate"), usual.immediate);
  EXPECT_EQ(vbe.WindowOfCaption("None"), nullptr);
}

TEST_F(MemoryVbeTest, TheUsualWindowsAndBarsStandBehindWhatWasThere) {
  AddUsualWindows(vbe);
  EXPECT_THAT(ShownWindows(vbe), ElementsAre("Visual Basic", "Project - Project1",
                                             "Properties - Module1", "Toolbox", "Immediate"));
  EXPECT_THAT(ShownBars(vbe), ElementsAre("Menu Bar", "Standard", "Edit"));
  EXPECT_FALSE(vbe.WindowOfCaption("Locals")->Visible());
  EXPECT_FALSE(vbe.WindowOfCaption("Watches")->Visible());
}

TEST_F(MemoryVbeTest, TheImmediateWindowTakesText) {
  const UsualWindows usual = AddUsualWindows(vbe);
  usual.immediate->SetFocus();
  keyboard.SendKeys("? Now", true);
  EXPECT_EQ(usual.immediateText->Text(), "? Now");
}

TEST_F(MemoryVbeTest, ListsItsPanesInTheOrderOfTheirOpening) {
  const auto first = Open("Module1");
  const auto second = Open("Module2");
  first->ContainingWindow()->SetFocus();
  EXPECT_THAT(vbe.Panes(), ElementsAre(first, second));
  EXPECT_EQ(vbe.ActivePane(), first);
  first->ContainingWindow()->Close();
  EXPECT_THAT(vbe.Panes(), ElementsAre(second));
}

TEST_F(MemoryVbeTest, TheMainWindowMayHaveAnotherCaption) {
  vbe.SetCaption("Stock - Editor");
  EXPECT_EQ(vbe.MainWindow()->Caption(), "Stock - Editor");
}

}  // namespace memory_vbe_test
}  // namespace brimwork

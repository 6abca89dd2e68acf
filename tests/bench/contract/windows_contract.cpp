// The windows and panes of the environment.
#include <gmock/gmock.h>

#include <algorithm>

#include "bench/contract/contract_environment.h"

namespace brimwork::contract {

using testing::Contains;
using testing::Not;

std::vector<std::string> WindowCaptions(VBE& vbe) {
  std::vector<std::string> captions;
  for (const auto& window : vbe.Windows()) captions.push_back(window->Caption());
  return captions;
}

/// The window of a type; null when there is none.
std::shared_ptr<Window> WindowOfType(VBE& vbe, int type) {
  const auto windows = vbe.Windows();
  const auto found =
      std::ranges::find_if(windows, [&](const auto& window) { return window->Type() == type; });
  return found == windows.end() ? nullptr : *found;
}

TEST_P(WindowsContract, TheMainWindowIsAmongTheWindows) {
  const auto main = WindowOfType(Vbe(), window_type::kMainWindow);
  ASSERT_NE(main, nullptr);
  EXPECT_EQ(main->Identity(), Vbe().MainWindow()->Identity());
  EXPECT_EQ(main->Caption(), Vbe().MainWindow()->Caption());
  EXPECT_TRUE(main->Visible());
}

TEST_P(WindowsContract, TheUsualToolWindowsAreThere) {
  for (const int type : {window_type::kImmediate, window_type::kLocals, window_type::kWatch,
                         window_type::kProject, window_type::kProperties}) {
    const auto window = WindowOfType(Vbe(), type);
    ASSERT_NE(window, nullptr) << type;
    EXPECT_NE(window->Caption(), "") << type;
  }
}

TEST_P(WindowsContract, AnOpenedPaneIsActiveWithItsWindow) {
  const auto pane = OpenPane({"x = 1"});
  const auto window = pane->ContainingWindow();
  EXPECT_EQ(window->Type(), window_type::kCodeWindow);
  EXPECT_THAT(WindowCaptions(Vbe()), Contains(window->Caption()));
  ASSERT_NE(Vbe().ActiveWindow(), nullptr);
  EXPECT_EQ(Vbe().ActiveWindow()->Identity(), window->Identity());
  EXPECT_EQ(Vbe().ActiveCodePane()->Module()->Identity(), pane->Module()->Identity());
}

TEST_P(WindowsContract, NoPaneIsActiveWithoutACodeWindow) {
  EXPECT_EQ(Vbe().ActiveCodePane(), nullptr);
  OpenPane({})->ContainingWindow()->Close();
  EXPECT_EQ(Vbe().ActiveCodePane(), nullptr);
}

TEST_P(WindowsContract, NoWindowIsActiveWhileTheMainWindowHasTheFocus) {
  OpenPane({});
  Vbe().MainWindow()->SetFocus();
  EXPECT_EQ(Vbe().ActiveWindow(), nullptr);
}

TEST_P(WindowsContract, ThePaneStaysActiveWhileAToolWindowHasTheFocus) {
  const auto pane = OpenPane({"x = 1"});
  const auto immediate = WindowOfType(Vbe(), window_type::kImmediate);
  immediate->SetVisible(true);
  immediate->SetFocus();
  EXPECT_EQ(Vbe().ActiveWindow()->Identity(), immediate->Identity());
  EXPECT_EQ(Vbe().ActiveCodePane()->Module()->Identity(), pane->Module()->Identity());
}

TEST_P(WindowsContract, ThePaneOfTheFocusedCodeWindowIsTheActiveOne) {
  const auto first = TheEnvironment().Open("modFirst", {});
  TheEnvironment().Open("modSecond", {});
  first->ContainingWindow()->SetFocus();
  EXPECT_EQ(Vbe().ActiveCodePane()->Module()->Name(), "modFirst");
}

TEST_P(WindowsContract, ClosingACodeWindowTakesItAway) {
  const auto pane = OpenPane({});
  const std::string caption = pane->ContainingWindow()->Caption();
  ASSERT_NE(Vbe().WindowOfCaption(caption), nullptr);
  pane->ContainingWindow()->Close();
  EXPECT_EQ(Vbe().WindowOfCaption(caption), nullptr);
  EXPECT_THAT(WindowCaptions(Vbe()), Not(Contains(caption)));
}

TEST_P(WindowsContract, ClosingAToolWindowHidesIt) {
  const auto immediate = WindowOfType(Vbe(), window_type::kImmediate);
  immediate->SetVisible(true);
  ASSERT_TRUE(immediate->Visible());
  immediate->Close();
  EXPECT_FALSE(immediate->Visible());
  EXPECT_NE(Vbe().WindowOfCaption(immediate->Caption()), nullptr);
}

TEST_P(WindowsContract, AHiddenWindowTakesNoFocus) {
  const auto immediate = WindowOfType(Vbe(), window_type::kImmediate);
  immediate->SetVisible(false);
  EXPECT_NE(NumberOfErrorIn([&] { immediate->SetFocus(); }), 0);
  immediate->SetVisible(true);
  EXPECT_EQ(NumberOfErrorIn([&] { immediate->SetFocus(); }), 0);
}

TEST_P(WindowsContract, AWindowIsFoundByItsExactCaption) {
  const auto immediate = WindowOfType(Vbe(), window_type::kImmediate);
  const std::string caption = immediate->Caption();
  ASSERT_NE(Vbe().WindowOfCaption(caption), nullptr);
  EXPECT_EQ(Vbe().WindowOfCaption(caption)->Identity(), immediate->Identity());
  EXPECT_EQ(Vbe().WindowOfCaption(caption + "?"), nullptr);
  std::string otherCase = caption;
  otherCase[0] = static_cast<char>(otherCase[0] ^ 0x20);
  EXPECT_EQ(Vbe().WindowOfCaption(otherCase), nullptr);
}

TEST_P(WindowsContract, EachWindowHasAnIdentityOfItsOwn) {
  OpenPane({});
  const auto windows = Vbe().Windows();
  for (std::size_t i = 0; i < windows.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      EXPECT_NE(windows[i]->Identity(), windows[j]->Identity())
          << windows[i]->Caption() << ", " << windows[j]->Caption();
    }
  }
}

TEST_P(WindowsContract, TheListOfWindowsOutlivesTheClosingOfOne) {
  const auto pane = OpenPane({});
  const auto listed = Vbe().Windows();
  pane->ContainingWindow()->Close();
  EXPECT_EQ(Vbe().Windows().size(), listed.size() - 1);
}

}  // namespace brimwork::contract

#include "memory/memory_window.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "environment/run_time_error.h"
#include "memory/memory_clipboard.h"
#include "memory/memory_text_window.h"

namespace brimwork {
namespace memory_window_test {

using testing::ElementsAre;

struct MemoryWindowTest : testing::Test {
  std::string RefusalOf(MemoryWindow& window) {
    try {
      window.SetFocus();
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.Number(), error_number::kInvalidProcedureCall);
      return error.what();
    }
    return "none";
  }

  MemoryClipboard clipboard;
  MemoryKeyboard keyboard{clipboard};
  MemoryWindows windows{keyboard};
  std::shared_ptr<MemoryTextWindow> text = std::make_shared<MemoryTextWindow>();
  std::shared_ptr<MemoryWindow> immediate = windows.Add("Immediate", window_type::kImmediate, text);
  std::shared_ptr<MemoryWindow> locals = windows.Add("Locals", window_type::kLocals);
  std::shared_ptr<MemoryWindow> code = windows.Add("Module1 (Code)", window_type::kCodeWindow);
};

TEST_F(MemoryWindowTest, WindowsStandInTheOrderInWhichTheyWereAdded) {
  EXPECT_THAT(windows.All(), ElementsAre(immediate, locals, code));
}

TEST_F(MemoryWindowTest, EachWindowHasAnIdentityOfItsOwn) {
  EXPECT_EQ(windows.OfCaption("Locals")->Identity(), locals->Identity());
  EXPECT_NE(immediate->Identity(), locals->Identity());
}

TEST_F(MemoryWindowTest, AWindowIsFoundByItsExactCaption) {
  EXPECT_EQ(windows.OfCaption("Immediate"), immediate);
  EXPECT_EQ(windows.OfCaption("immediate"), nullptr);
}

TEST_F(MemoryWindowTest, AFocusedWindowIsActiveAndTakesTheKeys) {
  EXPECT_EQ(windows.Active(), nullptr);
  immediate->SetFocus();
  keyboard.SendKeys("? 1", true);
  EXPECT_EQ(windows.Active(), immediate);
  EXPECT_EQ(text->Text(), "? 1");
}

TEST_F(MemoryWindowTest, KeysGoNowhereInAWindowWithoutText) {
  immediate->SetFocus();
  locals->SetFocus();
  keyboard.SendKeys("? 1", true);
  EXPECT_EQ(windows.Active(), locals);
  EXPECT_EQ(text->Text(), "");
}

TEST_F(MemoryWindowTest, AHiddenWindowTakesNoFocus) {
  locals->SetFocus();
  immediate->SetVisible(false);
  EXPECT_EQ(RefusalOf(*immediate), "the window \"Immediate\" is hidden and takes no focus");
  EXPECT_EQ(windows.Active(), locals);
}

TEST_F(MemoryWindowTest, AWindowThatIsHiddenGivesTheFocusAway) {
  immediate->SetFocus();
  immediate->SetVisible(false);
  EXPECT_EQ(windows.Active(), nullptr);
  keyboard.SendKeys("? 1", true);
  EXPECT_EQ(text->Text(), "");
}

TEST_F(MemoryWindowTest, HidingAnotherWindowLeavesTheFocusWhereItIs) {
  immediate->SetFocus();
  locals->SetVisible(false);
  EXPECT_EQ(windows.Active(), immediate);
}

TEST_F(MemoryWindowTest, ShowingAWindowGivesItNoFocus) {
  immediate->SetFocus();
  locals->SetVisible(false);
  locals->SetVisible(true);
  EXPECT_EQ(windows.Active(), immediate);
}

TEST_F(MemoryWindowTest, ClosingAToolWindowHidesIt) {
  immediate->SetFocus();
  immediate->Close();
  EXPECT_FALSE(immediate->Visible());
  EXPECT_EQ(windows.OfCaption("Immediate"), immediate);
  EXPECT_EQ(windows.Active(), nullptr);
  EXPECT_EQ(keyboard.Focus(), nullptr);
}

TEST_F(MemoryWindowTest, ClosingACodeWindowOrDesignerTakesItAway) {
  windows.Add("Form1 (Form)", window_type::kDesigner)->Close();
  code->Close();
  EXPECT_THAT(windows.All(), ElementsAre(immediate, locals));
}

TEST_F(MemoryWindowTest, ClosingTheFocusedCodeWindowLeavesNoFocus) {
  code->SetFocus();
  code->Close();
  EXPECT_EQ(windows.Active(), nullptr);
  EXPECT_EQ(keyboard.Focus(), nullptr);
}

TEST_F(MemoryWindowTest, ClosingAnotherCodeWindowLeavesTheFocusWhereItIs) {
  immediate->SetFocus();
  code->Close();
  EXPECT_EQ(windows.Active(), immediate);
  EXPECT_EQ(keyboard.Focus(), text.get());
}

TEST_F(MemoryWindowTest, AClosedWindowTakesNoFocusAndClosesOnlyOnce) {
  int removals = 0;
  windows.OnRemove([&](MemoryWindow&) { ++removals; });
  locals->SetFocus();
  code->Close();
  code->Close();
  EXPECT_EQ(removals, 1);
  EXPECT_EQ(RefusalOf(*code), "the window \"Module1 (Code)\" is closed and takes no focus");
  EXPECT_EQ(windows.Active(), locals);
}

TEST_F(MemoryWindowTest, TellsWhichWindowGotTheFocusAndWhichGoesAway) {
  std::vector<std::string> told;
  windows.OnActivate([&](MemoryWindow& window) { told.push_back("active " + window.Caption()); });
  windows.OnRemove([&](MemoryWindow& window) { told.push_back("gone " + window.Caption()); });
  immediate->SetFocus();
  code->Close();
  locals->Close();
  EXPECT_THAT(told, ElementsAre("active Immediate", "gone Module1 (Code)"));
}

TEST_F(MemoryWindowTest, EveryChangeIsNoticedAndNothingElse) {
  const auto changes = [&](const std::function<void()>& step) {
    const auto before = windows.Revision();
    step();
    return windows.Revision() > before;
  };
  const auto window = windows.Add("Locals", window_type::kLocals);
  EXPECT_TRUE(changes([&] { window->SetFocus(); }));
  EXPECT_FALSE(changes([&] { window->SetFocus(); }));
  EXPECT_TRUE(changes([&] { window->SetCaption("Watches"); }));
  EXPECT_FALSE(changes([&] { window->SetCaption("Watches"); }));
  EXPECT_TRUE(changes([&] { window->SetVisible(false); }));
  EXPECT_FALSE(changes([&] { window->SetVisible(false); }));
  EXPECT_TRUE(changes([&] { windows.Remove(*window); }));
  EXPECT_TRUE(changes([&] { windows.Add("Locals", window_type::kLocals); }));
}

}  // namespace memory_window_test
}  // namespace brimwork

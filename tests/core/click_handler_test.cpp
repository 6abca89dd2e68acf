#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/modButtonClicked.h"
#include "environment/run_time_error.h"
#include "support/click.h"
#include "support/opened_module.h"

namespace brimwork {
namespace click_handler_test {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::SizeIs;

const CatalogueEntry& EntryOf(int handler) {
  for (const CatalogueEntry& entry : Catalogue()) {
    if (entry.handler == handler) return entry;
  }
  throw std::out_of_range("no entry has this handler");
}

/// Notes every pointer that was shown.
class NotingScreen : public MemoryScreen {
 public:
  void SetMousePointer(int pointer) override {
    shown.push_back(pointer);
    MemoryScreen::SetMousePointer(pointer);
  }
  std::vector<int> shown;
};

/// Notes the pointer at each keystroke, and may refuse the keys.
class WatchingKeyboard : public Keyboard {
 public:
  explicit WatchingKeyboard(Screen& screen) : screen_(screen) {}
  void SendKeys(std::string_view, bool) override {
    pointers.push_back(screen_.MousePointer());
    if (refuses)
      throw RunTimeError(error_number::kInvalidProcedureCall, "no window takes the keys");
  }
  std::vector<int> pointers;
  bool refuses = false;

 private:
  Screen& screen_;
};

struct ClickHandler : testing::Test {
  ClickHandler() {
    memory.Open("Module1", ModuleText::FromText("Sub A()\r\nx = 1\r\nEnd Sub\r\n"));
    screen.AddWindow(MemoryVbe::kMainWindowCaption, 1);
  }

  void ClickOn(int handler) { Click(addIn, EntryOf(handler), EntryOf(handler).caption); }
  TextLines Lines() { return LinesOf(*memory.vbe.ActiveCodePane()->Module()); }

  MemoryEnvironment memory;
  NotingScreen screen;
  WatchingKeyboard keyboard{screen};
  AddIn addIn{memory.Parts({.screen = &screen, .keyboard = &keyboard})};
};

TEST_F(ClickHandler, ShowsTheHourglassWhileTheCommandRunsAndThenTheDefaultPointer) {
  ClickOn(4);
  EXPECT_THAT(keyboard.pointers, ElementsAre(mouse_pointer::kHourglass));
  EXPECT_THAT(screen.shown, ElementsAre(mouse_pointer::kHourglass, mouse_pointer::kDefault));
}

TEST_F(ClickHandler, RestoresThePointerWhenTheCommandFails) {
  keyboard.refuses = true;
  ClickOn(4);
  EXPECT_THAT(screen.shown, ElementsAre(mouse_pointer::kHourglass, mouse_pointer::kDefault));
}

TEST_F(ClickHandler, EveryEntryWithTheHourglassStartsWithItAndEndsWithTheDefaultPointer) {
  for (const CatalogueEntry& entry : Catalogue()) {
    if (!entry.hourglass) continue;
    screen.shown.clear();
    Click(addIn, entry, entry.caption);
    ASSERT_THAT(screen.shown, testing::Not(IsEmpty())) << entry.handler;
    EXPECT_EQ(screen.shown.front(), mouse_pointer::kHourglass) << entry.handler;
    EXPECT_EQ(screen.shown.back(), mouse_pointer::kDefault) << entry.handler;
  }
}

TEST_F(ClickHandler, AnEntryWithoutTheHourglassLeavesThePointerAlone) {
  const CatalogueEntry noHourglass = EntryOf(9);
  ASSERT_FALSE(noHourglass.hourglass);
  Click(addIn, noHourglass, "Insert Time Stamp");
  EXPECT_THAT(keyboard.pointers, SizeIs(1));
  EXPECT_THAT(screen.shown, IsEmpty());
}

TEST_F(ClickHandler, RunsTheCommandOfTheCaptionThatTheClickedControlBears) {
  Click(addIn, EntryOf(1), "Insert Time Stamp");
  EXPECT_THAT(keyboard.pointers, SizeIs(1));
  EXPECT_THAT(Lines(), ElementsAre("Sub A()", "x = 1", "End Sub"));
}

TEST_F(ClickHandler, DoesNothingAndRestoresThePointerWhenTheCaptionCannotBeRead) {
  MemoryCommandBars bars(memory.clipboard);
  const auto deleted = bars.Add({.name = "Bar"})->Controls()->Add({});
  deleted->Delete();
  HandleClick(addIn, EntryOf(1), *deleted);
  EXPECT_THAT(screen.shown, ElementsAre(mouse_pointer::kHourglass, mouse_pointer::kDefault));
  EXPECT_THAT(Lines(), ElementsAre("Sub A()", "x = 1", "End Sub"));
  HandleClick(addIn, EntryOf(9), *deleted);
  EXPECT_THAT(screen.shown, SizeIs(2));
}

TEST_F(ClickHandler, TakesTheWholeModuleFlagFromItsEntry) {
  memory.Open("Module2", ModuleText::FromText(
                             "Sub A()\r\nx = 1\r\nEnd Sub\r\nSub B()\r\ny = 1\r\nEnd Sub\r\n"));
  ClickOn(32);
  EXPECT_THAT(Lines(),
              ElementsAre("Sub A()", "2:         x = 1", "End Sub", "Sub B()", "y = 1", "End Sub"));
  ClickOn(53);
  EXPECT_THAT(Lines(), ElementsAre("Sub A()", "2:         x = 1", "End Sub", "Sub B()",
                                   "5:         y = 1", "End Sub"));
}

TEST_F(ClickHandler, ACaptionWithoutACommandDoesNothing) {
  Click(addIn, EntryOf(1), "Added By Hand");
  EXPECT_THAT(Lines(), ElementsAre("Sub A()", "x = 1", "End Sub"));
  EXPECT_THAT(memory.dialogs.Messages(), IsEmpty());
}

TEST_F(ClickHandler, WithoutACodeSourceEveryCodeCommandTellsTheUserExactlyOnce) {
  const TextLines before = Lines();
  const auto pane = memory.vbe.ActiveCodePane();
  memory.vbe.SetActivePane(nullptr);
  std::size_t told = 0;
  for (const int handler : {1, 2, 3, 5, 6, 21, 22, 53, 54, 32, 33}) {
    ClickOn(handler);
    EXPECT_THAT(memory.dialogs.Messages(), SizeIs(++told)) << handler;
    EXPECT_EQ(screen.MousePointer(), mouse_pointer::kDefault) << handler;
    EXPECT_FALSE(addIn.progressWindow.Visible()) << handler;
  }
  EXPECT_THAT(LinesOf(*pane->Module()), ElementsAreArray(before));
}

}  // namespace click_handler_test
}  // namespace brimwork

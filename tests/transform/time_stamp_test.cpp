#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "environment/run_time_error.h"
#include "support/opened_module.h"

namespace brimwork {
namespace time_stamp_test {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kStamp = "Insert Time Stamp";

void ClickStamp(OpenedModule& opened) { ButtonClicked(opened.addIn, kStamp, false); }

TEST(TimeStamp, IsPastedAtTheCaret) {
  OpenedModule opened({"Sub A()", "x = 1", "End Sub"});
  opened.PutCaret(2, 6);
  ClickStamp(opened);
  EXPECT_THAT(opened.Lines(), ElementsAre("Sub A()", "x = 1 ' 11/21/2026 10:20:30 AM ", "End Sub"));
}

TEST(TimeStamp, StandsInsideALineWhereTheCaretIs) {
  OpenedModule opened({"Größe = 1"});
  opened.PutCaret(1, 6);
  ClickStamp(opened);
  EXPECT_THAT(opened.Lines(), ElementsAre("Größe ' 11/21/2026 10:20:30 AM  = 1"));
}

TEST(TimeStamp, ReplacesTheSelection) {
  OpenedModule opened({"x = 1"});
  opened.Pane().SetSelection({1, 2, 1, 6});
  ClickStamp(opened);
  EXPECT_THAT(opened.Lines(), ElementsAre("x ' 11/21/2026 10:20:30 AM "));
}

TEST(TimeStamp, GivesTheClipboardsTextBack) {
  OpenedModule opened({"x = 1"});
  opened.environment.clipboard.SetText("the user's");
  ClickStamp(opened);
  EXPECT_EQ(opened.environment.clipboard.GetText(), "the user's");
}

TEST(TimeStamp, LeavesAnEmptyClipboardEmpty) {
  OpenedModule opened({"x = 1"});
  ClickStamp(opened);
  EXPECT_EQ(opened.environment.clipboard.GetText(), "");
}

TEST(TimeStamp, GoesWhereverTheFocusIsAndAsksForNoCodeSource) {
  OpenedModule opened({"x = 1"});
  opened.Close();
  ClickStamp(opened);
  EXPECT_THAT(opened.environment.dialogs.Messages(), IsEmpty());
  EXPECT_THAT(opened.Lines(), ElementsAre(" ' 11/21/2026 10:20:30 AM x = 1"));
  opened.environment.keyboard.SetFocus(nullptr);
  ClickStamp(opened);
  EXPECT_THAT(opened.Lines(), ElementsAre(" ' 11/21/2026 10:20:30 AM x = 1"));
}

TEST(TimeStamp, LeavesTheCaretOnItsLine) {
  OpenedModule opened({"x = 1", "y = 1", "z = 1"});
  opened.PutCaret(2, 3);
  ClickStamp(opened);
  EXPECT_EQ(opened.CaretLine(), 2);
}

/// The window with the focus refuses every keystroke.
class DeafKeyboard : public Keyboard {
 public:
  void SendKeys(std::string_view, bool) override {
    throw RunTimeError(error_number::kInvalidProcedureCall, "no window takes the keys");
  }
};

TEST(TimeStamp, GivesTheClipboardsTextBackWhenTheKeystrokeFails) {
  MemoryEnvironment memory;
  DeafKeyboard deaf;
  memory.clipboard.SetText("the user's");
  AddIn addIn(memory.Parts({.keyboard = &deaf}));
  ButtonClicked(addIn, kStamp, false);
  EXPECT_EQ(memory.clipboard.GetText(), "the user's");
}

}  // namespace time_stamp_test
}  // namespace brimwork

// The small parts of the desktop as plain data.
#include <gtest/gtest.h>

#include "environment/run_time_error.h"
#include "memory/fixed_clock.h"
#include "memory/memory_clipboard.h"
#include "memory/memory_dialogs.h"
#include "memory/memory_message_loop.h"
#include "memory/memory_screen.h"
#include "memory/memory_settings_area.h"
#include "memory/memory_shell_folders.h"

namespace brimwork {
namespace memory_desktop_test {

TEST(MemoryScreen, FindsAWindowByItsExactTitle) {
  MemoryScreen screen;
  screen.AddWindow("Stock", 3);
  EXPECT_EQ(screen.FindWindowByTitle("Stock"), 3u);
  EXPECT_EQ(screen.FindWindowByTitle("stock"), 0u);
  EXPECT_EQ(screen.FindWindowByTitle(""), 0u);
}

TEST(MemoryScreen, RemembersPointerAndRedrawLock) {
  MemoryScreen screen;
  screen.SetMousePointer(mouse_pointer::kHourglass);
  screen.LockWindowUpdate(3);
  EXPECT_EQ(screen.MousePointer(), mouse_pointer::kHourglass);
  EXPECT_EQ(screen.LockedWindow(), 3u);
  screen.LockWindowUpdate(0);
  EXPECT_EQ(screen.LockedWindow(), 0u);
}

TEST(MemoryClipboard, GivesTheTextLastSetUntilItIsCleared) {
  MemoryClipboard clipboard;
  EXPECT_EQ(clipboard.GetText(), "");
  clipboard.SetText("one");
  clipboard.SetText("two");
  EXPECT_EQ(clipboard.GetText(), "two");
  clipboard.Clear();
  EXPECT_EQ(clipboard.GetText(), "");
}

TEST(MemoryDialogs, RecordsEachMessageAndAnswersOkWhenNotTold) {
  MemoryDialogs dialogs;
  EXPECT_EQ(dialogs.MsgBox("Done", message_box::kInformation, "Brimwork"), 1);
  EXPECT_EQ(dialogs.Messages(),
            (std::vector<ShownMessage>{{"Done", message_box::kInformation, "Brimwork"}}));
}

TEST(MemoryDialogs, GivesTheAnswersInTheirOrder) {
  MemoryDialogs dialogs;
  dialogs.AnswerMessage(6);
  dialogs.AnswerMessage(7);
  EXPECT_EQ(dialogs.MsgBox("a", 0, ""), 6);
  EXPECT_EQ(dialogs.MsgBox("b", 0, ""), 7);
  EXPECT_EQ(dialogs.MsgBox("c", 0, ""), 1);
}

TEST(MemoryDialogs, TheFolderBrowserIsCancelledUnlessAFolderWasPicked) {
  MemoryDialogs dialogs;
  dialogs.PickFolder("/exports");
  EXPECT_EQ(dialogs.BrowseForFolder({}), "/exports");
  EXPECT_EQ(dialogs.BrowseForFolder({}), "");
}

TEST(MemoryMessageLoop, CountsHowOftenItWasAskedToProcessEvents) {
  MemoryMessageLoop loop;
  loop.DoEvents();
  loop.DoEvents();
  EXPECT_EQ(loop.Count(), 2);
}

TEST(MemorySettingsArea, KeepsValuesOfDifferentApplicationsAndSectionsApart) {
  MemorySettingsArea area;
  area.SaveSetting("A", "S", "K", "1");
  area.SaveSetting("B", "S", "K", "2");
  EXPECT_EQ(area.GetSetting("A", "S", "K", ""), "1");
  EXPECT_EQ(area.GetSetting("B", "S", "K", ""), "2");
  EXPECT_EQ(area.GetSetting("A", "T", "K", "none"), "none");
  EXPECT_EQ(area.AllSettings("A", "S"), (SettingValues{{"K", "1"}}));
  EXPECT_EQ(area.AllSettings("A", "T"), SettingValues());
}

TEST(MemoryShellFolders, AFolderWithoutAPathRaisesErrorFive) {
  MemoryShellFolders folders;
  folders.SetPath(0, "/home/user/Desktop");
  EXPECT_EQ(folders.SpecialFolderPath(0), "/home/user/Desktop");
  try {
    folders.SpecialFolderPath(5);
    FAIL() << "no error was raised";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Number(), error_number::kInvalidProcedureCall);
    EXPECT_STREQ(error.what(), "there is no special folder 5");
  }
}

TEST(FixedClock, GivesTheTextsItWasMadeWith) {
  FixedClock clock("1/2/2026", "1/2/2026 3:04:05 PM");
  EXPECT_EQ(clock.ShortDate(), "1/2/2026");
  EXPECT_EQ(clock.GeneralDate(), "1/2/2026 3:04:05 PM");
}

}  // namespace memory_desktop_test
}  // namespace brimwork

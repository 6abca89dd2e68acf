// "Insert Time Stamp", clicked in the bench: the moment is pasted at the caret, and the user's
// clipboard stays the user's.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/windows/users_clipboard.h"
#include "support/windows/waiting.h"
#include "windows/desktop/system_clock.h"
#include "windows/end_to_end/bench_suite.h"
#include "windows/end_to_end/bench_windows.h"
#include "windows/end_to_end/entry_clicks.h"

namespace brimwork {
namespace time_stamp_test {

constexpr const char* kComponent = "modStock";
constexpr const char* kAbove = "Private Sub Count()\r\n  Größe = 1";
constexpr const char* kBelow = "\r\nEnd Sub";
constexpr int kCaretLine = 2;
constexpr int kCaretColumn = 12;

ULONGLONG Now() {
  SYSTEMTIME moment;
  FILETIME time;
  GetLocalTime(&moment);
  SystemTimeToFileTime(&moment, &time);
  return ULARGE_INTEGER{{time.dwLowDateTime, time.dwHighDateTime}}.QuadPart;
}

/// The module with the stamp of each second from one moment to another.
std::vector<std::string> Stamped(ULONGLONG from, ULONGLONG to) {
  constexpr ULONGLONG kSecond = 10'000'000;
  std::vector<std::string> texts;
  for (ULONGLONG time = from; time < to + kSecond; time += kSecond) {
    windows::SystemClock clock([time] {
      const FILETIME file{static_cast<DWORD>(time), static_cast<DWORD>(time >> 32)};
      SYSTEMTIME moment;
      FileTimeToSystemTime(&file, &moment);
      return moment;
    });
    texts.push_back(kAbove + (" ' " + clock.GeneralDate()) + " " + kBelow);
  }
  return texts;
}

class TimeStampEntry : public BenchSuite, public ::testing::WithParamInterface<int> {};

TEST_P(TimeStampEntry, PastesTheMomentAtTheCaret) {
  const std::string before = std::string(kAbove) + kBelow;
  const bench::Client pane = ShowText(kComponent, before, kCaretLine, kCaretColumn);
  PutOnClipboard(kUsersText);
  const ULONGLONG start = Now();

  ClickEntry(Bench(), GetParam());

  EXPECT_TRUE(WaitUntil([&] { return TextOf(pane) != before; }));
  EXPECT_THAT(Stamped(start, Now()), ::testing::Contains(TextOf(pane)));
  WaitUntil([] { return TextOnClipboard() == kUsersText; });
  EXPECT_EQ(TextOnClipboard(), kUsersText);
  EXPECT_TRUE(WaitUntilAlone(Bench()));
}

TEST_P(TimeStampEntry, LeavesAnEmptyClipboardEmpty) {
  const bench::Client pane = ShowText(kComponent, kAbove, kCaretLine, kCaretColumn);
  UsersClipboard().Clear();

  ClickEntry(Bench(), GetParam());

  EXPECT_TRUE(WaitUntil([&] { return TextOf(pane) != kAbove; }));
  EXPECT_TRUE(WaitUntil([] { return TextOnClipboard().empty(); }));
}

INSTANTIATE_TEST_SUITE_P(All, TimeStampEntry, ::testing::Values(4, 25, 45), HandlerName);

}  // namespace time_stamp_test
}  // namespace brimwork

// The progress window in the bench, while a command walks a long module.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "settings/setting_defaults.h"
#include "support/windows/waiting.h"
#include "windows/end_to_end/bench_suite.h"
#include "windows/end_to_end/entry_clicks.h"
#include "windows/end_to_end/form_use.h"
#include "windows/end_to_end/window_watch.h"

namespace brimwork {
namespace progress_form_test {

using ::testing::IsEmpty;

constexpr int kCommentAll = 2;

constexpr int kProcedures = 4000;  // of five lines each

class ProgressInTheBench : public BenchSuite {};

std::string LongModule() {
  std::string text;
  for (int i = 1; i <= kProcedures; ++i) {
    const std::string number = std::to_string(i);
    text += "Sub Count" + number + "()\r\nIf parts > " + number +
            " Then\r\nparts = parts - 1\r\nEnd If\r\nEnd Sub";
    if (i < kProcedures) text += "\r\n";
  }
  return text;
}

TEST_F(ProgressInTheBench, IsShownWhileACommandWalksALongModuleAndGoneBehindIt) {
  const bench::Client pane = ShowText("modStock", LongModule(), 1, 1);
  const WindowWatch progress(L"Comment All Procedures");
  ClickEntry(Bench(), EntryOf(kCommentAll));
  EXPECT_TRUE(WaitUntil([&] { return progress.WasShown(); }));
  EXPECT_TRUE(WaitUntil([&] { return !progress.IsShown(); }));
  EXPECT_GT(progress.Milliseconds(), 100u);
  EXPECT_EQ(progress.TimesShown(), 1);
  EXPECT_THAT(FormsIn(Bench()), IsEmpty());
  const bench::Client module = pane.Object(L"CodeModule");
  EXPECT_EQ(module.Text(L"Lines", {win32::Variant(1), win32::Variant(1)}), kSeparatorLine);
  EXPECT_GT(module.Number(L"CountOfLines"), kProcedures * 6);
  EXPECT_TRUE(IsWindowEnabled(Bench().MainWindow()));
}

}  // namespace progress_form_test
}  // namespace brimwork

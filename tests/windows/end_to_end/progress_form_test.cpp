// The progress window in the bench, while a command walks a long module.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "support/windows/waiting.h"
#include "windows/end_to_end/bench_suite.h"
#include "windows/end_to_end/entry_clicks.h"
#include "windows/end_to_end/form_use.h"
#include "windows/end_to_end/window_watch.h"

namespace brimwork {
namespace progress_form_test {

using ::testing::IsEmpty;

constexpr int kIndentAll = 5;

class ProgressInTheBench : public BenchSuite {};

std::string LongModule() {
  constexpr int kProcedures = 4000;  // of five lines each
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
  const WindowWatch progress(L"Indenting All Procedures");
  ClickEntry(Bench(), EntryOf(kIndentAll));
  EXPECT_TRUE(WaitUntil([&] { return progress.WasShown(); }));
  EXPECT_TRUE(WaitUntil([&] { return !progress.IsShown(); }));
  EXPECT_EQ(progress.TimesShown(), 1);
  EXPECT_THAT(FormsIn(Bench()), IsEmpty());
  const bench::Client module = pane.Object(L"CodeModule");
  EXPECT_EQ(module.Text(L"Lines", {win32::Variant(19'998), win32::Variant(1)}),
            "        parts = parts - 1");
  EXPECT_TRUE(IsWindowEnabled(Bench().MainWindow()));
}

}  // namespace progress_form_test
}  // namespace brimwork

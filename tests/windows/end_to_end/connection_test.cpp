// The add-in connected in the bench: what it adds there, and that nothing of it stays.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/connected_add_in.h"
#include "support/entry_tree.h"
#include "windows/end_to_end/bench_suite.h"
#include "windows/end_to_end/entry_clicks.h"

namespace brimwork {
namespace end_to_end_connection_test {

using ::testing::Each;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

constexpr const char* kBars[] = {"Add-Ins", "Code Window", "Immediate Window"};

struct ConnectionInTheBench : ::testing::Test {
  bool HasToolbar() {
    const bench::Client bars = bench.Vbe().Object(L"CommandBars");
    const long count = bars.Number(L"Count");
    for (long i = 1; i <= count; ++i) {
      const bench::Client bar = bars.Object(L"Item", {win32::Variant(i)});
      if (bar.Text(L"Name") == "Brimwork") return true;
    }
    return false;
  }

  RegisteredLibrary library;
  RunningBench bench;
};

/// As in plain data, but for the entries that the environment has of its own.
TEST_F(ConnectionInTheBench, AddsTheSameEntriesAsInPlainData) {
  ConnectedAddIn memory;
  memory.ConnectIt();
  EXPECT_EQ(EntriesOf(bench.Vbe(), "Brimwork"), EntryTree(*memory.Toolbar()->Entries()));
  const auto menu = EntriesOf(bench.Vbe(), "Add-Ins");
  for (const std::string& line : EntryTree(memory.AddInsMenu())) {
    EXPECT_THAT(menu, ::testing::Contains(line));
  }
  const auto popup = EntriesOf(bench.Vbe(), "Code Window");
  for (const std::string& line : EntryTree(memory.CodeWindow())) {
    EXPECT_THAT(popup, ::testing::Contains(line));
  }
  EXPECT_THAT(EntriesOf(bench.Vbe(), "Immediate Window"),
              ::testing::Contains("-- Clear Immediate Window"));
}

TEST_F(ConnectionInTheBench, LeavesNothingInAnyBarWhenItEnds) {
  bench.Connect(false);
  EXPECT_FALSE(HasToolbar());
  for (const char* bar : kBars) {
    EXPECT_THAT(EntriesOf(bench.Vbe(), bar), Each(Not(HasSubstr("Brimwork")))) << bar;
    EXPECT_THAT(EntriesOf(bench.Vbe(), bar), Each(Not(HasSubstr("Clear Immediate")))) << bar;
  }
  EXPECT_THAT(bench.OtherWindows(), IsEmpty());
}

TEST_F(ConnectionInTheBench, CanBeMadeTenTimesInARowWithoutHoldingAnything) {
  constexpr int kTimes = 10;
  const auto once = EntriesOf(bench.Vbe(), "Add-Ins");
  for (int time = 1; time < kTimes; ++time) {
    bench.Connect(false);
    bench.Connect(true);
  }
  EXPECT_EQ(EntriesOf(bench.Vbe(), "Add-Ins"), once);
  const auto report = bench.End();
  EXPECT_EQ(report["connections"].size(), static_cast<std::size_t>(kTimes));
  for (const auto& connection : report["connections"]) {
    EXPECT_EQ(connection["heldReferences"], 0) << connection.dump(2);
  }
}

}  // namespace end_to_end_connection_test
}  // namespace brimwork

// What an add-in that ended in a crash leaves in the environment's bars.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "environment/command_bar.h"
#include "support/windows/registered_library.h"
#include "support/windows/running_bench.h"
#include "windows/end_to_end/entry_clicks.h"

namespace brimwork {
namespace leftovers_test {

using win32::Variant;

struct LeftoversInTheBench : ::testing::Test {
  bench::Client Bar(const char* name) const {
    return bench.Vbe().Object(L"CommandBars").Object(L"Item", {Variant(name)});
  }
  void AddControl(const char* bar, int type, const char* caption, const char* tag) const {
    const bench::Client control = Bar(bar).Object(L"Controls").Object(L"Add", {Variant(type)});
    control.Put(L"Caption", Variant(caption));
    control.Put(L"Tag", Variant(tag));
  }
  std::vector<std::vector<std::string>> Entries() const {
    std::vector<std::vector<std::string>> entries;
    for (const char* bar : {"Add-Ins", "Code Window", "Immediate Window", "Brimwork"}) {
      entries.push_back(EntriesOf(bench.Vbe(), bar));
    }
    return entries;
  }
  int Toolbars() const {
    const bench::Client bars = bench.Vbe().Object(L"CommandBars");
    int toolbars = 0;
    for (long i = 1; i <= bars.Number(L"Count"); ++i) {
      toolbars += bars.Object(L"Item", {Variant(i)}).Text(L"Name") == "Brimwork";
    }
    return toolbars;
  }

  RegisteredLibrary library;
  RunningBench bench;
};

TEST_F(LeftoversInTheBench, AreReplacedByTheNextConnection) {
  const auto fresh = Entries();
  bench.Connect(false);
  AddControl("Add-Ins", control_type::kPopup, "Brimwork", "Brimwork.AddIns");
  AddControl("Code Window", control_type::kPopup, "Brimwork", "Brimwork.CodeWindow");
  AddControl("Immediate Window", control_type::kButton, "Clear Immediate Window",
             "Brimwork.ButtonHandler34");
  bench.Vbe().Object(L"CommandBars").Object(L"Add", {Variant("Brimwork")});
  AddControl("Brimwork", control_type::kButton, "Full Screen", "Brimwork.ButtonHandler52");

  bench.Connect(true);

  EXPECT_EQ(Entries(), fresh);
  EXPECT_EQ(Toolbars(), 1);
}

TEST_F(LeftoversInTheBench, AreNotTheControlsOfOthers) {
  bench.Connect(false);
  AddControl("Add-Ins", control_type::kButton, "Spare Tools", "SpareTools.Menu");
  bench.Connect(true);
  const auto entries = EntriesOf(bench.Vbe(), "Add-Ins");
  EXPECT_EQ(std::ranges::count(entries, "Spare Tools"), 1);
}

}  // namespace leftovers_test
}  // namespace brimwork

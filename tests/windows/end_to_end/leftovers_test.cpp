// What an add-in that ended in a crash leaves in the environment's bars.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "environment/command_bar.h"
#include "windows/end_to_end/bench_suite.h"
#include "windows/end_to_end/entry_clicks.h"

namespace brimwork {
namespace leftovers_test {

using win32::Variant;

struct LeftoversInTheBench : BenchSuite {
  static bench::Client Bar(const char* name) {
    return Bench().Vbe().Object(L"CommandBars").Object(L"Item", {Variant(name)});
  }
  static void AddControl(const char* bar, int type, const char* caption, const char* tag) {
    const bench::Client control = Bar(bar).Object(L"Controls").Object(L"Add", {Variant(type)});
    control.Put(L"Caption", Variant(caption));
    control.Put(L"Tag", Variant(tag));
    EXPECT_EQ(control.Text(L"Tag"), tag);
  }
  static std::vector<std::vector<std::string>> Entries() {
    std::vector<std::vector<std::string>> entries;
    for (const char* bar : {"Add-Ins", "Code Window", "Immediate Window", "Brimwork"}) {
      entries.push_back(EntriesOf(Bench().Vbe(), bar));
    }
    return entries;
  }
  static int Toolbars() {
    const bench::Client bars = Bench().Vbe().Object(L"CommandBars");
    int toolbars = 0;
    for (long i = 1; i <= bars.Number(L"Count"); ++i) {
      toolbars += bars.Object(L"Item", {Variant(i)}).Text(L"Name") == "Brimwork";
    }
    return toolbars;
  }
};

TEST_F(LeftoversInTheBench, AreReplacedByTheNextConnection) {
  const auto fresh = Entries();
  Bench().Connect(false);
  AddControl("Add-Ins", control_type::kPopup, "Brimwork", "Brimwork.AddIns");
  AddControl("Code Window", control_type::kPopup, "Brimwork", "Brimwork.CodeWindow");
  AddControl("Immediate Window", control_type::kButton, "Clear Immediate Window",
             "Brimwork.ButtonHandler34");
  Bench().Vbe().Object(L"CommandBars").Object(L"Add", {Variant("Brimwork")});
  AddControl("Brimwork", control_type::kButton, "Full Screen", "Brimwork.ButtonHandler52");

  Bench().Connect(true);

  EXPECT_EQ(Entries(), fresh);
  EXPECT_EQ(Toolbars(), 1);
}

TEST_F(LeftoversInTheBench, AreNotTheControlsOfOthers) {
  Bench().Connect(false);
  AddControl("Add-Ins", control_type::kButton, "Spare Tools", "SpareTools.Menu");
  Bench().Connect(true);
  const auto entries = EntriesOf(Bench().Vbe(), "Add-Ins");
  EXPECT_EQ(std::ranges::count(entries, "Spare Tools"), 1);
}

}  // namespace leftovers_test
}  // namespace brimwork

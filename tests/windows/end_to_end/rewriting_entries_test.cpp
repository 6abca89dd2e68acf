// Every entry that rewrites code, clicked in the bench: the module reads as the same command makes
// it in plain data.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/modButtonClicked.h"
#include "memory/memory_environment.h"
#include "support/windows/waiting.h"
#include "windows/desktop/system_clock.h"
#include "windows/end_to_end/bench_suite.h"
#include "windows/end_to_end/entry_clicks.h"

namespace brimwork {
namespace rewriting_entries_test {

constexpr const char* kComponent = "modStock";
constexpr const char* kText =
    "Option Explicit\r\n"
    "\r\n"
    "Private Sub Count(ByVal parts As Long)\r\n"
    "10:  Dim i As Long\r\n"
    "For i = 1 To parts\r\n"
    "If i > 3 Then\r\n"
    "Debug.Print \"Größe \" & i\r\n"
    "End If\r\n"
    "Next i\r\n"
    "End Sub\r\n"
    "\r\n"
    "\r\n"
    "Public Function Half(ByVal a As Double) As Double\r\n"
    "20:  Half = a / 2\r\n"
    "End Function";
constexpr int kCaretLine = 7;
constexpr int kCaretColumn = 3;

constexpr std::array<std::string_view, 9> kRewriting = {
    "Comment Procedure",     "Comment All Procedures", "Insert Error Handling",
    "Indent All Procedures", "Code Clean Up",          "Standard Header",
    "Adapted Header",        "Add Line Numbers",       "Remove Line Numbers"};

std::vector<CatalogueEntry> RewritingEntries() {
  std::vector<CatalogueEntry> entries;
  for (const CatalogueEntry& entry : Catalogue()) {
    if (std::ranges::find(kRewriting, entry.caption) != kRewriting.end()) entries.push_back(entry);
  }
  return entries;
}

std::string InPlainData(const CatalogueEntry& entry) {
  MemoryEnvironment memory;
  const auto pane = memory.Open(kComponent, ModuleText::FromText(kText));
  pane->SetSelection({kCaretLine, kCaretColumn, kCaretLine, kCaretColumn});
  windows::SystemClock clock;
  AddIn addIn(memory.Parts({.clock = &clock}));
  ButtonClicked(addIn, entry.caption, entry.wholeModule);
  return pane->Module()->Lines(1, pane->Module()->CountOfLines());
}

void PrintTo(const CatalogueEntry& entry, std::ostream* stream) { *stream << entry.caption; }

class RewritingEntry : public BenchSuite, public ::testing::WithParamInterface<CatalogueEntry> {};

TEST_P(RewritingEntry, MakesOfAModuleWhatItMakesInPlainData) {
  const bench::Client pane = ShowText(kComponent, kText, kCaretLine, kCaretColumn);
  const std::string expected = InPlainData(GetParam());
  ASSERT_NE(expected, kText);

  ClickEntry(Bench(), GetParam());

  WaitUntil([&] { return TextOf(pane) == expected; });
  EXPECT_EQ(TextOf(pane), expected);
  EXPECT_THAT(Bench().OtherWindows(), ::testing::IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(All, RewritingEntry, ::testing::ValuesIn(RewritingEntries()),
                         [](const auto& each) {
                           return "Handler" + std::to_string(each.param.handler);
                         });

}  // namespace rewriting_entries_test
}  // namespace brimwork

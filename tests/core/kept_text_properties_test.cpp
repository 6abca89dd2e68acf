// Every command over generated modules, half-written and messy ones included: each procedure gets
// its turn once, and no line of the user's is lost, seen or hidden. A failure names its seed.
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "environment/text.h"
#include "support/commanded_module.h"
#include "support/every_command.h"
#include "support/kept_lines.h"
#include "support/module_generator.h"
#include "transform/procedure_walk.h"

namespace brimwork {
namespace kept_text_properties_test {

constexpr unsigned kSeeds = 300;

using Edit = void (*)(CodeModule& module, const CurrentProcedure& procedure);

void EditNothing(CodeModule&, const CurrentProcedure&) {}

void InsertAbove(CodeModule& module, const CurrentProcedure& procedure) {
  module.InsertLines(procedure.CurrentProcStart, "' above\r\n\r\n' and above");
}

void InsertBelow(CodeModule& module, const CurrentProcedure& procedure) {
  module.InsertLines(procedure.CurrentProcEnd + 1, "' below\r\n\r\n' and below");
}

void InsertInside(CodeModule& module, const CurrentProcedure& procedure) {
  if (procedure.FirstBodyLine > procedure.LastBodyLine + 1) return;  // all in one line
  module.InsertLines(procedure.FirstBodyLine, "inside = 1\r\n\r\ninside = 2");
}

void DeleteBody(CodeModule& module, const CurrentProcedure& procedure) {
  const int lines = procedure.LastBodyLine - procedure.FirstBodyLine + 1;
  if (lines > 0) module.DeleteLines(procedure.FirstBodyLine, lines);
}

void FrameWithLines(CodeModule& module, const CurrentProcedure& procedure) {
  InsertBelow(module, procedure);
  InsertAbove(module, procedure);
}

std::vector<std::string> VisitedWhile(Edit edit, const std::string& text) {
  CommandedModule module(text);
  std::vector<std::string> visited;
  WalkActions actions;
  actions.transform = [&] {
    const CurrentProcedure procedure = module.CommandContext().procedure;
    visited.push_back(procedure.CurrentProcName);
    edit(module.Module(), procedure);
  };
  actions.report = [](int, int) {};
  WalkProcedures(module.CommandContext(), module.Pane(), module.Module(), actions);
  return visited;
}

TEST(KeptTextProperties, TheWalkVisitsEachProcedureOnceWhateverIsDoneToIt) {
  const std::map<std::string, Edit> edits = {
      {"nothing", EditNothing},       {"lines above", InsertAbove}, {"lines below", InsertBelow},
      {"lines inside", InsertInside}, {"no body", DeleteBody},      {"a frame", FrameWithLines}};
  for (unsigned seed = 1; seed <= kSeeds; ++seed) {
    const GeneratedModule generated = GenerateModule(NumberedOptions(seed));
    std::vector<std::string> names;
    for (const GeneratedProcedure& procedure : generated.procedures)
      names.push_back(procedure.name);
    for (const auto& [title, edit] : edits) {
      ASSERT_EQ(VisitedWhile(edit, generated.text), names) << title << ", seed " << seed;
    }
  }
}

/// Without the blank behind it, which the indenter takes.
constexpr std::string_view kStamp = " ' 11/21/2026 10:20:30 AM";

TEST(KeptTextProperties, NoCommandLosesALine) {
  for (unsigned seed = 1; seed <= kSeeds; ++seed) {
    const std::string text = AnyText(seed);
    for (const DispatchedCommand& command : EveryCommand()) {
      CommandedModule module(text);
      module.PutCaretBehind(1 + static_cast<int>(seed * 7) % module.Module().CountOfLines());
      const std::string after = Replace(module.After(command), kStamp, "");
      ASSERT_EQ(FirstLostLine(text, after), std::nullopt) << command.Title() << ", seed " << seed;
    }
  }
}

TEST(KeptTextProperties, NoCommandLosesALineWhenItIsRunAfterAllTheOthers) {
  for (unsigned seed = 1; seed <= kSeeds / 3; ++seed) {
    const std::string text = AnyText(seed);
    CommandedModule module(text);
    for (const DispatchedCommand& command : EveryCommand()) {
      module.PutCaretBehind(1 + static_cast<int>(seed * 7) % module.Module().CountOfLines());
      const std::string after = Replace(module.After(command), kStamp, "");
      ASSERT_EQ(FirstLostLine(text, after), std::nullopt) << command.Title() << ", seed " << seed;
    }
  }
}

/// A module with a hidden line above it and behind every step-th line; each bears the number of the
/// line that it hangs on.
ModuleText WithHiddenLines(const std::string& text, unsigned step) {
  const auto original = std::make_shared<const std::string>(text);
  std::vector<std::string_view> lines = SplitLines(*original);
  lines.pop_back();  // behind the last line end
  ModuleText module(original);
  module.AppendHidden(0);
  for (HiddenLine line = 1; line <= lines.size(); ++line) {
    module.AppendOriginal(lines[line - 1], LineEnd::kCrLf);
    if (line % step == 0) module.AppendHidden(line);
  }
  return module;
}

struct PlacedHiddenLine {
  HiddenLine hidden;
  std::string lineAbove;
};

std::vector<PlacedHiddenLine> HiddenLinesOf(const ModuleText& text) {
  std::vector<PlacedHiddenLine> all;
  for (int line = 0; line <= text.Count(); ++line) {
    const std::string lineAbove(line == 0 ? "" : text.Line(line));
    for (const HiddenLine hidden : text.HiddenBehind(line)) all.push_back({hidden, lineAbove});
  }
  return all;
}

/// What is wrong with the hidden lines afterwards; "" when nothing is. Behind a blank line, which a
/// command may delete, only their order is looked at.
std::string HiddenComplaint(const std::vector<PlacedHiddenLine>& before,
                            const std::vector<PlacedHiddenLine>& after) {
  if (before.size() != after.size()) return "not as many as before";
  for (std::size_t i = 0; i < before.size(); ++i) {
    const std::string number = std::to_string(before[i].hidden);
    if (before[i].hidden != after[i].hidden) return number + " is out of order";
    const std::string lineAbove = Replace(after[i].lineAbove, kStamp, "");
    if (WithoutNumber(before[i].lineAbove).empty()) continue;
    if (!IsSameLine(before[i].lineAbove, lineAbove)) return number + " is behind: " + lineAbove;
  }
  return after.empty() || after[0].lineAbove.empty() ? "" : "the first one is behind a line";
}

TEST(KeptTextProperties, HiddenLinesStayBehindTheirLines) {
  for (unsigned seed = 1; seed <= kSeeds; ++seed) {
    const std::string text = AnyText(seed);
    for (const DispatchedCommand& command : EveryCommand()) {
      CommandedModule module(WithHiddenLines(text, 1 + seed % 3));
      const auto before = HiddenLinesOf(module.Module().Text());
      module.PutCaretBehind(1 + static_cast<int>(seed * 7) % module.Module().CountOfLines());
      module.After(command);
      const auto after = HiddenLinesOf(module.Module().Text());
      ASSERT_EQ(HiddenComplaint(before, after), "") << command.Title() << ", seed " << seed;
    }
  }
}

}  // namespace kept_text_properties_test
}  // namespace brimwork

// How long each whole-module command takes for each line, on modules of 1,000 to 1,000,000 lines.
// Time a line must hardly grow with the module.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "benchmark_module.h"
#include "core/modButtonClicked.h"
#include "memory/memory_environment.h"
#include "settings/setting_defaults.h"
#include "settings/setting_keys.h"
#include "settings/settings.h"

namespace brimwork {
namespace {

/// Made once for each size: the commands get a copy.
const std::string& ModuleOf(int lines) {
  static int madeFor = 0;
  static std::string module;
  if (madeFor != lines) module = BenchmarkModule(lines);
  madeFor = lines;
  return module;
}

struct OpenModule {
  explicit OpenModule(const std::string& text) {
    memory.Open("Module1", ModuleText::FromText(text));
    memory.dialogs.SaveTo("Module1.out");
    SaveSetting(addIn.environment, setting::kKeyWordList, kBuiltInKeyWordList);
  }

  MemoryEnvironment memory;
  AddIn addIn{memory.Parts()};
};

/// first: a command that runs before the clock starts, "" for none.
void RunCommand(benchmark::State& state, const char* caption, const char* first) {
  const int lines = static_cast<int>(state.range(0));
  for (auto round : state) {
    state.PauseTiming();
    auto open = std::make_unique<OpenModule>(ModuleOf(lines));
    if (*first != '\0') ButtonClicked(open->addIn, first, true);
    state.ResumeTiming();
    ButtonClicked(open->addIn, caption, true);
    state.PauseTiming();
    open.reset();
    state.ResumeTiming();
  }
  state.counters["time/line"] = benchmark::Counter(
      lines, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void Sizes(benchmark::internal::Benchmark* benchmark) {
  for (const int lines : {1'000, 10'000, 100'000, 1'000'000}) benchmark->Arg(lines);
  benchmark->Unit(benchmark::kMillisecond);
}

BENCHMARK_CAPTURE(RunCommand, IndentAllProcedures, "Indent All Procedures", "")->Apply(Sizes);
BENCHMARK_CAPTURE(RunCommand, AddLineNumbers, "Add Line Numbers", "")->Apply(Sizes);
BENCHMARK_CAPTURE(RunCommand, RemoveLineNumbers, "Remove Line Numbers", "Add Line Numbers")
    ->Apply(Sizes);
BENCHMARK_CAPTURE(RunCommand, InsertErrorHandling, "Insert Error Handling", "")->Apply(Sizes);
BENCHMARK_CAPTURE(RunCommand, CommentAllProcedures, "Comment All Procedures", "")->Apply(Sizes);
BENCHMARK_CAPTURE(RunCommand, CodeCleanUp, "Code Clean Up", "")->Apply(Sizes);
BENCHMARK_CAPTURE(RunCommand, ExportText, "Text", "")->Apply(Sizes);
BENCHMARK_CAPTURE(RunCommand, ExportRtf, "RTF", "")->Apply(Sizes);
BENCHMARK_CAPTURE(RunCommand, ExportHtml, "Web Page", "")->Apply(Sizes);

}  // namespace
}  // namespace brimwork

BENCHMARK_MAIN();

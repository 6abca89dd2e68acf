// What the add-in costs in the bench on the screen, beside the calls that it cannot do without.
#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <vector>

#include "bench/screen/workbench_windows.h"
#include "support/module_generator.h"
#include "support/windows/faulty_dispatch.h"
#include "support/windows/registered_library.h"
#include "windows/end_to_end/loaded_add_in.h"

namespace brimwork {
namespace speed_test {

using bench::Client;
using win32::Variant;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr int kLines = 10'000;
constexpr int kRuns = 5;

template <class Work>
double MillisecondsOf(Work work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return Milliseconds(std::chrono::steady_clock::now() - start).count();
}

/// A call to the module that the indenter makes: to Lines without text, to ReplaceLine with it.
struct LineCall {
  bool replaces = false;
  Variant line;
  Variant textOrCount;
};

struct SpeedOfTheAddIn : ::testing::Test {
  SpeedOfTheAddIn() {
    ForgetAddInSettings();
    SetAddInSetting("SplashScreen", "False");
    InitCommonControls();
    windows = std::make_unique<bench::WorkbenchWindows>(workbench);
    windows->Show();
    session = bench::Session::Open(workbench, *windows, addIns);
    const auto file = folder / "Parts.bas";
    WriteBytes(file, "Attribute VB_Name = \"Parts\"\r\nSub Main()\r\nEnd Sub\r\n");
    workbench.Open(file);
    workbench.PaneOf(workbench.Projects().front()->Components().front());
    GeneratorOptions options;
    options.seed = 7;
    options.lines = kLines;
    options.messy = true;
    text = GenerateModule(options).text;
  }
  ~SpeedOfTheAddIn() override {
    session->End();
    ForgetAddInSettings();
  }

  Client Vbe() { return Client(session->Vbe()); }
  Client Pane() { return Vbe().Object(L"ActiveCodePane"); }

  void Indent() { AddInsEntry(Vbe(), MenuEntry("Indent All Procedures")).Call(L"Execute"); }

  /// The calls to lines that indenting the module makes.
  std::vector<LineCall> CallsOfIndenting() {
    std::vector<LineCall> made;
    DispatchCalls calls({});
    LoadedAddIn addIn;
    addIn.Connect(InFrontOf(session->Vbe(), calls));
    ShowText(Pane(), text, 1);
    calls.onCall = [&](const std::string& member, const DISPPARAMS& parameters) {
      if (member != "Lines" && member != "ReplaceLine") return;
      LineCall call{member == "ReplaceLine", {}, {}};
      VariantCopy(call.line.Receive(), &parameters.rgvarg[1]);
      VariantCopy(call.textOrCount.Receive(), &parameters.rgvarg[0]);
      made.push_back(std::move(call));
    };
    Indent();
    calls.onCall = {};
    addIn.Disconnect();
    return made;
  }

  /// The same calls from a client that does nothing else.
  void Repeat(const std::vector<LineCall>& calls) {
    const Client module = Pane().Object(L"CodeModule");
    const DISPID lines = module.IdOf(L"Lines");
    const DISPID replaceLine = module.IdOf(L"ReplaceLine");
    for (const LineCall& call : calls) {
      module.Invoke(call.replaces ? replaceLine : lines,
                    call.replaces ? DISPATCH_METHOD : DISPATCH_METHOD | DISPATCH_PROPERTYGET,
                    {call.line, call.textOrCount});
    }
  }

  TemporaryFolder folder;
  bench::Workbench workbench;
  std::unique_ptr<bench::WorkbenchWindows> windows;
  bench::NoAddIns addIns;
  std::shared_ptr<bench::Session> session;
  std::string text;
};

TEST_F(SpeedOfTheAddIn, IndentingCostsAtMostThreeTimesTheBareCalls) {
  const std::vector<LineCall> calls = CallsOfIndenting();
  ASSERT_GT(calls.size(), static_cast<std::size_t>(kLines));
  LoadedAddIn addIn;
  addIn.Connect(session->Vbe());
  double indenting = 1e9;
  double bare = 1e9;
  for (int run = 0; run < kRuns; ++run) {
    ShowText(Pane(), text, 1);
    indenting = std::min(indenting, MillisecondsOf([&] { Indent(); }));
    const std::string indented = TextIn(Pane());
    ShowText(Pane(), text, 1);
    bare = std::min(bare, MillisecondsOf([&] { Repeat(calls); }));
    ASSERT_EQ(TextIn(Pane()), indented);
  }
  addIn.Disconnect();
  RecordProperty("indenting", std::to_string(indenting));
  RecordProperty("bare", std::to_string(bare));
  std::printf("indenting %d lines: %.0f ms; its %zu bare calls: %.0f ms; ratio %.2f\n", kLines,
              indenting, calls.size(), bare, indenting / bare);
  EXPECT_LE(indenting, 3 * bare);
}

TEST_F(SpeedOfTheAddIn, ConnectingTakesAtMost150Milliseconds) {
  constexpr double kMost = 150;  // milliseconds
  double connecting = 1e9;
  for (int run = 0; run < kRuns; ++run) {
    LoadedAddIn addIn;
    connecting = std::min(connecting, MillisecondsOf([&] { addIn.Connect(session->Vbe()); }));
    addIn.Disconnect();
  }
  std::printf("connecting: %.0f ms\n", connecting);
  EXPECT_LE(connecting, kMost);
}

}  // namespace speed_test
}  // namespace brimwork

// The entries of the "Help" submenu that open what is not the add-in's own, clicked in the bench.
#include <windows.h>

#include <gtest/gtest.h>
#include <tlhelp32.h>

#include <filesystem>
#include <string>

#include "core/modMiscellaneousCode.h"
#include "support/windows/test_browser.h"
#include "support/windows/user.h"
#include "support/windows/waiting.h"
#include "windows/end_to_end/bench_suite.h"
#include "windows/end_to_end/bench_windows.h"
#include "windows/end_to_end/entry_clicks.h"

namespace brimwork {
namespace help_entries_test {

namespace fs = std::filesystem;

constexpr int kContents = 60;
constexpr int kIndex = 61;
constexpr int kWebSite = 64;

bool HasLoaded(DWORD process, const wchar_t* library) {
  const HANDLE modules = CreateToolhelp32Snapshot(TH32CS_SNAPMODULE, process);
  MODULEENTRY32W module{};
  module.dwSize = sizeof module;
  bool hasIt = false;
  for (BOOL more = Module32FirstW(modules, &module); more && !hasIt;
       more = Module32NextW(modules, &module)) {
    hasIt = lstrcmpiW(module.szModule, library) == 0;
  }
  CloseHandle(modules);
  return hasIt;
}

class HelpEntries : public BenchSuite {};

TEST_F(HelpEntries, AskTheSystemsViewerAlsoForAFileThatIsNotThere) {
  ASSERT_FALSE(fs::exists(fs::path(LibraryPath()).replace_filename("Brimwork.chm")));
  ASSERT_FALSE(HasLoaded(Bench().ProcessId(), L"hhctrl.ocx"));
  const bench::Client pane = ShowText("modStock", "End Sub", 1, 1);

  ClickEntry(Bench(), kContents);
  EXPECT_TRUE(WaitUntil([] { return HasLoaded(Bench().ProcessId(), L"hhctrl.ocx"); }));
  ClickEntry(Bench(), kIndex);
  TypeText("x");

  EXPECT_TRUE(WaitUntil([&] { return TextOf(pane) == "xEnd Sub"; })) << TextOf(pane);
  EXPECT_TRUE(WaitUntilAlone(Bench()));
}

TEST_F(HelpEntries, OpenTheMakersSiteInTheUsersBrowser) {
  const TemporaryFolder folder;
  const fs::path file = folder / "address.txt";
  const TestBrowser browser(file);

  ClickEntry(Bench(), kWebSite);

  const std::string address = std::string(kWebSiteAddress) + "\r\n";
  EXPECT_TRUE(WaitUntil([&] { return fs::exists(file) && ReadBytes(file) == address; }));
}

}  // namespace help_entries_test
}  // namespace brimwork

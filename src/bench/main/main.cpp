// The stand-in environment as a program.
#include <windows.h>

#include <commctrl.h>
#include <ole2.h>
#include <shellapi.h>

#include <string>
#include <vector>

#include "bench/automation/application_class.h"
#include "bench/program/arguments.h"
#include "bench/program/program.h"
#include "bench/screen/faults.h"
#include "win32/wide_text.h"

namespace brimwork::bench {
namespace {

constexpr int kRefused = 2;
constexpr int kFailed = 1;

/// The main thread's single-threaded apartment.
class Apartment {
 public:
  Apartment() { OleInitialize(nullptr); }
  ~Apartment() { OleUninitialize(); }
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;
};

std::vector<std::wstring> Words() {
  int count = 0;
  LPWSTR* words = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::wstring> all(words + 1, words + count);
  LocalFree(words);
  return all;
}

std::string OwnPath() {
  constexpr DWORD kLongestPath = 32768;
  std::wstring path(kLongestPath, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), kLongestPath));
  return win32::Narrow(path);
}

int Do(const Arguments& arguments) {
  switch (arguments.job) {
    case Job::kRegister:
      RegisterApplicationClass(OwnPath());
      return 0;
    case Job::kUnregister:
      UnregisterApplicationClass();
      return 0;
    case Job::kRun:
      break;
  }
  const Apartment apartment;
  InitCommonControls();
  return Program(arguments).Run();
}

int Main() {
  try {
    return Do(ParseArguments(Words()));
  } catch (const ArgumentError&) {
    ReportFault(nullptr);
    return kRefused;
  } catch (...) {
    ReportFault(nullptr);
    return kFailed;
  }
}

}  // namespace
}  // namespace brimwork::bench

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) { return brimwork::bench::Main(); }

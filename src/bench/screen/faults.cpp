#include "bench/screen/faults.h"

#include <exception>

#include "environment/run_time_error.h"
#include "win32/wide_text.h"

namespace brimwork::bench {
namespace {

constexpr const wchar_t* kTitle = L"Workbench";

std::string WordsOfFault() {
  try {
    throw;
  } catch (const RunTimeError& error) {
    return "Run-time error '" + std::to_string(error.Number()) + "':\n\n" + error.what();
  } catch (const std::exception& error) {
    return error.what();
  } catch (...) {
    return "An unknown error has occurred.";
  }
}

}  // namespace

void ReportFault(HWND owner) noexcept {
  try {
    Warn(owner, WordsOfFault());
  } catch (...) {
    MessageBoxW(owner, L"There is not enough memory.", kTitle, MB_OK | MB_ICONWARNING);
  }
}

void Warn(HWND owner, const std::string& text) {
  MessageBoxW(owner, win32::Wide(text).c_str(), kTitle, MB_OK | MB_ICONWARNING);
}

void CheckSystem(bool succeeded, const char* what) {
  if (succeeded) return;
  const DWORD error = GetLastError();
  throw RunTimeError(error_number::kAutomationError,
                     std::string(what) + ": " + win32::SystemWords(error));
}

}  // namespace brimwork::bench

#include "windows/object_model/automation_error.h"

#include <cstdio>
#include <string>
#include <utility>

#include "win32/variant.h"
#include "win32/wide_text.h"

namespace brimwork::windows {
namespace {

constexpr HRESULT kBusy = static_cast<HRESULT>(0x800AC472);

constexpr bool HoldsAVisualBasicNumber(HRESULT code) {
  return (static_cast<std::uint32_t>(code) & 0xFFFF0000) == 0x800A0000;
}

int NumberOf(HRESULT code) {
  if (HoldsAVisualBasicNumber(code)) return HRESULT_CODE(code);
  switch (code) {
    case DISP_E_MEMBERNOTFOUND:
    case DISP_E_UNKNOWNNAME:
      return error_number::kNotSupportedByObject;
    case DISP_E_TYPEMISMATCH:
      return error_number::kTypeMismatch;
    case DISP_E_BADINDEX:
      return error_number::kSubscriptOutOfRange;
    default:
      return error_number::kAutomationError;
  }
}

std::string Hexadecimal(HRESULT code) {
  char digits[16];
  std::snprintf(digits, sizeof digits, "0x%08lX", static_cast<unsigned long>(code));
  return digits;
}

std::string WordsOf(HRESULT code, int number, std::string description) {
  if (description.empty() && HoldsAVisualBasicNumber(code)) {
    description = "error " + std::to_string(number);
  }
  if (description.empty()) description = win32::SystemWords(static_cast<DWORD>(code));
  const bool tellsTheCode = number != error_number::kAutomationError;
  return tellsTheCode ? description : description + " (" + Hexadecimal(code) + ")";
}

}  // namespace

EXCEPINFO* ExceptionInfo::Receive() {
  Clear();
  return &info_;
}

const EXCEPINFO& ExceptionInfo::Get() {
  if (const auto fillIn = std::exchange(info_.pfnDeferredFillIn, nullptr)) fillIn(&info_);
  return info_;
}

void ExceptionInfo::Clear() {
  SysFreeString(info_.bstrSource);
  SysFreeString(info_.bstrDescription);
  SysFreeString(info_.bstrHelpFile);
  info_ = {};
}

HRESULT MeantBy(HRESULT status, ExceptionInfo& exception) {
  if (status != DISP_E_EXCEPTION) return status;
  const EXCEPINFO& info = exception.Get();
  if (info.scode != 0) return info.scode;
  return info.wCode == 0 ? status : MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, info.wCode);
}

bool IsTurnedAway(HRESULT code) {
  return code == RPC_E_CALL_REJECTED || code == RPC_E_SERVERCALL_RETRYLATER || code == kBusy;
}

RunTimeError AutomationError(HRESULT status, ExceptionInfo& exception, std::wstring_view member) {
  const HRESULT code = MeantBy(status, exception);
  const int number = NumberOf(code);
  const std::string words = WordsOf(code, number, win32::TextOf(exception.Get().bstrDescription));
  return RunTimeError(number, win32::Narrow(member) + ": " + words);
}

}  // namespace brimwork::windows

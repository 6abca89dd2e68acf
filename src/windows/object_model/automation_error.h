// What a failed automation call raises.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <string_view>

#include "environment/run_time_error.h"

namespace brimwork::windows {

/// What a failing call says about its error, freed at the end.
class ExceptionInfo {
 public:
  ExceptionInfo() = default;
  ~ExceptionInfo() { Clear(); }
  ExceptionInfo(const ExceptionInfo&) = delete;
  ExceptionInfo& operator=(const ExceptionInfo&) = delete;

  /// Where a call puts it; what was held is freed first.
  EXCEPINFO* Receive();

  /// What was held, filled in by the called where it left that for later.
  const EXCEPINFO& Get();

 private:
  void Clear();

  EXCEPINFO info_ = {};
};

/// The code that a failing call means: that of the exception where it raised one.
HRESULT MeantBy(HRESULT status, ExceptionInfo& exception);

/// True for a call that was not carried out because the environment is busy: it may succeed later.
bool IsTurnedAway(HRESULT code);

/// The run-time error of a failing call. Its number is Visual Basic's where status or exception
/// hold one, 438 for an unknown member, 13 for a wrong type, 9 for a wrong index, else 440; its
/// words name the member, and the code where the number does not tell it.
RunTimeError AutomationError(HRESULT status, ExceptionInfo& exception, std::wstring_view member);

}  // namespace brimwork::windows

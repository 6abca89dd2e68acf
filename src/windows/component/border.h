// Where the system calls the add-in: no C++ exception gets past that.
#pragma once

#include <windows.h>

#include <new>

#include "environment/run_time_error.h"

namespace brimwork::windows {

/// Runs step; returns S_OK, or the result that stands for the exception which ended it.
template <class Step>
HRESULT AtBorder(Step&& step) noexcept {
  try {
    step();
    return S_OK;
  } catch (const RunTimeError& error) {
    return MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, error.Number() & 0xFFFF);
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (...) {
    return E_FAIL;
  }
}

}  // namespace brimwork::windows

#include "windows/object_model/click_sink.h"

#include <exception>
#include <new>
#include <utility>

#include "environment/run_time_error.h"
#include "win32/variant.h"
#include "windows/object_model/values.h"

namespace brimwork::windows {
namespace {

using win32::ComPointer;
using win32::Variant;

constexpr DISPID kClick = 1;
constexpr DISPID kClickedControl = 0;  // the place of that argument

/// The argument at a place, by name or by position; null when it was left out.
VARIANT* ArgumentAt(const DISPPARAMS& parameters, DISPID place) {
  for (UINT i = 0; i < parameters.cNamedArgs; ++i) {
    if (parameters.rgdispidNamedArgs[i] == place) return &parameters.rgvarg[i];
  }
  const UINT positional = parameters.cArgs - parameters.cNamedArgs;
  const auto at = static_cast<UINT>(place);
  return at < positional ? &parameters.rgvarg[parameters.cArgs - 1 - at] : nullptr;
}

ComPointer<IDispatch> ClickedIn(const DISPPARAMS* parameters) {
  VARIANT* const argument =
      parameters == nullptr ? nullptr : ArgumentAt(*parameters, kClickedControl);
  Variant value;
  if (argument == nullptr || FAILED(VariantCopyInd(value.Receive(), argument))) return nullptr;
  const bool isObject = value.Type() == VT_DISPATCH || value.Type() == VT_UNKNOWN;
  return isObject ? ToObject(value) : nullptr;
}

HRESULT RaiseInCaller(int number, const char* words, EXCEPINFO* exception) {
  const HRESULT code = MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number);
  if (exception == nullptr) return code;
  *exception = {};
  exception->scode = code;
  exception->bstrDescription = win32::NewBstr(words);
  return DISP_E_EXCEPTION;
}

}  // namespace

ComPointer<ClickSink> ClickSink::Make(Handler handler, std::shared_ptr<const void> inUse) {
  return ComPointer<ClickSink>::Adopt(new ClickSink(std::move(handler), std::move(inUse)));
}

HRESULT ClickSink::QueryInterface(REFIID iid, void** object) {
  if (object == nullptr) return E_POINTER;
  const bool isKnown = IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IDispatch) ||
                       (IsEqualIID(iid, events_) && !IsEqualIID(iid, IID_NULL));
  *object = isKnown ? static_cast<IDispatch*>(this) : nullptr;
  if (!isKnown) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

ULONG ClickSink::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT ClickSink::GetTypeInfoCount(UINT* count) {
  if (count == nullptr) return E_POINTER;
  *count = 0;
  return S_OK;
}

HRESULT ClickSink::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
  if (info != nullptr) *info = nullptr;
  return DISP_E_BADINDEX;
}

HRESULT ClickSink::GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) { return E_NOTIMPL; }

HRESULT ClickSink::Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*,
                          EXCEPINFO* exception, UINT*) {
  if (member != kClick) return S_OK;
  const ComPointer<ClickSink> alive(this);
  try {
    return Handle(parameters, exception);
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (...) {
    return E_FAIL;
  }
}

HRESULT ClickSink::Handle(const DISPPARAMS* parameters, EXCEPINFO* exception) {
  const auto handler = handler_;
  if (!handler) return S_OK;
  try {
    (*handler)(ClickedIn(parameters));
    return S_OK;
  } catch (const RunTimeError& error) {
    return RaiseInCaller(error.Number(), error.what(), exception);
  }
}

}  // namespace brimwork::windows

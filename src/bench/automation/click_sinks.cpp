#include "bench/automation/click_sinks.h"

#include <olectl.h>

#include <utility>

#include "bench/automation/identifiers.h"

namespace brimwork::bench {
namespace {

constexpr DISPID kClick = 1;

VARIANT_BOOL TruthOf(bool truth) { return truth ? VARIANT_TRUE : VARIANT_FALSE; }

void CallClick(IDispatch& sink, const win32::Variant& control, ClickAnswer& answer) {
  VARIANT_BOOL handled = TruthOf(answer.isHandled);
  VARIANT_BOOL cancelDefault = TruthOf(answer.cancelsDefault);
  VARIANTARG arguments[3];  // last to first
  for (VARIANTARG& argument : arguments) VariantInit(&argument);
  arguments[0].vt = VT_BYREF | VT_BOOL;
  arguments[0].pboolVal = &cancelDefault;
  arguments[1].vt = VT_BYREF | VT_BOOL;
  arguments[1].pboolVal = &handled;
  arguments[2] = control.Get();
  DISPPARAMS parameters{arguments, nullptr, 3, 0};
  sink.Invoke(kClick, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr, nullptr,
              nullptr);
}

}  // namespace

HRESULT ClickSinks::Add(IUnknown* sink, DWORD* cookie) {
  if (sink == nullptr || cookie == nullptr) return E_POINTER;
  win32::ComPointer<IDispatch> events;
  if (FAILED(sink->QueryInterface(iid::kClickEventsSource, events.ReceiveAny())) &&
      FAILED(sink->QueryInterface(IID_IDispatch, events.ReceiveAny()))) {
    return CONNECT_E_CANNOTCONNECT;
  }
  *cookie = ++lastCookie_;
  sinks_.emplace(*cookie, std::move(events));
  return S_OK;
}

HRESULT ClickSinks::Remove(DWORD cookie) {
  return sinks_.erase(cookie) == 0 ? CONNECT_E_NOCONNECTION : S_OK;
}

void ClickSinks::Click(const win32::Variant& control, ClickAnswer& answer) const {
  const auto present = sinks_;  // sinks come and go in handlers
  for (const auto& [cookie, sink] : present) {
    if (sinks_.contains(cookie)) CallClick(*sink, control, answer);
  }
}

std::vector<ClickSinks::Connection> ClickSinks::All() const {
  std::vector<Connection> all;
  for (const auto& [cookie, sink] : sinks_) all.push_back({sink.As<IUnknown>(), cookie});
  return all;
}

}  // namespace brimwork::bench

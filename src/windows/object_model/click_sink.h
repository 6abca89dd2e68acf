// The object that the environment tells of clicks. It outlives its binding where the environment
// holds it longer, or calls it at that very moment; then it is deaf.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <functional>
#include <memory>

#include "win32/com_pointer.h"

namespace brimwork::windows {

class ClickSink : public IDispatch {
 public:
  /// Given the control that was clicked; null when the environment did not say.
  using Handler = std::function<void(const win32::ComPointer<IDispatch>& clicked)>;

  /// inUse is held as long as the sink lives; it may be null.
  static win32::ComPointer<ClickSink> Make(Handler handler,
                                           std::shared_ptr<const void> inUse = nullptr);

  /// Answers for this event interface, too, from now on.
  void SpeakFor(const IID& events) { events_ = events; }

  /// From now on clicks do nothing. One that is being handled is handled to its end.
  void Deafen() { handler_.reset(); }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override;
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale,
                                          DISPID* ids) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID iid, LCID locale, WORD kind,
                                   DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                   UINT* wrongArgument) override;

 private:
  ClickSink(Handler handler, std::shared_ptr<const void> inUse)
      : inUse_(std::move(inUse)), handler_(std::make_shared<const Handler>(std::move(handler))) {}
  virtual ~ClickSink() = default;

  HRESULT Handle(const DISPPARAMS* parameters, EXCEPINFO* exception);

  ULONG references_ = 1;
  std::shared_ptr<const void> inUse_;
  IID events_ = IID_NULL;
  std::shared_ptr<const Handler> handler_;
};

}  // namespace brimwork::windows

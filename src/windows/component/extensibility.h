// The interface by which an editor tells an add-in what happens to it.
#pragma once

#include <windows.h>

#include <oaidl.h>

namespace brimwork::windows {

/// Dual: its methods can be called directly, in this order, or late-bound with the numbers below.
struct IExtensibility : public IDispatch {
  virtual HRESULT STDMETHODCALLTYPE OnConnection(IDispatch* application, long connectMode,
                                                 IDispatch* addIn, SAFEARRAY** custom) = 0;
  virtual HRESULT STDMETHODCALLTYPE OnDisconnection(long removeMode, SAFEARRAY** custom) = 0;
  virtual HRESULT STDMETHODCALLTYPE OnAddInsUpdate(SAFEARRAY** custom) = 0;
  virtual HRESULT STDMETHODCALLTYPE OnStartupComplete(SAFEARRAY** custom) = 0;
  virtual HRESULT STDMETHODCALLTYPE OnBeginShutdown(SAFEARRAY** custom) = 0;

 protected:
  ~IExtensibility() = default;
};

namespace extensibility_method {
inline constexpr DISPID kOnConnection = 1;
inline constexpr DISPID kOnDisconnection = 2;
inline constexpr DISPID kOnAddInsUpdate = 3;
inline constexpr DISPID kOnStartupComplete = 4;
inline constexpr DISPID kOnBeginShutdown = 5;
}  // namespace extensibility_method

}  // namespace brimwork::windows

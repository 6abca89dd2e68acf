// The interface by which the environment tells an add-in what happens to it.
#pragma once

#include <windows.h>

#include <oaidl.h>

namespace brimwork::bench {

inline constexpr IID kExtensibilityIid = {
    0xB65AD801, 0xABAF, 0x11D0, {0xBB, 0x8B, 0x00, 0xA0, 0xC9, 0x0F, 0x27, 0x44}};

enum class ConnectMode : long { kAfterStartup = 0, kStartup = 1, kExternal = 2, kCommandLine = 3 };
enum class DisconnectMode : long { kHostShutdown = 0, kUserClosed = 1 };

/// The order of the methods is the interface's.
struct IExtensibility : public IDispatch {
  virtual HRESULT STDMETHODCALLTYPE OnConnection(IDispatch* application, ConnectMode mode,
                                                 IDispatch* addIn, SAFEARRAY** custom) = 0;
  virtual HRESULT STDMETHODCALLTYPE OnDisconnection(DisconnectMode mode, SAFEARRAY** custom) = 0;
  virtual HRESULT STDMETHODCALLTYPE OnAddInsUpdate(SAFEARRAY** custom) = 0;
  virtual HRESULT STDMETHODCALLTYPE OnStartupComplete(SAFEARRAY** custom) = 0;
  virtual HRESULT STDMETHODCALLTYPE OnBeginShutdown(SAFEARRAY** custom) = 0;

 protected:
  ~IExtensibility() = default;
};

}  // namespace brimwork::bench

// The add-in's class as the editors see it: the object that they create and tell of connections.
#pragma once

#include <windows.h>

#include <memory>

#include "core/Connect.h"
#include "win32/com_pointer.h"
#include "windows/component/extensibility.h"
#include "windows/component/library_use.h"

namespace brimwork::windows {

class WindowsEnvironment;

class ConnectObject : public IExtensibility {
 public:
  /// module: the library, whose resources and folder the add-in uses.
  static win32::ComPointer<ConnectObject> Make(HINSTANCE module, LibraryUse use);

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

  /// A connection that is there already ends first. E_INVALIDARG without an application.
  HRESULT STDMETHODCALLTYPE OnConnection(IDispatch* application, long connectMode, IDispatch* addIn,
                                         SAFEARRAY** custom) override;
  /// When it returns, nothing of the application is held; but a command that waits for messages
  /// meanwhile holds what it works on until it ends, which its next call makes it do.
  HRESULT STDMETHODCALLTYPE OnDisconnection(long removeMode, SAFEARRAY** custom) override;
  HRESULT STDMETHODCALLTYPE OnAddInsUpdate(SAFEARRAY** custom) override;
  HRESULT STDMETHODCALLTYPE OnStartupComplete(SAFEARRAY** custom) override;
  HRESULT STDMETHODCALLTYPE OnBeginShutdown(SAFEARRAY** custom) override;

 private:
  ConnectObject(HINSTANCE module, LibraryUse use);
  virtual ~ConnectObject();

  void Connect(const win32::ComPointer<IDispatch>& application);
  void Disconnect();

  ULONG references_ = 1;
  HINSTANCE module_;
  LibraryUse use_;
  std::shared_ptr<brimwork::Connect> connect_;
  std::weak_ptr<WindowsEnvironment> environment_;
};

}  // namespace brimwork::windows

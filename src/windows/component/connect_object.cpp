#include "windows/component/connect_object.h"

#include <utility>

#include "windows/component/border.h"
#include "windows/component/extensibility_dispatch.h"
#include "windows/component/identifiers.h"
#include "windows/component/windows_environment.h"

namespace brimwork::windows {

using win32::ComPointer;

ComPointer<ConnectObject> ConnectObject::Make(HINSTANCE module, LibraryUse use) {
  return ComPointer<ConnectObject>::Adopt(new ConnectObject(module, std::move(use)));
}

ConnectObject::ConnectObject(HINSTANCE module, LibraryUse use)
    : module_(module), use_(std::move(use)), connect_(std::make_shared<brimwork::Connect>()) {}

ConnectObject::~ConnectObject() {
  AtBorder([this] { Disconnect(); });
}

HRESULT ConnectObject::QueryInterface(REFIID iid, void** object) {
  if (object == nullptr) return E_POINTER;
  const bool isKnown = IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IDispatch) ||
                       IsEqualIID(iid, kExtensibilityInterface);
  *object = isKnown ? static_cast<IExtensibility*>(this) : nullptr;
  if (!isKnown) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

// Ending the connection calls the editor, which may take a reference to the object and give it back
// meanwhile: that is not the last one again.
ULONG ConnectObject::Release() {
  const ULONG left = --references_;
  if (left > 0) return left;
  references_ = 1;
  delete this;
  return 0;
}

HRESULT ConnectObject::GetTypeInfoCount(UINT* count) {
  if (count == nullptr) return E_POINTER;
  *count = 0;
  return S_OK;
}

HRESULT ConnectObject::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
  if (info != nullptr) *info = nullptr;
  return DISP_E_BADINDEX;
}

HRESULT ConnectObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
  return FindExtensibilityNames(names, count, ids);
}

HRESULT ConnectObject::Invoke(DISPID member, REFIID, LCID, WORD kind, DISPPARAMS* parameters,
                              VARIANT*, EXCEPINFO*, UINT*) {
  HRESULT result = S_OK;
  const HRESULT ended =
      AtBorder([&] { result = InvokeExtensibility(*this, member, kind, parameters); });
  return FAILED(ended) ? ended : result;
}

HRESULT ConnectObject::OnConnection(IDispatch* application, long, IDispatch*, SAFEARRAY**) {
  if (application == nullptr) return E_INVALIDARG;
  return AtBorder([&] { Connect(ComPointer<IDispatch>(application)); });
}

HRESULT ConnectObject::OnDisconnection(long, SAFEARRAY**) {
  return AtBorder([this] { Disconnect(); });
}

HRESULT ConnectObject::OnAddInsUpdate(SAFEARRAY**) { return S_OK; }

HRESULT ConnectObject::OnStartupComplete(SAFEARRAY**) {
  const ComPointer<ConnectObject> alive(this);
  return AtBorder([this] { connect_->AddinInstance_OnStartupComplete(); });
}

HRESULT ConnectObject::OnBeginShutdown(SAFEARRAY**) { return S_OK; }

// Messages run meanwhile, and with them possibly the disconnection, behind which the editor lets go
// of the object.
void ConnectObject::Connect(const ComPointer<IDispatch>& application) {
  const ComPointer<ConnectObject> alive(this);
  Disconnect();
  const auto environment = std::make_shared<WindowsEnvironment>(module_, application, use_);
  environment->KeepAliveBy([connect = std::weak_ptr(connect_)]() -> std::shared_ptr<const void> {
    const auto connected = connect.lock();
    return connected ? connected->Connected() : nullptr;
  });
  environment_ = environment;
  connect_->AddinInstance_OnConnection(environment->Parts(), environment);
}

void ConnectObject::Disconnect() {
  connect_->AddinInstance_OnDisconnection();
  if (const auto stillInUse = environment_.lock()) stillInUse->LetGo();
}

}  // namespace brimwork::windows

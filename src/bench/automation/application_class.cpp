#include "bench/automation/application_class.h"

#include <objbase.h>

#include <stdexcept>

#include "win32/registry_key.h"
#include "win32/wide_text.h"

namespace brimwork::bench {
namespace {

constexpr CLSID kApplication = {
    0x8d0c1f5a, 0x3b7e, 0x4c62, {0x9a, 0x41, 0x5e, 0x27, 0xc8, 0x96, 0x0d, 0xb3}};
constexpr const char* kProgId = "BrimworkBench.Application";
constexpr const char* kClasses = "Software\\Classes\\";

/// Every object it makes is the one root of the object model.
class ApplicationFactory final : public IClassFactory {
 public:
  explicit ApplicationFactory(std::shared_ptr<Session> session) : session_(std::move(session)) {}
  virtual ~ApplicationFactory() = default;

  STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (!IsEqualIID(iid, IID_IUnknown) && !IsEqualIID(iid, IID_IClassFactory)) {
      return E_NOINTERFACE;
    }
    *object = static_cast<IClassFactory*>(this);
    AddRef();
    return S_OK;
  }

  STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }

  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (outer != nullptr) return CLASS_E_NOAGGREGATION;
    if (session_->HasEnded()) return RPC_E_DISCONNECTED;
    return session_->Vbe()->QueryInterface(iid, object);
  }

  // The program ends when its user ends it.
  STDMETHODIMP LockServer(BOOL) override { return S_OK; }

 private:
  std::shared_ptr<Session> session_;
  ULONG references_ = 0;
};

std::string ClassKey() {
  constexpr int kSize = 39;
  wchar_t text[kSize];
  StringFromGUID2(kApplication, text, kSize);
  return std::string(kClasses) + "CLSID\\" + win32::Narrow(text);
}

/// Programs of both word sizes may be its clients.
constexpr REGSAM kViews[] = {KEY_WOW64_32KEY, KEY_WOW64_64KEY};

void WriteDefault(const std::string& path, const std::string& text, REGSAM view = 0) {
  win32::RegistryKey::Make(HKEY_CURRENT_USER, path, view).SetText("", text);
}

}  // namespace

ApplicationClass::ApplicationClass(Workbench& workbench, Surface& surface, AddInList& addIns)
    : session_(Session::Open(workbench, surface, addIns)),
      factory_(win32::ComPointer<IClassFactory>(new ApplicationFactory(session_))) {
  const HRESULT result = CoRegisterClassObject(kApplication, factory_.get(), CLSCTX_LOCAL_SERVER,
                                               REGCLS_MULTIPLEUSE, &registration_);
  if (FAILED(result)) {
    throw std::runtime_error("the class BrimworkBench.Application cannot be offered: " +
                             win32::SystemWords(static_cast<DWORD>(result)));
  }
}

ApplicationClass::~ApplicationClass() {
  CoRevokeClassObject(registration_);
  session_->End();
}

void RegisterApplicationClass(const std::string& program) {
  const std::string clsid = ClassKey().substr(ClassKey().rfind('\\') + 1);
  WriteDefault(std::string(kClasses) + kProgId, "Brimwork Bench");
  WriteDefault(std::string(kClasses) + kProgId + "\\CLSID", clsid);
  for (const REGSAM view : kViews) {
    WriteDefault(ClassKey(), "Brimwork Bench", view);
    WriteDefault(ClassKey() + "\\ProgID", kProgId, view);
    WriteDefault(ClassKey() + "\\LocalServer32", "\"" + program + "\" --automation", view);
  }
}

void UnregisterApplicationClass() {
  win32::RemoveKey(HKEY_CURRENT_USER, std::string(kClasses) + kProgId);
  for (const REGSAM view : kViews) win32::RemoveKey(HKEY_CURRENT_USER, ClassKey(), view);
}

}  // namespace brimwork::bench

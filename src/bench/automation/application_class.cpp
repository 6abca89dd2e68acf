#include "bench/automation/application_class.h"

#include <objbase.h>

#include <stdexcept>

#include "win32/registry_key.h"
#include "win32/wide_text.h"

namespace brimwork::bench {
namespace {

constexpr const char* kProgId = "BrimworkBench.Application";

/// A place for classes in the registry.
struct ClassesRoot {
  HKEY root;
  std::string path;  // in front of a class's own
};

// The second is for systems that do not show a user's classes among all, as Wine up to 8 does not.
const ClassesRoot kOfTheUser{HKEY_CURRENT_USER, "Software\\Classes\\"};
const ClassesRoot kOfAll{HKEY_CLASSES_ROOT, ""};

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

std::string ClassText() {
  constexpr int kSize = 39;
  wchar_t text[kSize];
  StringFromGUID2(kApplicationClass, text, kSize);
  return win32::Narrow(text);
}

std::string ClassKey() { return "CLSID\\" + ClassText(); }

/// Programs of both word sizes may be its clients.
constexpr REGSAM kViews[] = {KEY_WOW64_32KEY, KEY_WOW64_64KEY};

void WriteDefault(const ClassesRoot& place, const std::string& key, const std::string& text,
                  REGSAM view = 0) {
  win32::RegistryKey::Make(place.root, place.path + key, view).SetText("", text);
}

void Register(const ClassesRoot& place, const std::string& program) {
  WriteDefault(place, kProgId, "Brimwork Bench");
  WriteDefault(place, std::string(kProgId) + "\\CLSID", ClassText());
  for (const REGSAM view : kViews) {
    WriteDefault(place, ClassKey(), "Brimwork Bench", view);
    WriteDefault(place, ClassKey() + "\\ProgID", kProgId, view);
    WriteDefault(place, ClassKey() + "\\LocalServer32", "\"" + program + "\" /automation", view);
  }
}

void Unregister(const ClassesRoot& place) {
  win32::RemoveKey(place.root, place.path + kProgId);
  for (const REGSAM view : kViews) win32::RemoveKey(place.root, place.path + ClassKey(), view);
}

bool IsAmongAllClasses() {
  return win32::RegistryKey(HKEY_CLASSES_ROOT, kProgId, KEY_READ).IsOpen();
}

}  // namespace

ApplicationClass::ApplicationClass(Workbench& workbench, Surface& surface, AddInList& addIns)
    : session_(Session::Open(workbench, surface, addIns)),
      factory_(win32::ComPointer<IClassFactory>(new ApplicationFactory(session_))) {
  const HRESULT result = CoRegisterClassObject(
      kApplicationClass, factory_.get(), CLSCTX_LOCAL_SERVER, REGCLS_MULTIPLEUSE, &registration_);
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
  Register(kOfTheUser, program);
  if (!IsAmongAllClasses()) Register(kOfAll, program);
}

void UnregisterApplicationClass() {
  Unregister(kOfTheUser);
  if (IsAmongAllClasses()) Unregister(kOfAll);
}

}  // namespace brimwork::bench

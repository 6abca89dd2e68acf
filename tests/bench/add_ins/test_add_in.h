// Add-ins that tests load: classes of this program, registered as an add-in's installation does it.
#pragma once

#include <windows.h>

#include <objbase.h>

#include <functional>
#include <string>
#include <vector>

#include "bench/add_ins/extensibility.h"
#include "win32/com_pointer.h"
#include "win32/registry_key.h"
#include "win32/wide_text.h"

namespace brimwork::bench {

/// The thread's apartment, in which classes are offered.
class Apartment {
 public:
  Apartment() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
  ~Apartment() { CoUninitialize(); }
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;
};

/// What the environment told an add-in, and how the add-in answers.
struct TestAddIn {
  std::vector<std::string> calls;
  std::function<HRESULT(IDispatch* application, IDispatch* addIn)> onConnection =
      [](IDispatch*, IDispatch*) { return S_OK; };
  HRESULT onDisconnection = S_OK;
};

class TestAddInObject final : public IExtensibility {
 public:
  explicit TestAddInObject(TestAddIn& behaviour) : behaviour_(behaviour) {}
  virtual ~TestAddInObject() { behaviour_.calls.push_back("released"); }

  STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
    const bool isOne = IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IDispatch) ||
                       IsEqualIID(iid, kExtensibilityIid);
    *object = isOne ? this : nullptr;
    if (isOne) AddRef();
    return isOne ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }
  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                      UINT*) override {
    return E_NOTIMPL;
  }

  STDMETHODIMP OnConnection(IDispatch* application, ConnectMode mode, IDispatch* addIn,
                            SAFEARRAY** custom) override {
    Note("OnConnection " + std::to_string(static_cast<long>(mode)), custom);
    return behaviour_.onConnection(application, addIn);
  }
  STDMETHODIMP OnDisconnection(DisconnectMode mode, SAFEARRAY** custom) override {
    Note("OnDisconnection " + std::to_string(static_cast<long>(mode)), custom);
    return behaviour_.onDisconnection;
  }
  STDMETHODIMP OnAddInsUpdate(SAFEARRAY** custom) override {
    Note("OnAddInsUpdate", custom);
    return S_OK;
  }
  STDMETHODIMP OnStartupComplete(SAFEARRAY** custom) override {
    Note("OnStartupComplete", custom);
    return S_OK;
  }
  STDMETHODIMP OnBeginShutdown(SAFEARRAY** custom) override {
    Note("OnBeginShutdown", custom);
    return S_OK;
  }

 private:
  void Note(const std::string& call, SAFEARRAY** custom) {
    const bool isEmptyArray = custom != nullptr && *custom != nullptr && (*custom)->cDims == 1 &&
                              (*custom)->rgsabound[0].cElements == 0;
    behaviour_.calls.push_back(isEmptyArray ? call : call + " without its array");
  }

  TestAddIn& behaviour_;
  ULONG references_ = 0;
};

/// Offers a class to this program and registers it as an add-in, for its life.
class RegisteredTestAddIn final : public IClassFactory {
 public:
  RegisteredTestAddIn(std::string progId, unsigned long loadBehavior, TestAddIn& behaviour)
      : progId_(std::move(progId)), behaviour_(behaviour) {
    CoCreateGuid(&clsid_);
    wchar_t text[39];
    StringFromGUID2(clsid_, text, 39);
    win32::RegistryKey::Make(HKEY_CLASSES_ROOT, progId_ + "\\CLSID")
        .SetText("", win32::Narrow(text));
    auto key = win32::RegistryKey::Make(HKEY_CURRENT_USER, AddInKey());
    key.SetText("FriendlyName", "Friendly " + progId_);
    key.SetText("Description", "Description of " + progId_);
    key.SetNumber("LoadBehavior", loadBehavior);
    CoRegisterClassObject(clsid_, this, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &registration_);
  }
  virtual ~RegisteredTestAddIn() {
    CoRevokeClassObject(registration_);
    win32::RemoveKey(HKEY_CLASSES_ROOT, progId_);
    win32::RemoveKey(HKEY_CURRENT_USER, AddInKey());
  }
  RegisteredTestAddIn(const RegisteredTestAddIn&) = delete;
  RegisteredTestAddIn& operator=(const RegisteredTestAddIn&) = delete;

  STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
    const bool isOne = IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IClassFactory);
    *object = isOne ? this : nullptr;
    return isOne ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return 2; }  // it lives as long as its test
  STDMETHODIMP_(ULONG) Release() override { return 1; }
  STDMETHODIMP CreateInstance(IUnknown*, REFIID iid, void** object) override {
    const auto made = win32::ComPointer<TestAddInObject>(new TestAddInObject(behaviour_));
    return made->QueryInterface(iid, object);
  }
  STDMETHODIMP LockServer(BOOL) override { return S_OK; }

 private:
  std::string AddInKey() const {
    return "Software\\Microsoft\\Visual Basic\\6.0\\Addins\\" + progId_;
  }

  std::string progId_;
  TestAddIn& behaviour_;
  CLSID clsid_{};
  DWORD registration_ = 0;
};

}  // namespace brimwork::bench

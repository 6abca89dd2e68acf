// A program that the system knows by a name as long as this lives. It runs in the test's process,
// on the thread that makes it: others that start it wait until that thread handles its messages.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>
#include <objbase.h>

#include <string>
#include <utility>

#include "win32/com_pointer.h"
#include "win32/registry_key.h"
#include "win32/wide_text.h"

namespace brimwork {

/// Hands out one object.
class OneObject : public IClassFactory {
 public:
  explicit OneObject(IDispatch* object) : object_(object) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    const bool isKnown = IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IClassFactory);
    *object = isKnown ? this : nullptr;
    return isKnown ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID iid, void** object) override {
    return object_->QueryInterface(iid, object);
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

 private:
  IDispatch* object_;
};

class RegisteredProgram {
 public:
  /// object outlives this.
  RegisteredProgram(std::string name, IDispatch* object)
      : name_(std::move(name)), factory_(object) {
    CoInitialize(nullptr);
    win32::RegistryKey::Make(HKEY_CLASSES_ROOT, name_ + "\\CLSID").SetText("", kId);
    CLSID id;
    CLSIDFromString(win32::Wide(kId).c_str(), &id);
    EXPECT_EQ(CoRegisterClassObject(id, &factory_, CLSCTX_LOCAL_SERVER, REGCLS_MULTIPLEUSE,
                                    &registration_),
              S_OK);
  }
  ~RegisteredProgram() {
    CoRevokeClassObject(registration_);
    win32::RemoveKey(HKEY_CLASSES_ROOT, name_);
    CoUninitialize();
  }
  RegisteredProgram(const RegisteredProgram&) = delete;
  RegisteredProgram& operator=(const RegisteredProgram&) = delete;

 private:
  static constexpr const char* kId = "{6D2A6E0B-3C5B-4C0B-9B1E-52C8C1B1B0A7}";

  std::string name_;
  OneObject factory_;
  DWORD registration_ = 0;
};

}  // namespace brimwork

// What the system calls the library for: its class, its installation, and whether it may go.
#include <windows.h>

#include <objbase.h>
#include <olectl.h>

#include <string>
#include <string_view>

#include "win32/module_path.h"
#include "windows/component/border.h"
#include "windows/component/class_factory.h"
#include "windows/component/identifiers.h"
#include "windows/component/registration.h"

extern "C" IMAGE_DOS_HEADER __ImageBase;  // where the linker lets the library begin

namespace brimwork::windows {
namespace {

HINSTANCE ThisModule() { return reinterpret_cast<HINSTANCE>(&__ImageBase); }

/// The one thing that the whole library shares: the system asks for it without any object.
LibraryUses& Uses() {
  static LibraryUses uses;
  return uses;
}

void RegisterFor(Scope scope) { Register(win32::ModulePath(ThisModule()), scope); }

/// SELFREG_E_CLASS is what regsvr32 knows a failure by.
HRESULT Registered(HRESULT result) { return FAILED(result) ? SELFREG_E_CLASS : S_OK; }

bool Is(const wchar_t* commandLine, std::wstring_view word) {
  return commandLine != nullptr && lstrcmpiW(commandLine, word.data()) == 0;
}

}  // namespace
}  // namespace brimwork::windows

using namespace brimwork::windows;

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, void*) {
  if (reason == DLL_PROCESS_ATTACH) DisableThreadLibraryCalls(module);
  return TRUE;
}

STDAPI DllGetClassObject(REFCLSID classId, REFIID iid, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (!IsEqualCLSID(classId, kConnectClass)) return CLASS_E_CLASSNOTAVAILABLE;
  HRESULT answered = S_OK;
  const HRESULT made = AtBorder(
      [&] { answered = ClassFactory::Make(ThisModule(), Uses())->QueryInterface(iid, object); });
  return FAILED(made) ? made : answered;
}

STDAPI DllCanUnloadNow() { return Uses().IsNone() ? S_OK : S_FALSE; }

STDAPI DllRegisterServer() {
  return Registered(AtBorder([] { RegisterFor(AvailableScope()); }));
}

STDAPI DllUnregisterServer() {
  return Registered(AtBorder([] { Unregister(); }));
}

/// regsvr32 /n /i:user registers for the current user, /i:machine for everybody; /i leaves it to
/// what this process may do.
STDAPI DllInstall(BOOL installs, LPCWSTR commandLine) {
  if (!installs) return DllUnregisterServer();
  if (Is(commandLine, L"user")) return Registered(AtBorder([] { RegisterFor(Scope::kUser); }));
  if (Is(commandLine, L"machine")) {
    return Registered(AtBorder([] { RegisterFor(Scope::kMachine); }));
  }
  return commandLine == nullptr || *commandLine == L'\0' ? DllRegisterServer() : E_INVALIDARG;
}

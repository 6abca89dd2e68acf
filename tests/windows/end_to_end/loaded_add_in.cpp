#include "windows/end_to_end/loaded_add_in.h"

#include <objbase.h>

#include <filesystem>
#include <stdexcept>

#include "support/windows/registered_library.h"
#include "windows/component/identifiers.h"

namespace brimwork {

using bench::Client;
using win32::ComPointer;
using win32::Variant;

LoadedAddIn::LoadedAddIn() : library_(LoadLibraryW(std::filesystem::path(LibraryPath()).c_str())) {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  using GetClassObject = HRESULT(WINAPI*)(REFCLSID, REFIID, void**);
  const auto getClassObject = reinterpret_cast<GetClassObject>(
      reinterpret_cast<void (*)()>(GetProcAddress(library_, "DllGetClassObject")));
  ComPointer<IClassFactory> factory;
  const bool isMade =
      getClassObject != nullptr &&
      SUCCEEDED(getClassObject(windows::kConnectClass, IID_IClassFactory, factory.ReceiveAny())) &&
      SUCCEEDED(
          factory->CreateInstance(nullptr, windows::kExtensibilityInterface, object_.ReceiveAny()));
  if (!isMade) throw std::runtime_error("the library makes no add-in");
}

LoadedAddIn::~LoadedAddIn() {
  object_ = nullptr;
  FreeLibrary(library_);
  CoUninitialize();
}

HRESULT LoadedAddIn::Connect(const ComPointer<IDispatch>& vbe) {
  return object_->OnConnection(vbe.get(), 0, nullptr, nullptr);
}

HRESULT LoadedAddIn::Disconnect() { return object_->OnDisconnection(1, nullptr); }

Client AddInsEntry(const Client& vbe, const CatalogueEntry& entry) {
  Client controls = vbe.Object(L"CommandBars")
                        .Object(L"Item", {Variant("Add-Ins")})
                        .Object(L"Controls")
                        .Object(L"Item", {Variant("Brimwork")})
                        .Object(L"Controls");
  if (!entry.submenu.empty()) {
    controls = controls.Object(L"Item", {Variant(entry.submenu)}).Object(L"Controls");
  }
  return controls.Object(L"Item", {Variant(entry.caption)});
}

const CatalogueEntry& MenuEntry(std::string_view caption) {
  for (const CatalogueEntry& entry : Catalogue()) {
    if (entry.place == EntryPlace::kAddInsMenu && entry.caption == caption) return entry;
  }
  throw std::out_of_range("there is no command " + std::string(caption));
}

void ShowText(const Client& pane, const std::string& text, int line) {
  const Client module = pane.Object(L"CodeModule");
  const long count = module.Number(L"CountOfLines");
  if (count > 0) module.Call(L"DeleteLines", {Variant(1), Variant(count)});
  module.Call(L"InsertLines", {Variant(1), Variant(text)});
  pane.Call(L"SetSelection", {Variant(line), Variant(1), Variant(line), Variant(1)});
}

std::string TextIn(const Client& pane) {
  const Client module = pane.Object(L"CodeModule");
  return module.Text(L"Lines", {Variant(1), Variant(module.Number(L"CountOfLines"))});
}

}  // namespace brimwork

// Makes the add-in's objects for the system.
#pragma once

#include <windows.h>

#include <unknwn.h>

#include "win32/com_pointer.h"
#include "windows/component/library_use.h"

namespace brimwork::windows {

class ClassFactory : public IClassFactory {
 public:
  /// uses outlives the factory.
  static win32::ComPointer<ClassFactory> Make(HINSTANCE module, LibraryUses& uses);

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override;
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) override;
  HRESULT STDMETHODCALLTYPE LockServer(BOOL locks) override;

 private:
  ClassFactory(HINSTANCE module, LibraryUses& uses)
      : module_(module), uses_(uses), use_(uses.One()) {}
  virtual ~ClassFactory() = default;

  ULONG references_ = 1;
  HINSTANCE module_;
  LibraryUses& uses_;
  LibraryUse use_;
};

}  // namespace brimwork::windows

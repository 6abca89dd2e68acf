#include "windows/component/class_factory.h"

#include "windows/component/border.h"
#include "windows/component/connect_object.h"

namespace brimwork::windows {

using win32::ComPointer;

ComPointer<ClassFactory> ClassFactory::Make(HINSTANCE module, LibraryUses& uses) {
  return ComPointer<ClassFactory>::Adopt(new ClassFactory(module, uses));
}

HRESULT ClassFactory::QueryInterface(REFIID iid, void** object) {
  if (object == nullptr) return E_POINTER;
  const bool isKnown = IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IClassFactory);
  *object = isKnown ? static_cast<IClassFactory*>(this) : nullptr;
  if (!isKnown) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

ULONG ClassFactory::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT ClassFactory::CreateInstance(IUnknown* outer, REFIID iid, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (outer != nullptr) return CLASS_E_NOAGGREGATION;
  HRESULT answered = S_OK;
  const HRESULT made = AtBorder(
      [&] { answered = ConnectObject::Make(module_, uses_.One())->QueryInterface(iid, object); });
  return FAILED(made) ? made : answered;
}

HRESULT ClassFactory::LockServer(BOOL locks) {
  return AtBorder([&] { locks ? uses_.Lock() : uses_.Unlock(); });
}

}  // namespace brimwork::windows

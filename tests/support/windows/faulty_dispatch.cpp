#include "support/windows/faulty_dispatch.h"

#include <map>

#include "win32/wide_text.h"

namespace brimwork {
namespace {

using win32::ComPointer;
using win32::Variant;

// Answered by the objects in front only.
constexpr IID kInFront = {
    0x7d0c5f21, 0x93be, 0x4c60, {0xa4, 0x1e, 0x52, 0x8f, 0x0b, 0x6d, 0x37, 0x91}};

class FaultyDispatch final : public IDispatch {
 public:
  FaultyDispatch(ComPointer<IDispatch> object, DispatchCalls& calls)
      : object_(std::move(object)), calls_(calls) {}
  virtual ~FaultyDispatch() = default;

  STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
    const bool isThis = IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IDispatch) ||
                        IsEqualIID(iid, kInFront);
    if (!isThis) return object_->QueryInterface(iid, object);
    *object = static_cast<IDispatch*>(this);
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }
  STDMETHODIMP GetTypeInfoCount(UINT* count) override { return object_->GetTypeInfoCount(count); }
  STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override {
    return object_->GetTypeInfo(index, locale, info);
  }
  STDMETHODIMP GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale,
                             DISPID* ids) override {
    const std::string name = win32::Narrow(names[0]);
    if (calls_.Fails("naming " + name) && FAILED(calls_.Answer())) return calls_.Answer();
    calls_.NoteName(name);
    return object_->GetIDsOfNames(iid, names, count, locale, ids);
  }
  STDMETHODIMP Invoke(DISPID member, REFIID iid, LCID locale, WORD kind, DISPPARAMS* parameters,
                      VARIANT* result, EXCEPINFO* exception, UINT* wrong) override {
    const std::string name = NameOf(member);
    const bool fails = calls_.Fails(name);
    if (fails && FAILED(calls_.Answer())) return calls_.Answer();
    if (fails && name == "Add") return AnswerNothing(result);
    if (calls_.onCall) calls_.onCall(name, *parameters);
    std::vector<Variant> arguments = Behind(*parameters);
    std::vector<VARIANTARG> reversed;
    for (const Variant& argument : arguments) reversed.push_back(argument.Get());
    DISPPARAMS behind = *parameters;
    behind.rgvarg = reversed.data();
    const HRESULT called =
        object_->Invoke(member, iid, locale, kind, &behind, result, exception, wrong);
    if (SUCCEEDED(called) && result != nullptr) Replace(*result, fails);
    return called;
  }

 private:
  /// The object that stands behind one of these; else the object itself.
  static ComPointer<IDispatch> Behind(IDispatch* object) {
    const auto front = ComPointer<IDispatch>(object).As<IDispatch>(kInFront);
    return front ? static_cast<FaultyDispatch*>(front.get())->object_
                 : ComPointer<IDispatch>(object);
  }
  static std::vector<Variant> Behind(const DISPPARAMS& parameters) {
    std::vector<Variant> arguments;
    for (UINT i = 0; i < parameters.cArgs; ++i) {
      VARIANTARG& argument = parameters.rgvarg[i];
      const bool isObject = argument.vt == VT_DISPATCH && argument.pdispVal != nullptr;
      if (isObject) {
        arguments.emplace_back(Behind(argument.pdispVal));
      } else {
        arguments.emplace_back();
        VariantCopy(arguments.back().Receive(), &argument);
      }
    }
    return arguments;
  }

  std::string NameOf(DISPID member) {
    if (const auto known = names_.find(member); known != names_.end()) return known->second;
    for (const std::string& name : calls_.Names()) {
      std::wstring wide = win32::Wide(name);
      LPOLESTR asked = wide.data();
      DISPID id = DISPID_UNKNOWN;
      object_->GetIDsOfNames(IID_NULL, &asked, 1, LOCALE_USER_DEFAULT, &id);
      if (id == member) return names_[member] = name;
    }
    return "";
  }

  static HRESULT AnswerNothing(VARIANT* result) {
    if (result == nullptr) return S_OK;
    result->vt = VT_DISPATCH;
    result->pdispVal = nullptr;
    return S_OK;
  }

  void Replace(VARIANT& result, bool byNothing) {
    const bool isObject = result.vt == VT_DISPATCH || result.vt == VT_UNKNOWN;
    if (!isObject || result.punkVal == nullptr) return;
    if (byNothing) {
      VariantClear(&result);
      AnswerNothing(&result);
    } else if (result.vt == VT_DISPATCH) {
      const auto object = ComPointer<IDispatch>::Adopt(result.pdispVal);
      result.pdispVal = InFrontOf(object, calls_).Release();
    }
  }

  ULONG references_ = 1;
  ComPointer<IDispatch> object_;
  DispatchCalls& calls_;
  std::map<DISPID, std::string> names_;
};

}  // namespace

ComPointer<IDispatch> InFrontOf(const ComPointer<IDispatch>& object, DispatchCalls& calls) {
  return ComPointer<IDispatch>::Adopt(new FaultyDispatch(object, calls));
}

}  // namespace brimwork

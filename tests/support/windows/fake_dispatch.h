// An automation object that a test scripts member by member: it answers as told and notes what it
// was asked.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "win32/com_pointer.h"
#include "win32/variant.h"
#include "win32/wide_text.h"

namespace brimwork {

class FakeDispatch : public IDispatch {
 public:
  /// A call as it came.
  struct Call {
    std::string member;
    WORD kind = 0;
    std::vector<win32::Variant> arguments;  // values, in the order of the member's own
    std::vector<VARTYPE> types;             // of the same
    std::vector<DISPID> named;
    bool wantsResult = false;
  };

  /// A call under way. reversed: its arguments as they lie.
  struct Invocation {
    DISPPARAMS& reversed;
    VARIANT* result;
    EXCEPINFO* exception;

    void Return(win32::Variant value) {
      if (result != nullptr) *result = value.Release();
    }
    /// Writes a by-reference long; place counts from 0 in the member's own order.
    void WriteLong(UINT place, long value) {
      *reversed.rgvarg[reversed.cArgs - 1 - place].plVal = value;
    }
    HRESULT Raise(HRESULT code, std::string_view words = "") {
      *exception = {};
      exception->scode = code;
      if (!words.empty()) exception->bstrDescription = win32::NewBstr(words);
      return DISP_E_EXCEPTION;
    }
  };

  using Answer = std::function<HRESULT(Invocation& invocation)>;

  static win32::ComPointer<FakeDispatch> Make() {
    return win32::ComPointer<FakeDispatch>::Adopt(new FakeDispatch);
  }

  void On(const std::string& member, Answer answer) {
    if (!members_.contains(member)) {
      ids_[static_cast<DISPID>(members_.size()) + firstId] = member;
    }
    members_[member] = std::move(answer);
  }
  template <class Value>
  void Gives(const std::string& member, Value value) {
    On(member, [value = win32::Variant(value)](Invocation& invocation) {
      invocation.Return(value);
      return S_OK;
    });
  }
  void Fails(const std::string& member, HRESULT status) {
    On(member, [status](Invocation&) { return status; });
  }

  /// How often the number of a member was asked for.
  int TimesNamed(const std::string& member) const {
    const auto found = timesNamed_.find(member);
    return found == timesNamed_.end() ? 0 : found->second;
  }
  ULONG References() const { return references_; }

  std::vector<Call> calls;
  std::map<std::string, DISPID> arguments;  // numbers of its members' arguments by their names
  DISPID firstId = 100;                     // of its members; set before the first one
  HRESULT statusOfNaming = S_OK;            // what naming a member answers
  bool knowsItsInterfaces = true;           // false: IUnknown alone
  IUnknown* outer = nullptr;                // whom it is asked for IUnknown as; null for itself
  std::function<void()> beforeReply;        // may be empty

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    *object = nullptr;
    if (IsEqualIID(iid, IID_IUnknown)) {
      *object = outer != nullptr ? outer : static_cast<IUnknown*>(this);
    } else if (IsEqualIID(iid, IID_IDispatch) && knowsItsInterfaces) {
      *object = static_cast<IDispatch*>(this);
    }
    if (*object == nullptr) return E_NOINTERFACE;
    static_cast<IUnknown*>(*object)->AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) override {
    *info = nullptr;
    return DISP_E_BADINDEX;
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID,
                                          DISPID* ids) override {
    const std::string name = win32::Narrow(names[0]);
    ++timesNamed_[name];
    if (FAILED(statusOfNaming)) return statusOfNaming;
    for (const auto& [id, member] : ids_) {
      if (member != name) continue;
      *ids = id;
      return NameArguments(std::span(names, count).subspan(1), ids + 1);
    }
    return DISP_E_UNKNOWNNAME;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD kind, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO* exception, UINT*) override {
    const auto named = ids_.find(id);
    if (named == ids_.end()) return DISP_E_MEMBERNOTFOUND;
    calls.push_back(Noted(named->second, kind, *parameters, result != nullptr));
    Invocation invocation{*parameters, result, exception};
    const Answer answer = members_[named->second];
    const HRESULT status = answer(invocation);
    if (beforeReply) beforeReply();
    return status;
  }

 private:
  FakeDispatch() = default;
  virtual ~FakeDispatch() = default;

  HRESULT NameArguments(std::span<LPOLESTR> names, DISPID* ids) const {
    for (const LPOLESTR name : names) {
      const auto named = arguments.find(win32::Narrow(name));
      if (named == arguments.end()) return DISP_E_UNKNOWNNAME;
      *ids++ = named->second;
    }
    return S_OK;
  }

  static Call Noted(const std::string& member, WORD kind, const DISPPARAMS& parameters,
                    bool wantsResult) {
    Call call{member, kind, {}, {}, {}, wantsResult};
    for (UINT i = parameters.cArgs; i-- > 0;) {
      win32::Variant value;
      VariantCopyInd(value.Receive(), &parameters.rgvarg[i]);
      call.arguments.push_back(std::move(value));
      call.types.push_back(parameters.rgvarg[i].vt);
    }
    const DISPID* const names = parameters.rgdispidNamedArgs;
    call.named.assign(names, names + parameters.cNamedArgs);
    return call;
  }

  ULONG references_ = 1;
  std::map<std::string, Answer> members_;
  std::map<DISPID, std::string> ids_;
  std::map<std::string, int> timesNamed_;
};

/// A collection with Count and Item.
inline win32::ComPointer<FakeDispatch> MakeFakeCollection(
    std::vector<win32::ComPointer<FakeDispatch>> items) {
  auto collection = FakeDispatch::Make();
  collection->Gives("Count", static_cast<long>(items.size()));
  collection->On("Item", [items](FakeDispatch::Invocation& invocation) {
    const auto place = static_cast<std::size_t>(invocation.reversed.rgvarg[0].lVal) - 1;
    if (place >= items.size()) return invocation.Raise(static_cast<HRESULT>(0x800A0009));
    invocation.Return(win32::Variant(items[place]));
    return S_OK;
  });
  return collection;
}

}  // namespace brimwork

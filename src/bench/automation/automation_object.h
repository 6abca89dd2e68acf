// The dispatcher beneath every object of the object model: it finds the member that is called in
// the table of the object's interface, and turns what goes wrong into what automation reports.
#pragma once

#include <windows.h>

#include <oaidl.h>

#include <any>
#include <memory>

#include "bench/automation/counted_object.h"
#include "bench/automation/member.h"

namespace brimwork::bench {

class AutomationObject final : public IDispatch, public CountedObject {
 public:
  /// target: a shared pointer to what the object stands for, of the type that the handlers of the
  /// interface ask for. identity: its address.
  AutomationObject(std::shared_ptr<Session> session, const InterfaceTable& table,
                   const void* identity, std::any target);
  ~AutomationObject() override;

  /// The object that a client passed, when it is one of an interface (or of one that extends it);
  /// else null. It may be another session's.
  static AutomationObject* From(IUnknown* object, const InterfaceTable& table);

  const std::any& Target() const { return target_; }
  const InterfaceTable& Table() const { return table_; }
  const void* Identity() const { return identity_; }

  STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
  STDMETHODIMP_(ULONG) AddRef() override { return Count(); }
  STDMETHODIMP_(ULONG) Release() override { return Uncount(); }

  STDMETHODIMP GetTypeInfoCount(UINT* count) override;
  STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
  STDMETHODIMP GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale,
                             DISPID* ids) override;
  STDMETHODIMP Invoke(DISPID id, REFIID iid, LCID locale, WORD kinds, DISPPARAMS* arguments,
                      VARIANT* result, EXCEPINFO* exception, UINT* faultyArgument) override;

 private:
  HRESULT Run(const Member& member, Handler handler, DISPPARAMS& arguments, VARIANT* result);
  HRESULT RunDefaultOfResult(const Member& member, Handler handler, LCID locale, WORD kinds,
                             DISPPARAMS& arguments, VARIANT* result, EXCEPINFO* exception,
                             UINT* faultyArgument);

  const InterfaceTable& table_;
  const void* identity_;
  std::any target_;
};

}  // namespace brimwork::bench

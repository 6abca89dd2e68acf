#include "bench/automation/automation_object.h"

#include <new>
#include <utility>

#include "bench/automation/call.h"
#include "bench/automation/input_guard.h"
#include "bench/automation/names.h"
#include "bench/automation/session.h"
#include "environment/run_time_error.h"
#include "win32/wide_text.h"

namespace brimwork::bench {
namespace {

// Asked for by the dispatcher alone, to know its own objects among those that clients pass.
constexpr IID kOwnObject = {
    0x6f1c2a3e, 0x9b57, 0x4d0a, {0xa5, 0x3c, 0x71, 0x0d, 0x4e, 0x28, 0xb9, 0x16}};

/// The handler for a kind of call; null when the member is not called so.
Handler HandlerFor(const Member& member, WORD kinds) {
  if ((kinds & DISPATCH_PROPERTYPUT) != 0) return member.put;
  if ((kinds & DISPATCH_PROPERTYPUTREF) != 0) {
    return member.takesReference ? member.put : nullptr;
  }
  if ((kinds & DISPATCH_PROPERTYGET) != 0 && member.get != nullptr) return member.get;
  return (kinds & DISPATCH_METHOD) != 0 ? member.method : nullptr;
}

void Fill(EXCEPINFO* exception, const RunTimeError& error) {
  if (exception == nullptr) return;
  *exception = {};
  exception->scode = static_cast<SCODE>(0x800A0000u | static_cast<unsigned>(error.Number()));
  exception->bstrSource = win32::NewBstr("Visual Basic");
  exception->bstrDescription = win32::NewBstr(error.what());
}

/// Runs a step of a call and answers with what automation reports for the errors that it throws.
template <typename Step>
HRESULT Guarded(EXCEPINFO* exception, UINT* faultyArgument, Step step) {
  try {
    return step();
  } catch (const ArgumentFault& fault) {
    if (faultyArgument != nullptr) *faultyArgument = fault.argument;
    return fault.code;
  } catch (const RunTimeError& error) {
    Fill(exception, error);
    return DISP_E_EXCEPTION;
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (const std::exception& error) {
    Fill(exception, RunTimeError(error_number::kAutomationError, error.what()));
    return DISP_E_EXCEPTION;
  }
}

/// True for the arguments of an object's default member that a client writes behind the name of a
/// member that takes none: Windows(1) is Windows.Item(1).
bool AreForDefaultOfResult(const Member& member, WORD kinds, const DISPPARAMS& arguments) {
  constexpr WORD kPuts = DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF;
  return (kinds & kPuts) == 0 && member.parameters.count == 0 && arguments.cArgs > 0 &&
         member.get != nullptr;
}

bool Extends(const InterfaceTable& table, const InterfaceTable& base) {
  for (const InterfaceTable* level = &table; level != nullptr; level = level->base) {
    if (level == &base) return true;
  }
  return false;
}

bool Answers(const InterfaceTable& table, REFIID iid) {
  for (const InterfaceTable* level = &table; level != nullptr; level = level->base) {
    if (IsEqualIID(level->iid, iid)) return true;
  }
  return IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IDispatch);
}

}  // namespace

AutomationObject::AutomationObject(std::shared_ptr<Session> session, const InterfaceTable& table,
                                   const void* identity, std::any target)
    : CountedObject(std::move(session), table.name),
      table_(table),
      identity_(identity),
      target_(std::move(target)) {}

AutomationObject::~AutomationObject() { TheSession().Forget(*this); }

AutomationObject* AutomationObject::From(IUnknown* object, const InterfaceTable& table) {
  void* found = nullptr;
  if (object == nullptr || FAILED(object->QueryInterface(kOwnObject, &found))) return nullptr;
  auto* const own = static_cast<AutomationObject*>(found);
  return Extends(own->table_, table) ? own : nullptr;
}

STDMETHODIMP AutomationObject::QueryInterface(REFIID iid, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (IsEqualIID(iid, kOwnObject)) {
    *object = this;  // without a reference: only From asks, and its caller holds one
    return S_OK;
  }
  if (!Answers(table_, iid)) return E_NOINTERFACE;
  *object = static_cast<IDispatch*>(this);
  AddRef();
  return S_OK;
}

STDMETHODIMP AutomationObject::GetTypeInfoCount(UINT* count) {
  if (count == nullptr) return E_POINTER;
  *count = 0;
  return S_OK;
}

STDMETHODIMP AutomationObject::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
  if (info != nullptr) *info = nullptr;
  return DISP_E_BADINDEX;
}

STDMETHODIMP AutomationObject::GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID,
                                             DISPID* ids) {
  if (!IsEqualIID(iid, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
  if (names == nullptr || ids == nullptr || count == 0) return E_INVALIDARG;
  const Member* const member = FindMember(table_, names[0]);
  ids[0] = member == nullptr ? DISPID_UNKNOWN : member->id;
  bool allKnown = member != nullptr;
  for (UINT index = 1; index < count; ++index) {
    ids[index] = member == nullptr ? DISPID_UNKNOWN : ParameterId(*member, names[index]);
    allKnown = allKnown && ids[index] != DISPID_UNKNOWN;
  }
  return allKnown ? S_OK : DISP_E_UNKNOWNNAME;
}

STDMETHODIMP AutomationObject::Invoke(DISPID id, REFIID iid, LCID locale, WORD kinds,
                                      DISPPARAMS* arguments, VARIANT* result, EXCEPINFO* exception,
                                      UINT* faultyArgument) {
  if (!IsEqualIID(iid, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
  if (arguments == nullptr) return E_INVALIDARG;
  if (result != nullptr) VariantInit(result);
  if (TheSession().HasEnded()) return RPC_E_DISCONNECTED;
  const Member* const member = FindMember(table_, id);
  const Handler handler = member == nullptr ? nullptr : HandlerFor(*member, kinds);
  if (handler == nullptr) return DISP_E_MEMBERNOTFOUND;
  const win32::ComPointer<IDispatch> staysWhileItIsCalled(this);
  return Guarded(exception, faultyArgument, [&] {
    if (AreForDefaultOfResult(*member, kinds, *arguments)) {
      return RunDefaultOfResult(*member, handler, locale, kinds, *arguments, result, exception,
                                faultyArgument);
    }
    return Run(*member, handler, *arguments, result);
  });
}

HRESULT AutomationObject::Run(const Member& member, Handler handler, DISPPARAMS& arguments,
                              VARIANT* result) {
  const InputGuard input(TheSession());
  Call call(TheSession(), *this, member, arguments);
  win32::Variant value = handler(call);
  if (result != nullptr) *result = value.Release();
  return S_OK;
}

HRESULT AutomationObject::RunDefaultOfResult(const Member& member, Handler handler, LCID locale,
                                             WORD kinds, DISPPARAMS& arguments, VARIANT* result,
                                             EXCEPINFO* exception, UINT* faultyArgument) {
  DISPPARAMS none{};
  win32::Variant object;
  const HRESULT ran = Run(member, handler, none, object.Receive());
  if (FAILED(ran)) return ran;
  if (object.Type() != VT_DISPATCH) return DISP_E_BADPARAMCOUNT;
  const auto callee = object.ToObject();
  if (callee == nullptr) throw RunTimeError(error_number::kObjectNotSet, "Object variable not set");
  return callee->Invoke(DISPID_VALUE, IID_NULL, locale, kinds, &arguments, result, exception,
                        faultyArgument);
}

}  // namespace brimwork::bench

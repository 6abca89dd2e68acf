#include "windows/object_model/dispatch_object.h"

#include <algorithm>
#include <ranges>

#include "environment/run_time_error.h"
#include "win32/wide_text.h"
#include "windows/object_model/automation_error.h"

namespace brimwork::windows {
namespace {

using win32::ComPointer;
using win32::Variant;

constexpr std::size_t kMostArguments = 8;  // CodeModule.Find

/// Arguments as Invoke wants them: the last one first. They stay the caller's.
class ReversedArguments {
 public:
  explicit ReversedArguments(std::span<const Variant> arguments) {
    std::ranges::transform(std::views::reverse(arguments), values_.begin(),
                           [](const Variant& each) { return each.Get(); });
    parameters_.rgvarg = values_.data();
    parameters_.cArgs = static_cast<UINT>(arguments.size());
  }

  DISPPARAMS& Parameters() { return parameters_; }

 private:
  std::array<VARIANT, kMostArguments> values_;
  DISPPARAMS parameters_ = {};
};

/// The number of a method's argument, which is asked for together with the method's.
bool FindArgument(IDispatch& object, std::wstring_view method, std::wstring_view argument,
                  DISPID& id) {
  OLECHAR* names[] = {const_cast<OLECHAR*>(method.data()), const_cast<OLECHAR*>(argument.data())};
  DISPID ids[] = {DISPID_UNKNOWN, DISPID_UNKNOWN};
  const HRESULT status = object.GetIDsOfNames(IID_NULL, names, 2, LOCALE_USER_DEFAULT, ids);
  id = ids[1];
  return SUCCEEDED(status);
}

}  // namespace

DispatchObject::DispatchObject(ComPointer<IDispatch> object, std::shared_ptr<Connection> connection,
                               ObjectKind kind)
    : object_(std::move(object)),
      connection_(std::move(connection)),
      names_(connection_, &connection_->NamesOf(kind)) {}

DispatchObject::DispatchObject(const DispatchObject& object, std::shared_ptr<MemberNames> names)
    : object_(object.object_), connection_(object.connection_), names_(std::move(names)) {}

DispatchObject DispatchObject::Part(ObjectKind kind, std::wstring_view property) const {
  auto part = ToObject(Get(property));
  if (!part) RaiseNothing(property);
  return {std::move(part), connection_, kind};
}

void DispatchObject::RaiseNothing(std::wstring_view member) {
  throw RunTimeError(error_number::kObjectNotSet, win32::Narrow(member) + " is nothing");
}

void DispatchObject::Put(std::wstring_view property, const Variant& value) const {
  ExceptionInfo exception;
  const HRESULT status = PutAs(DISPATCH_PROPERTYPUT, property, value, exception);
  if (FAILED(status)) throw AutomationError(status, exception, property);
}

void DispatchObject::PutReference(std::wstring_view property, const DispatchObject& value) const {
  const Variant reference(value.object_);
  ExceptionInfo exception;
  const HRESULT status = PutAs(DISPATCH_PROPERTYPUTREF, property, reference, exception);
  if (status == DISP_E_MEMBERNOTFOUND) return Put(property, reference);
  if (FAILED(status)) throw AutomationError(status, exception, property);
}

std::uintptr_t DispatchObject::Identity() const {
  return reinterpret_cast<std::uintptr_t>(object_.As<IUnknown>().get());
}

Variant DispatchObject::Invoke(std::wstring_view member, WORD kind,
                               std::span<const Variant> arguments) const {
  ReversedArguments reversed(arguments);
  Variant result;
  ExceptionInfo exception;
  const HRESULT status = Try(member, kind, reversed.Parameters(), result.Receive(), exception);
  if (FAILED(status)) throw AutomationError(status, exception, member);
  return result;
}

void DispatchObject::CallWithNamed(std::wstring_view method, std::wstring_view argument,
                                   Variant value) const {
  VARIANT values[] = {value.Get()};
  DISPID name = DISPID_UNKNOWN;
  const bool isNamed = FindArgument(*object_, method, argument, name);
  DISPPARAMS parameters = {values, &name, 1, isNamed ? 1U : 0U};
  ExceptionInfo exception;
  const HRESULT status = Try(method, DISPATCH_METHOD, parameters, nullptr, exception);
  if (FAILED(status)) throw AutomationError(status, exception, method);
}

HRESULT DispatchObject::PutAs(WORD kind, std::wstring_view property, const Variant& value,
                              ExceptionInfo& exception) const {
  VARIANT argument = value.Get();
  DISPID newValue = DISPID_PROPERTYPUT;
  DISPPARAMS parameters = {&argument, &newValue, 1, 1};
  return Try(property, kind, parameters, nullptr, exception);
}

HRESULT DispatchObject::Try(std::wstring_view member, WORD kind, DISPPARAMS& parameters,
                            VARIANT* result, ExceptionInfo& exception) const {
  const Patience& patience = connection_->patience;
  HRESULT status = TryOnce(member, kind, parameters, result, exception);
  for (const unsigned pause : patience.pauses) {
    if (SUCCEEDED(status) || !IsTurnedAway(MeantBy(status, exception))) break;
    patience.sleep(pause);
    status = TryOnce(member, kind, parameters, result, exception);
  }
  return status;
}

HRESULT DispatchObject::TryOnce(std::wstring_view member, WORD kind, DISPPARAMS& parameters,
                                VARIANT* result, ExceptionInfo& exception) const {
  if (connection_->hasEnded) return RPC_E_DISCONNECTED;
  const ComPointer<IDispatch> called = object_;  // the connection may end during the call
  DISPID id = DISPID_UNKNOWN;
  const HRESULT status = names_->Find(*called, member, id);
  if (FAILED(status)) return status;
  return called->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters, result,
                        exception.Receive(), nullptr);
}

}  // namespace brimwork::windows

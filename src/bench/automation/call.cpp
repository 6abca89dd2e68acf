#include "bench/automation/call.h"

#include <utility>

#include "bench/automation/automation_object.h"
#include "environment/run_time_error.h"

namespace brimwork::bench {
namespace {

bool IsAssignment(const DISPPARAMS& arguments) {
  return arguments.cNamedArgs > 0 && arguments.rgdispidNamedArgs[0] == DISPID_PROPERTYPUT;
}

/// Variables of scripts come as references to variants.
const VARIANT& Behind(const VARIANT& value) {
  return value.vt == (VT_BYREF | VT_VARIANT) ? *value.pvarVal : value;
}

win32::Variant CopyOf(const VARIANT& value) {
  win32::Variant copy;
  VariantCopyInd(copy.Receive(), const_cast<VARIANT*>(&value));
  return copy;
}

}  // namespace

Call::Call(Session& session, AutomationObject& self, const Member& member, DISPPARAMS& arguments)
    : session_(session), self_(self), passed_(arguments) {
  Place(member, arguments);
  RequireAll(member);
}

const std::any& Call::TargetOfSelf() const { return self_.Target(); }

// Arguments stand last to first, and in front of them those that are named.
void Call::Place(const Member& member, DISPPARAMS& arguments) {
  const std::size_t room = member.parameters.count;
  const std::size_t positional = arguments.cArgs - arguments.cNamedArgs;
  if (positional > room) throw ArgumentFault{DISP_E_BADPARAMCOUNT, 0};
  for (std::size_t index = 0; index < positional; ++index) {
    values_[index] = &arguments.rgvarg[arguments.cArgs - 1 - index];
  }
  for (UINT named = 0; named < arguments.cNamedArgs; ++named) {
    const DISPID id = arguments.rgdispidNamedArgs[named];
    const std::size_t place = id == DISPID_PROPERTYPUT ? room : static_cast<std::size_t>(id);
    if (place > room || (place == room && id != DISPID_PROPERTYPUT)) {
      throw ArgumentFault{DISP_E_PARAMNOTFOUND, named};
    }
    values_[place] = &arguments.rgvarg[named];
  }
}

void Call::RequireAll(const Member& member) const {
  for (std::size_t index = 0; index < member.parameters.count; ++index) {
    if (!member.parameters.IsOptional(index) && !Has(index)) {
      throw ArgumentFault{DISP_E_PARAMNOTOPTIONAL, static_cast<UINT>(index)};
    }
  }
  if (IsAssignment(passed_) && !Has(member.parameters.count)) {
    throw ArgumentFault{DISP_E_PARAMNOTOPTIONAL, 0};
  }
}

VARIANTARG* Call::Value(std::size_t index) const { return values_[index]; }

bool Call::Has(std::size_t index) const {
  if (Value(index) == nullptr) return false;
  const VARIANT& value = Behind(*Value(index));
  return value.vt != VT_ERROR || value.scode != DISP_E_PARAMNOTFOUND;
}

template <typename Convert>
auto Call::Converted(std::size_t index, Convert convert) const {
  try {
    return convert(CopyOf(*Value(index)));
  } catch (const RunTimeError&) {
    throw ArgumentFault{DISP_E_TYPEMISMATCH, static_cast<UINT>(Value(index) - passed_.rgvarg)};
  }
}

long Call::Long(std::size_t index) const {
  if (Value(index)->vt == VT_I4) return Value(index)->lVal;
  return Converted(index, [](const win32::Variant& value) { return value.ToLong(); });
}

bool Call::Bool(std::size_t index) const {
  return Converted(index, [](const win32::Variant& value) { return value.ToBool(); });
}

std::string Call::Text(std::size_t index) const {
  if (Value(index)->vt == VT_BSTR) return win32::TextOf(Value(index)->bstrVal);
  return Converted(index, [](const win32::Variant& value) { return value.ToText(); });
}

win32::ComPointer<IDispatch> Call::Object(std::size_t index) const {
  return Converted(index, [](const win32::Variant& value) { return value.ToObject(); });
}

bool Call::IsText(std::size_t index) const {
  return (Behind(*Value(index)).vt & VT_TYPEMASK) == VT_BSTR;
}

bool Call::IsObject(std::size_t index) const {
  const VARTYPE type = Behind(*Value(index)).vt & VT_TYPEMASK;
  return type == VT_DISPATCH || type == VT_UNKNOWN;
}

void Call::Return(std::size_t index, long number) const {
  VARIANTARG* const value = Value(index);
  if (value == nullptr) return;
  switch (value->vt) {
    case VT_BYREF | VT_I4:
    case VT_BYREF | VT_INT:
    case VT_BYREF | VT_UI4:
      *value->plVal = number;
      break;
    case VT_BYREF | VT_I2:
      *value->piVal = static_cast<SHORT>(number);
      break;
    case VT_BYREF | VT_VARIANT:
      VariantClear(value->pvarVal);
      *value->pvarVal = win32::Variant(number).Release();
      break;
    default:
      break;
  }
}

}  // namespace brimwork::bench

#include "windows/object_model/values.h"

#include "environment/run_time_error.h"
#include "windows/object_model/bstr_text.h"

namespace brimwork::windows {

using win32::ComPointer;
using win32::Variant;

Variant Argument(std::string_view text) {
  VARIANT value;
  VariantInit(&value);
  value.bstrVal = NewBstr(text);
  value.vt = VT_BSTR;
  return Variant::Adopt(value);
}

int ToNumber(const Variant& value) {
  return static_cast<int>(value.Type() == VT_I4 ? value.Get().lVal : value.ToLong());
}

bool ToTruth(const Variant& value) { return value.ToBool(); }

std::string ToText(const Variant& value) {
  std::string text;
  ToText(value, text);
  return text;
}

void ToText(const Variant& value, std::string& text) {
  if (value.Type() != VT_BSTR) {
    text = value.ToText();
    return;
  }
  const BSTR string = value.Get().bstrVal;
  NarrowInto({string, SysStringLen(string)}, text);
}

ComPointer<IDispatch> ToObject(const Variant& value) {
  const ComPointer<IUnknown> object = ToUnknown(value);
  auto automated = object.As<IDispatch>();
  if (object && !automated) {
    throw RunTimeError(error_number::kNotSupportedByObject, "the object knows no automation");
  }
  return automated;
}

ComPointer<IUnknown> ToUnknown(const Variant& value) {
  if (value.Type() == VT_EMPTY || value.Type() == VT_NULL) return nullptr;
  return value.ToUnknown();
}

}  // namespace brimwork::windows

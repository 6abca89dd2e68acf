#include "win32/variant.h"

#include <new>
#include <utility>

#include "environment/run_time_error.h"
#include "win32/wide_text.h"

namespace brimwork::win32 {
namespace {

/// value converted to a type, through references as well.
Variant Converted(const VARIANT& value, VARTYPE type) {
  Variant converted;
  if (FAILED(VariantChangeType(converted.Receive(), const_cast<VARIANT*>(&value), 0, type))) {
    throw RunTimeError(error_number::kTypeMismatch, "Type mismatch");
  }
  return converted;
}

}  // namespace

BSTR NewBstr(std::string_view text) {
  const std::wstring wide = Wide(text);
  const BSTR result = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
  if (result == nullptr) throw std::bad_alloc();
  return result;
}

std::string TextOf(BSTR text) {
  if (text == nullptr) return "";
  return Narrow({text, SysStringLen(text)});
}

Variant::Variant(long number) : Variant() {
  value_.vt = VT_I4;
  value_.lVal = number;
}

Variant::Variant(short number) : Variant() {
  value_.vt = VT_I2;
  value_.iVal = number;
}

Variant::Variant(bool truth) : Variant() {
  value_.vt = VT_BOOL;
  value_.boolVal = truth ? VARIANT_TRUE : VARIANT_FALSE;
}

Variant::Variant(std::string_view text) : Variant() {
  value_.bstrVal = NewBstr(text);
  value_.vt = VT_BSTR;
}

Variant::Variant(IDispatch* object) : Variant() {
  if (object != nullptr) object->AddRef();
  value_.vt = VT_DISPATCH;
  value_.pdispVal = object;
}

Variant::Variant(IUnknown* object) : Variant() {
  if (object != nullptr) object->AddRef();
  value_.vt = VT_UNKNOWN;
  value_.punkVal = object;
}

Variant Variant::ByReference(long& number) {
  Variant variant;
  variant.value_.vt = VT_BYREF | VT_I4;
  variant.value_.plVal = &number;
  return variant;
}

Variant Variant::Missing() {
  Variant variant;
  variant.value_.vt = VT_ERROR;
  variant.value_.scode = DISP_E_PARAMNOTFOUND;
  return variant;
}

Variant Variant::Adopt(VARIANT& value) {
  Variant variant;
  std::swap(variant.value_, value);
  return variant;
}

Variant::Variant(const Variant& other) : Variant() {
  if (FAILED(VariantCopy(&value_, const_cast<VARIANT*>(&other.value_)))) throw std::bad_alloc();
}

Variant::Variant(Variant&& other) noexcept : Variant() { std::swap(value_, other.value_); }

Variant& Variant::operator=(Variant other) noexcept {
  std::swap(value_, other.value_);
  return *this;
}

VARIANT* Variant::Receive() {
  VariantClear(&value_);
  return &value_;
}

VARIANT Variant::Release() {
  VARIANT value;
  VariantInit(&value);
  std::swap(value, value_);
  return value;
}

bool Variant::IsMissing() const {
  return value_.vt == VT_ERROR && value_.scode == DISP_E_PARAMNOTFOUND;
}

long Variant::ToLong() const { return Converted(value_, VT_I4).value_.lVal; }

bool Variant::ToBool() const { return Converted(value_, VT_BOOL).value_.boolVal != VARIANT_FALSE; }

std::string Variant::ToText() const { return TextOf(Converted(value_, VT_BSTR).value_.bstrVal); }

ComPointer<IDispatch> Variant::ToObject() const {
  const Variant object = Converted(value_, VT_DISPATCH);
  return ComPointer<IDispatch>(object.value_.pdispVal);
}

ComPointer<IUnknown> Variant::ToUnknown() const {
  const Variant object = Converted(value_, VT_UNKNOWN);
  return ComPointer<IUnknown>(object.value_.punkVal);
}

}  // namespace brimwork::win32

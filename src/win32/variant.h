// A VARIANT that owns what it holds, and strings on the way to COM and back.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <string>
#include <string_view>

#include "win32/com_pointer.h"

namespace brimwork::win32 {

/// The caller frees the result. Throws std::bad_alloc.
BSTR NewBstr(std::string_view text);

/// Null is "".
std::string TextOf(BSTR text);

class Variant {
 public:
  Variant() { VariantInit(&value_); }
  explicit Variant(long number);
  explicit Variant(int number) : Variant(static_cast<long>(number)) {}
  explicit Variant(short number);
  explicit Variant(bool truth);
  explicit Variant(std::string_view text);
  explicit Variant(const char* text) : Variant(std::string_view(text)) {}
  /// Takes a reference of its own; null is an object, too ("nothing").
  explicit Variant(IDispatch* object);
  explicit Variant(IUnknown* object);
  template <typename Interface>
  explicit Variant(const ComPointer<Interface>& object)
      : Variant(static_cast<IDispatch*>(object.get())) {}

  /// By reference: the called writes to number. It outlives the variant.
  static Variant ByReference(long& number);

  /// What stands for an argument that is left out.
  static Variant Missing();

  /// Takes what is in value.
  static Variant Adopt(VARIANT& value);

  Variant(const Variant& other);
  Variant(Variant&& other) noexcept;
  Variant& operator=(Variant other) noexcept;
  ~Variant() { VariantClear(&value_); }

  const VARIANT& Get() const { return value_; }
  VARTYPE Type() const { return value_.vt; }

  /// Where a call puts its result; what was held is cleared first.
  VARIANT* Receive();

  /// Gives what is held to the caller.
  VARIANT Release();

  bool IsMissing() const;

  // Each converts as automation does, through references as well, and throws RunTimeError 13 for
  // what cannot be converted.

  long ToLong() const;
  bool ToBool() const;
  std::string ToText() const;
  /// Null for "nothing"; any other value than an object raises the error.
  ComPointer<IDispatch> ToObject() const;
  ComPointer<IUnknown> ToUnknown() const;

 private:
  VARIANT value_;
};

}  // namespace brimwork::win32

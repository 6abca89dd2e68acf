// The add-in's values as arguments of automation calls, and results as the add-in's values.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "win32/com_pointer.h"
#include "win32/variant.h"

namespace brimwork::windows {

inline win32::Variant Argument(int number) { return win32::Variant(static_cast<long>(number)); }
inline win32::Variant Argument(bool truth) { return win32::Variant(truth); }
inline win32::Variant Argument(win32::Variant&& value) { return std::move(value); }
win32::Variant Argument(std::string_view text);

// Each throws RunTimeError 13 for a value of another type that automation cannot convert.

int ToNumber(const win32::Variant& value);
bool ToTruth(const win32::Variant& value);
std::string ToText(const win32::Variant& value);
/// ToText in the place of what text holds; its memory is used again.
void ToText(const win32::Variant& value, std::string& text);
/// Null for "nothing", however the environment says it. An object that cannot be called late-bound
/// raises error 438.
win32::ComPointer<IDispatch> ToObject(const win32::Variant& value);
win32::ComPointer<IUnknown> ToUnknown(const win32::Variant& value);

}  // namespace brimwork::windows

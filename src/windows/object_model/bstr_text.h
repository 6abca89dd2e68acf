// Text between the add-in, which keeps UTF-8, and the environment, whose strings are UTF-16,
// without loss. Half of a surrogate pair without the other has no place in UTF-8; it is kept in the
// three bytes that its number would take. The add-in takes them for damaged text of three
// characters and leaves them alone, and on the way back they become the half again.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <string>
#include <string_view>

namespace brimwork::windows {

/// Puts text in the place of what narrow holds; its memory is used again.
void NarrowInto(std::wstring_view text, std::string& narrow);

/// The caller frees the result. Bytes that are neither UTF-8 nor such a half give U+FFFD. Throws
/// std::bad_alloc.
BSTR NewBstr(std::string_view text);

}  // namespace brimwork::windows

#include "windows/object_model/bstr_text.h"

#include <algorithm>
#include <new>

#include "environment/utf8.h"

namespace brimwork::windows {
namespace {

constexpr std::size_t kBytesOfAHalf = 3;

constexpr bool IsFirstHalf(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
constexpr bool IsSecondHalf(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

void AppendNarrow(std::wstring_view text, std::string& narrow) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t character = text[i];
    const bool isPair = IsFirstHalf(character) && i + 1 < text.size() && IsSecondHalf(text[i + 1]);
    if (isPair) character = 0x10000 + ((character - 0xD800) << 10) + (text[++i] - 0xDC00u);
    AppendUtf8(narrow, character);
  }
}

bool StartsWithAHalf(std::string_view text) {
  return text.size() >= kBytesOfAHalf && text[0] == '\xED' &&
         (static_cast<unsigned char>(text[1]) & 0xE0) == 0xA0 &&
         (static_cast<unsigned char>(text[2]) & 0xC0) == 0x80;
}

void AppendUnits(std::wstring& wide, char32_t character) {
  if (character < 0x10000) {
    wide += static_cast<wchar_t>(character);
    return;
  }
  wide += static_cast<wchar_t>(0xD800 + ((character - 0x10000) >> 10));
  wide += static_cast<wchar_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
}

std::wstring Widened(std::string_view text) {
  constexpr wchar_t kReplacement = 0xFFFD;
  std::wstring wide;
  wide.reserve(text.size());
  while (!text.empty()) {
    const std::size_t size = StartsWithAHalf(text) ? kBytesOfAHalf : Utf8Size(text);
    AppendUnits(wide, size == 0 ? kReplacement : Utf8Character(text));
    text.remove_prefix(std::max<std::size_t>(size, 1));
  }
  return wide;
}

BSTR Allocated(const wchar_t* text, std::size_t size) {
  const BSTR result = SysAllocStringLen(text, static_cast<UINT>(size));
  if (result == nullptr) throw std::bad_alloc();
  return result;
}

}  // namespace

// Code is mostly ASCII, and every line of a module comes through here.
void NarrowInto(std::wstring_view text, std::string& narrow) {
  narrow.resize(text.size());
  std::size_t at = 0;
  for (; at < text.size() && text[at] < 0x80; ++at) narrow[at] = static_cast<char>(text[at]);
  if (at == text.size()) return;
  narrow.resize(at);
  AppendNarrow(text.substr(at), narrow);
}

BSTR NewBstr(std::string_view text) {
  if (FindNonAscii(text, 0) == text.size()) {
    const BSTR result = Allocated(nullptr, text.size());
    std::ranges::copy(text, result);
    return result;
  }
  const std::wstring wide = Widened(text);
  return Allocated(wide.data(), wide.size());
}

}  // namespace brimwork::windows

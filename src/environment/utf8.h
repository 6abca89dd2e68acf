// Walking UTF-8 text that may be damaged, with a fast way over its ASCII stretches.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace brimwork {

/// Offset of the first byte above 127 at or behind from; the text's size when there is none.
std::size_t FindNonAscii(std::string_view text, std::size_t from);

/// Number of bytes above 127.
std::size_t CountNonAscii(std::string_view text);

/// Size in bytes of the character that text starts with; 0 when it starts with no valid UTF-8.
std::size_t Utf8Size(std::string_view text);

/// The character that text starts with; Utf8Size has said that there is one.
char32_t Utf8Character(std::string_view text);

void AppendUtf8(std::string& text, char32_t character);

}  // namespace brimwork

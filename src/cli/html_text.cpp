#include "cli/html_text.h"

#include "environment/utf8.h"

namespace brimwork {
namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

/// Control characters, and the code points that stand for no character.
bool IsNoPageText(char32_t character) {
  const bool isControl =
      (character < 0x20 && character != '\t') || (character >= 0x7F && character < 0xA0);
  const bool isNoCharacter =
      (character >= 0xFDD0 && character <= 0xFDEF) || (character & 0xFFFE) == 0xFFFE;
  return isControl || isNoCharacter;
}

std::string_view Escaped(std::string_view character) {
  switch (character.front()) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '"':
      return "&quot;";
    default:
      return character;
  }
}

bool IsUnreserved(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' ||
         c == '.' || c == '_' || c == '~';
}

}  // namespace

std::string HtmlText(std::string_view text) {
  std::string html;
  while (!text.empty()) {
    const std::size_t size = Utf8Size(text);
    const bool isText = size > 0 && !IsNoPageText(Utf8Character(text));
    const std::string_view character = text.substr(0, size > 0 ? size : 1);
    html += isText ? Escaped(character) : kReplacement;
    text.remove_prefix(character.size());
  }
  return html;
}

std::string PercentEncoded(std::string_view fileName) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string encoded;
  for (const char c : fileName) {
    if (IsUnreserved(c)) {
      encoded += c;
      continue;
    }
    const auto byte = static_cast<unsigned char>(c);
    encoded.append({'%', kDigits[byte >> 4], kDigits[byte & 0xF]});
  }
  return encoded;
}

}  // namespace brimwork

#include "spelling/technical_text.h"

#include <algorithm>

#include "environment/text.h"
#include "environment/utf8.h"
#include "spelling/letters.h"

namespace brimwork {
namespace {

bool IsHexDigit(char c) { return IsDigit(c) || (ToUpperAscii(c) >= 'A' && ToUpperAscii(c) <= 'F'); }

bool StartsName(std::string_view text) {
  return !text.empty() && (text[0] == '_' || (Utf8Size(text) > 0 && IsLetter(Utf8Character(text))));
}

bool IsAddress(std::string_view chunk) {
  const auto at = chunk.find('@');
  const bool isMail = at != std::string_view::npos && at > 0 && at + 1 < chunk.size();
  return isMail || Contains(chunk, "://") || StartsWithIgnoringCase(chunk, "WWW.") ||
         StartsWithIgnoringCase(chunk, "MAILTO:");
}

/// A slash inside ("and/or") joins words, one in front starts a path.
bool LooksLikePath(std::string_view chunk) {
  return Contains(chunk, "\\") || chunk.starts_with('/') || chunk.starts_with("./") ||
         chunk.starts_with("../") || chunk.starts_with("~/");
}

/// A single dot with a name behind it and no blank between: readme.txt, *.bas, .Caption.
bool HoldsDottedName(std::string_view chunk) {
  for (auto dot = chunk.find('.'); dot != std::string_view::npos; dot = chunk.find('.', dot + 1)) {
    const bool isSingle = dot == 0 || chunk[dot - 1] != '.';
    if (isSingle && StartsName(chunk.substr(dot + 1))) return true;
  }
  return false;
}

bool IsGuid(std::string_view chunk) {
  constexpr std::string_view kForm = "xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx";
  return std::equal(chunk.begin(), chunk.end(), kForm.begin(), kForm.end(),
                    [](char c, char form) { return form == 'x' ? IsHexDigit(c) : c == form; });
}

bool IsHexNumber(std::string_view word) {
  return word.size() > 2 && StartsWithIgnoringCase(word, "&H") &&
         std::all_of(word.begin() + 2, word.end(), IsHexDigit);
}

}  // namespace

bool IsTechnical(std::string_view chunk) {
  const std::string_view bare = TrimRight(TrimLeft(chunk, "'"), "'.:!?");
  return IsAddress(bare) || LooksLikePath(bare) || HoldsDottedName(bare) || IsGuid(bare);
}

bool IsCode(std::string_view text, std::size_t offset, std::size_t end) {
  const bool isEntity = text[offset] == '&' && end < text.size() && text[end] == ';';
  const bool isFormat = offset > 0 && text[offset - 1] == '%';
  return isEntity || isFormat || IsHexNumber(text.substr(offset, end - offset));
}

}  // namespace brimwork

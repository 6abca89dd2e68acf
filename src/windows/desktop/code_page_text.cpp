#include "windows/desktop/code_page_text.h"

#include <cstdio>

#include "environment/byte_words.h"
#include "environment/run_time_error.h"
#include "win32/wide_text.h"
#include "windows/desktop/system_error.h"

namespace brimwork::windows {
namespace {

constexpr UINT kGb18030 = 54936;

/// The character that text starts with: one unit, or the two of a pair.
std::wstring_view FirstCharacter(std::wstring_view text) {
  const bool isPair = text.size() > 1 && IS_SURROGATE_PAIR(text[0], text[1]);
  return text.substr(0, isPair ? 2 : 1);
}

unsigned long NumberOf(std::wstring_view character) {
  if (character.size() == 1) return character[0];
  return 0x10000UL + ((character[0] - 0xD800UL) << 10) + (character[1] - 0xDC00UL);
}

[[noreturn]] void RaiseUnencodable(std::wstring_view character, UINT codePage) {
  char number[16];
  std::snprintf(number, sizeof number, "U+%04lX", NumberOf(character));
  throw RunTimeError(error_number::kInvalidProcedureCall,
                     "the character \"" + win32::Narrow(character) + "\" (" + number +
                         ") does not exist in code page " + std::to_string(codePage));
}

}  // namespace

CodePageText::CodePageText(UINT codePage)
    : codePage_(codePage == CP_ACP ? GetACP() : codePage),
      hasAll_(codePage_ == CP_UTF8 || codePage_ == kGb18030) {}

void CodePageText::Append(std::string_view text, UnencodableText unencodable,
                          std::string& bytes) const {
  if (IsAscii(text)) {
    bytes += text;
    return;
  }
  const std::wstring wide = win32::Wide(text);
  if (!TryAppend(wide, bytes)) AppendEach(wide, unencodable, bytes);
}

/// False, with nothing appended, for text with a character that the code page has not.
bool CodePageText::TryAppend(std::wstring_view text, std::string& bytes) const {
  constexpr std::size_t kMostBytesOfAUnit = 4;
  const std::size_t before = bytes.size();
  bytes.resize(before + text.size() * kMostBytesOfAUnit);
  BOOL isReplaced = FALSE;
  // Code pages that have all characters take no orders about those they have not.
  const int size = WideCharToMultiByte(codePage_, hasAll_ ? 0 : WC_NO_BEST_FIT_CHARS, text.data(),
                                       static_cast<int>(text.size()), bytes.data() + before,
                                       static_cast<int>(bytes.size() - before), nullptr,
                                       hasAll_ ? nullptr : &isReplaced);
  if (size == 0) RaiseSystemError("WideCharToMultiByte");
  bytes.resize(before + (isReplaced ? 0 : static_cast<std::size_t>(size)));
  return !isReplaced;
}

void CodePageText::AppendEach(std::wstring_view text, UnencodableText unencodable,
                              std::string& bytes) const {
  while (!text.empty()) {
    const std::wstring_view character = FirstCharacter(text);
    if (!TryAppend(character, bytes)) {
      if (unencodable == UnencodableText::kFails) RaiseUnencodable(character, codePage_);
      bytes += "&#" + std::to_string(NumberOf(character)) + ';';
    }
    text.remove_prefix(character.size());
  }
}

}  // namespace brimwork::windows

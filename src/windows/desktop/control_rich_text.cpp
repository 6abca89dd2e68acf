#include "windows/desktop/control_rich_text.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <utility>

#include "environment/text.h"
#include "environment/utf8.h"

namespace brimwork::windows {
namespace {

/// Appends a unit of UTF-16 by its number, which is signed; a reader that does not know the word
/// shows what stands behind it.
void AppendNumber(std::string& document, wchar_t unit) {
  const int number = unit < 0x8000 ? int{unit} : int{unit} - 0x10000;
  document += "\\u" + std::to_string(number);
}

/// The letters of a control word that text, behind its backslash, starts with.
std::string_view WordAt(std::string_view text) {
  const auto end = std::ranges::find_if(
      text, [](char c) { return ToUpperAscii(c) < 'A' || ToUpperAscii(c) > 'Z'; });
  return text.substr(0, static_cast<std::size_t>(end - text.begin()));
}

class Conversion {
 public:
  Conversion(std::string_view streamed, std::wstring_view units) : streamed_(streamed) {
    std::ranges::copy_if(units, std::back_inserter(stoodFor_), NeedsStandIn);
    paragraphs_ = std::ranges::count(units, L'\r') + 1;
  }

  std::string Run() {
    document_.reserve(streamed_.size() + streamed_.size() / 8);
    TakeOpening();
    while (!streamed_.empty()) {
      TakePlain();
      TakeSpecial();
    }
    Close();
    return std::move(document_);
  }

 private:
  static constexpr const char* kOpening = "{\\rtf1\\ansi";

  static bool IsSpecial(char c) { return c == '\\' || static_cast<unsigned char>(c) >= 0x80; }

  void Take(std::size_t size) {
    document_ += streamed_.substr(0, size);
    streamed_.remove_prefix(size);
  }

  /// Of an empty selection a control may give nothing. It marks UTF-8 by a word that other programs
  /// do not know.
  void TakeOpening() {
    if (streamed_.empty()) document_ = kOpening;
    constexpr std::string_view kOfControl = "{\\urtf";
    if (!streamed_.starts_with(kOfControl)) return;
    document_ = kOpening;
    streamed_.remove_prefix(kOfControl.size());
    while (!streamed_.empty() && IsDigit(streamed_.front())) streamed_.remove_prefix(1);
  }

  void TakePlain() {
    const auto end = std::ranges::find_if(streamed_, IsSpecial);
    Take(static_cast<std::size_t>(end - streamed_.begin()));
  }

  void TakeSpecial() {
    if (streamed_.empty()) return;
    if (streamed_.front() == '\\') {
      TakeWord();
    } else {
      TakeCharacter();
    }
  }

  void TakeWord() {
    const std::string_view word = WordAt(streamed_.substr(1));
    if (word == "u" && TakeStandInByNumber()) return;
    if (word == "par") --paragraphs_;
    Take(std::min(streamed_.size(), std::max<std::size_t>(2, 1 + word.size())));
  }

  /// A control may give a character by its number; what stands behind that is for readers that do
  /// not know the word, and stays.
  bool TakeStandInByNumber() {
    constexpr std::size_t kWordSize = 2;  // with its backslash
    const char* const start = streamed_.data() + kWordSize;
    int number = 0;
    const auto [end, error] = std::from_chars(start, streamed_.data() + streamed_.size(), number);
    if (error != std::errc() || static_cast<wchar_t>(number) != kStandIn) return false;
    streamed_.remove_prefix(static_cast<std::size_t>(end - streamed_.data()));
    AppendNumber(document_, NextStoodFor());
    return true;
  }

  void TakeCharacter() {
    const std::size_t size = std::max<std::size_t>(1, Utf8Size(streamed_));
    const char32_t character = size == 1 ? 0xFFFD : Utf8Character(streamed_);
    streamed_.remove_prefix(size);
    if (character >= 0x10000) {
      AppendUnit(static_cast<wchar_t>(0xD800 + ((character - 0x10000) >> 10)));
      AppendUnit(static_cast<wchar_t>(0xDC00 + (character & 0x3FF)));
    } else {
      AppendUnit(character == kStandIn ? NextStoodFor() : static_cast<wchar_t>(character));
    }
  }

  void AppendUnit(wchar_t unit) {
    if (unit == L'\t') {
      document_ += "\\tab ";
      return;
    }
    AppendNumber(document_, unit);
    document_ += '?';
  }

  wchar_t NextStoodFor() { return place_ < stoodFor_.size() ? stoodFor_[place_++] : kStandIn; }

  /// What a control streams out may lack the last paragraph's end, or have a NUL behind it.
  void Close() {
    const std::size_t end = document_.rfind('}');
    document_.resize(end == document_.npos ? document_.size() : end);
    for (; paragraphs_ > 0; --paragraphs_) document_ += "\\par\r\n";
    document_ += "}\r\n";
  }

  std::string_view streamed_;  // what is not yet taken
  std::wstring stoodFor_;
  std::size_t place_ = 0;      // in stoodFor_
  std::ptrdiff_t paragraphs_;  // still to come
  std::string document_;
};

}  // namespace

bool NeedsStandIn(wchar_t unit) {
  constexpr wchar_t kFirstOfControl = 0xFFF9;  // marks of tables and objects, and no characters
  const bool isControl = unit < L' ' && unit != L'\r';
  return isControl || unit == 0x2028 || unit == 0x2029 || unit >= kFirstOfControl ||
         unit == kStandIn;
}

std::wstring WithStandIns(std::wstring_view units) {
  std::wstring result(units);
  std::ranges::replace_if(result, NeedsStandIn, kStandIn);
  return result;
}

std::string PortableRichText(std::string_view streamed, std::wstring_view units) {
  return Conversion(streamed, units).Run();
}

bool IsRichText(std::string_view text) {
  if (!text.starts_with("{\\rtf")) return false;
  int depth = 0;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == '\\')
      ++at;  // what follows is no brace of its own
    else if (text[at] == '{')
      ++depth;
    else if (text[at] == '}' && --depth == 0)
      return true;
  }
  return false;
}

}  // namespace brimwork::windows

// Formatted texts at random, odd ones among them: characters of several scripts, control
// characters, what rich text has to escape, fonts with unusual names.
#pragma once

#include <array>
#include <random>
#include <string>
#include <string_view>

#include "memory/rich_text.h"

namespace brimwork {

class RandomRichText {
 public:
  explicit RandomRichText(unsigned seed) : random_(seed) {}

  int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

  std::string_view Piece() {
    using std::string_view_literals::operator""sv;
    static constexpr std::array kPieces = {
        "a"sv,      "Dim x"sv,  " "sv,           "  7"sv,    "-3"sv,        "\r\n"sv,  "\r\n\r\n"sv,
        "\t"sv,     "\\"sv,     "{"sv,           "}"sv,      "\\par "sv,    "\\'41"sv, ";"sv,
        "\x7F"sv,   "\x01"sv,   "\0"sv,          "\x0B"sv,   "?"sv,         "'"sv,     "é"sv,
        "\u0080"sv, "\u00A0"sv, "комментарий"sv, "日本語"sv, "你好"sv,      "ｶﾅ"sv,    "\uD7FF"sv,
        "\uE000"sv, "\uFFFD"sv, "\uFFFF"sv,      "😀"sv,      "\U0010FFFF"sv};
    return kPieces[static_cast<std::size_t>(Below(kPieces.size()))];
  }

  std::string Text(int pieces) {
    std::string text;
    for (int i = 0; i < pieces; ++i) text += Piece();
    return text;
  }

  std::string_view FontName() {
    static constexpr std::array<std::string_view, 7> kNames = {
        "Courier New", "MS Sans Serif", "Arial", "ＭＳ ゴシック", "A;B {c} \\f1", " 3 ", ""};
    return kNames[static_cast<std::size_t>(Below(kNames.size()))];
  }

  Color AnyColor() {
    static constexpr std::array kColors = {Rgb(0, 0, 0), Rgb(0, 0, 128), Rgb(0, 128, 0)};
    const int choice = Below(4);
    return choice < 3 ? kColors[static_cast<std::size_t>(choice)] : random_() & 0xFFFFFF;
  }

  /// Somewhere in a text of size characters, at times beyond it.
  TextRange Range(int size) { return {Below(size + 2), Below(8) == 0 ? size : Below(12)}; }

  void FormatAnything(RichText& content) {
    const TextRange range = Range(content.Size());
    switch (Below(3)) {
      case 0:
        return content.SetColor(range, AnyColor());
      case 1:
        return content.SetFontName(range, FontName());
      default:
        return content.SetFontSize(range, 1 + Below(30));
    }
  }

  RichText Content() {
    RichText content;
    content.SetText(Text(Below(60)));
    for (int formats = Below(20); formats > 0; --formats) FormatAnything(content);
    return content;
  }

 private:
  std::mt19937 random_;
};

}  // namespace brimwork

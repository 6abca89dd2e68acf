// Rich text of generated modules and of texts of all sorts has the text and the colours that a
// plain walk over an array of coloured characters gives. A failure names its seed.
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>

#include "environment/text.h"
#include "environment/utf8.h"
#include "export/rtf_export.h"
#include "support/code_soup.h"
#include "support/commanded_module.h"
#include "support/export_fixture.h"
#include "support/text_colors.h"

namespace brimwork {
namespace rtf_properties_test {

constexpr unsigned kModules = 120;
constexpr unsigned kSoups = 4000;

constexpr const char* kPath = "C:\\code.rtf";
constexpr std::string_view kModuleWords =
    "As,ByVal,Case,Const,Dim,Else,ElseIf,End,Exit,False,For,Function,Get,GoTo,If,Integer,Let,Long,"
    "Loop,Me,New,Next,Nothing,On Error,Option Explicit,Private,Property,Public,Select,Set,Static,"
    "String,Sub,Then,To,True,Type,Wend,While,With";

std::u32string Characters(std::string_view text) {
  std::u32string characters;
  while (!text.empty()) {
    characters += Utf8Character(text);
    text.remove_prefix(Utf8Size(text));
  }
  return characters;
}

std::string Text(std::u32string_view characters) {
  std::string text;
  for (const char32_t c : characters) AppendUtf8(text, c);
  return text;
}

std::u32string InCapitals(std::u32string text) {
  for (char32_t& c : text) {
    if (c >= U'a' && c <= U'z') c -= U'a' - U'A';
  }
  return text;
}

/// Characters from 1 and their colours, as ColorsOf writes them.
class PlainColoring {
 public:
  enum class Outcome { kColored, kNoEnd, kCutsALineEnd };

  PlainColoring(std::string_view code, std::string_view words)
      : text(Characters(code)), colors(text.size(), '.'), words_(Characters(words)) {}

  Outcome Run() {
    const std::u32string code = text + U' ';
    const std::size_t len = code.size();
    std::u32string word;
    std::size_t wordStart = 0;
    std::size_t i = 1;
    while (i <= len) {
      const char32_t c = code[i - 1];
      if ((c >= U'A' && c <= U'Z') || (c >= U'a' && c <= U'z') || c == U'_') {
        if (word.empty()) wordStart = i;
        word += c;
      } else if (c == U'"') {
        i = InStr(i + 1, code, U"\"");
        if (i == 0) return Outcome::kNoEnd;
      } else if (c == U'\'') {
        std::size_t end = InStr(i, code, U"\r\n");
        if (end == 0) end = len;
        std::fill_n(colors.begin() + static_cast<std::ptrdiff_t>(i - 1), end - i, 'g');
        i = end;
      } else if (!word.empty()) {
        const std::size_t place = InStr(1, InCapitals(words_), InCapitals(word));
        if (place > 0) {
          if (CutsALineEnd(wordStart - 1) || CutsALineEnd(wordStart - 1 + word.size())) {
            return Outcome::kCutsALineEnd;
          }
          colors.replace(wordStart - 1, word.size(), std::string(word.size(), 'n'));
          text.replace(wordStart - 1, word.size(), words_.substr(place - 1, word.size()));
        }
        word.clear();
      }
      ++steps;
      ++i;
    }
    return Outcome::kColored;
  }

  std::u32string text;
  std::string colors;
  int steps = 0;

 private:
  /// The position of sought at or behind start, 0 when there is none.
  static std::size_t InStr(std::size_t start, const std::u32string& in,
                           const std::u32string& sought) {
    const auto found = in.find(sought, start - 1);
    return found == std::u32string::npos ? 0 : found + 1;
  }

  bool CutsALineEnd(std::size_t index) const {
    return index > 0 && text.substr(index - 1, 2) == U"\r\n";
  }

  std::u32string words_;
};

/// An export of a text.
struct Exported {
  Exported(const std::string& text, std::string_view words) {
    fixture.dialogs.SaveTo(kPath);
    editor.SetText(text);
    KeywordList keywords{std::string(words)};
    isWritten = ExportRtf(fixture.tools, editor, work, keywords);
  }

  /// What another program reads from the file.
  RichText File() {
    MemoryRichTextBox reader(3, fixture.textFiles);
    reader.SetTextRTF(fixture.textFiles.BytesOf(kPath));
    return reader.Content();
  }

  ExportFixture fixture;
  MemoryRichTextBox editor{1, fixture.textFiles};
  MemoryRichTextBox work{2, fixture.textFiles};
  bool isWritten = false;
};

PlainColoring::Outcome Compare(const std::string& text, std::string_view words, unsigned seed) {
  PlainColoring plain(text, words);
  const auto outcome = plain.Run();
  if (outcome == PlainColoring::Outcome::kCutsALineEnd) return outcome;
  Exported exported(text, words);
  const bool isColored = outcome == PlainColoring::Outcome::kColored;
  EXPECT_EQ(exported.isWritten, isColored) << "seed " << seed;
  EXPECT_EQ(exported.fixture.textFiles.Exists(kPath), isColored) << "seed " << seed;
  // The step that refuses an open literal has had its turn, too.
  EXPECT_EQ(exported.fixture.messageLoop.Count(), plain.steps + (isColored ? 0 : 1))
      << "seed " << seed;
  EXPECT_EQ(exported.work.Text(), Text(plain.text)) << "seed " << seed;
  EXPECT_EQ(ColorsOf(exported.work.Content()), plain.colors) << "seed " << seed;
  if (isColored) {
    EXPECT_TRUE(exported.File() == exported.work.Content()) << "seed " << seed;
  }
  return outcome;
}

TEST(RtfProperties, AModuleHasTheColorsOfThePlainWalk) {
  int colored = 0;
  for (unsigned seed = 0; seed < kModules && !HasFailure(); ++seed) {
    colored += Compare(AnyText(seed), kModuleWords, seed) == PlainColoring::Outcome::kColored;
  }
  EXPECT_GT(colored, static_cast<int>(kModules) / 10);
}

TEST(RtfProperties, AnythingHasTheColorsOfThePlainWalk) {
  int colored = 0;
  int withoutEnd = 0;
  for (unsigned seed = 0; seed < kSoups && !HasFailure(); ++seed) {
    const auto outcome = Compare(CodeSoup(seed), kSoupWords, seed);
    colored += outcome == PlainColoring::Outcome::kColored;
    withoutEnd += outcome == PlainColoring::Outcome::kNoEnd;
  }
  EXPECT_GT(colored, 1000);
  EXPECT_GT(withoutEnd, 1000);
  EXPECT_GT(colored + withoutEnd, static_cast<int>(kSoups) * 99 / 100);
}

TEST(RtfProperties, ThePlainWalkGivesTheKnownColors) {
  PlainColoring plain("if x then 'y\r\ns = \"End\"", "If,Then,End");
  EXPECT_EQ(plain.Run(), PlainColoring::Outcome::kColored);
  EXPECT_EQ(Text(plain.text), "If x Then 'y\r\ns = \"End\"");
  EXPECT_EQ(plain.colors, "nn...nnnn.gg...........");
}

}  // namespace rtf_properties_test
}  // namespace brimwork

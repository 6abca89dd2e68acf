// Web pages of generated modules and of texts of all sorts: they hold the code and nothing but the
// code, and equal what a plain walk over the characters makes. A failure names its seed.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "environment/text.h"
#include "export/html_export.h"
#include "support/code_soup.h"
#include "support/commanded_module.h"
#include "support/export_fixture.h"

namespace brimwork {
namespace html_properties_test {

constexpr unsigned kModules = 120;
constexpr unsigned kSoups = 4000;

constexpr const char* kPath = "C:\\page.htm";
constexpr std::string_view kModuleWords =
    "-,&,=,And,As,ByVal,Case,Const,Dim,Else,ElseIf,End,Exit,False,For,Function,Get,GoTo,If,"
    "Integer,Let,Long,Loop,Me,New,Next,Nothing,On Error,Option Explicit,Private,Property,Public,"
    "Select,Set,Static,String,Sub,Then,To,True,Type,Wend,While,With";

const std::string kKeywordOpen = "<font color=\"#000080\">";
const std::string kCommentOpen = "<font color=\"#008000\">";
const std::string kClose = "</font>";

/// The page of a text, as UTF-8.
std::string Page(const std::string& text, std::string_view words) {
  ExportFixture fixture;
  fixture.dialogs.SaveTo(kPath);
  fixture.form.rtf().SetText(text);
  KeywordList keywords{std::string(words)};
  EXPECT_TRUE(ExportHtml(fixture.tools, fixture.form.rtf(), keywords));
  return fixture.textFiles.Codec().Decode(fixture.textFiles.Take(kPath));
}

/// The lines between the first and the last one, which are the tags around them.
std::vector<std::string> LinesWithin(const std::string& page) {
  std::vector<std::string> lines;
  for (const std::string_view line : Split(page, "\r\n")) lines.emplace_back(line);
  EXPECT_GE(lines.size(), 3u);
  EXPECT_EQ(lines.front(), "<pre>");
  EXPECT_EQ(lines.back(), "");
  EXPECT_EQ(lines[lines.size() - 2], "</pre>");
  return {lines.begin() + 1, lines.end() - 2};
}

/// What a browser shows of a line.
std::string Shown(std::string line) {
  for (const std::string& tag : {kKeywordOpen, kCommentOpen, kClose}) line = Replace(line, tag, "");
  EXPECT_EQ(line.find_first_of("<>\""), std::string::npos) << line;
  line = Replace(Replace(Replace(line, "&quot;", "\""), "&lt;", "<"), "&gt;", ">");
  return Replace(line, "&amp;", "&");
}

void ExpectShowsTheCode(const std::string& text, std::string_view words, unsigned seed) {
  const auto lines = LinesWithin(Page(text, words));
  const auto expected = Split(text, "\r\n");
  ASSERT_EQ(lines.size(), expected.size()) << "seed " << seed;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    ASSERT_EQ(Shown(lines[i]), std::string(expected[i]) + ' ') << "seed " << seed;
  }
}

/// An edit control: a text in which a position belongs to the line whose characters or line end
/// hold it.
struct PlainControl {
  std::string text;  // one byte a character
  std::size_t caret = 0;

  std::size_t LineCount() const { return Split(text, "\r\n").size(); }
  std::size_t LineStart() const {
    std::size_t start = 0;
    while (true) {
      const auto end = text.find("\r\n", start);
      if (end == std::string::npos || end + 2 > caret) return start;
      start = end + 2;
    }
  }
  std::string Line() const {
    const auto start = LineStart();
    return text.substr(start, text.find("\r\n", start) - start);
  }
  void PutCaret(std::size_t position) { caret = std::min(position, text.size()); }
};

/// The page, made by walking over the characters and nothing else.
class PlainPage {
 public:
  explicit PlainPage(std::string_view words) : words_(words) {}

  std::string Of(PlainControl control) {
    std::string page = "<pre>\r\n";
    const auto count = control.LineCount();
    control.PutCaret(1);
    for (std::size_t i = 1; i <= count; ++i) {
      const std::string line = control.Line() + ' ';
      for (const char c : line) Take(c);
      if (inComment_) outLine_ += kClose;
      inComment_ = false;
      page += outLine_ + "\r\n";
      outLine_ = "";
      control.PutCaret(control.LineStart() + line.size() + 2);
    }
    return page + "</pre>\r\n";
  }

 private:
  void Take(char c) {
    if (c == ' ') {
      EndWord();
      return;
    }
    std::string taken(1, c);
    if (c == '"') {
      inString_ = !inString_;
      taken = "&quot;";
    }
    if (taken == "&") taken = "&amp;";
    if (taken == "<") taken = "&lt;";
    if (taken == ">") taken = "&gt;";
    word_ = word_ + taken;
  }

  void EndWord() {
    if (word_ == "'" || word_.substr(0, 1) == "'") BeginComment();
    if (!inComment_ && !inString_) {
      const bool found = words_.find(word_) != std::string::npos;
      if (found && !keywordOpen_) {
        word_ = kKeywordOpen + word_;
        keywordOpen_ = true;
      } else if (!found && keywordOpen_) {
        CloseKeyword();
      }
    } else if (!inComment_ && keywordOpen_) {
      CloseKeyword();
    }
    outLine_ = outLine_ + word_ + " ";
    word_ = "";
  }

  void BeginComment() {
    if (!inComment_) word_ = kCommentOpen + word_;
    inComment_ = true;
    if (keywordOpen_) CloseKeyword();
  }

  void CloseKeyword() {
    word_ = kClose + word_;
    keywordOpen_ = false;
  }

  std::string words_;
  std::string word_;
  std::string outLine_;
  bool inComment_ = false;
  bool keywordOpen_ = false;
  bool inString_ = false;
};

void ExpectPlainPage(const std::string& text, std::string_view words, unsigned seed) {
  TextCodec codec("WINDOWS-1252");
  std::string buffer;
  const std::string bytes(codec.Encode(text, buffer));
  const std::string wordBytes(codec.Encode(words, buffer));
  const std::string expected = PlainPage(wordBytes).Of({bytes});
  ASSERT_EQ(Page(text, words), codec.Decode(std::string(expected))) << "seed " << seed;
}

TEST(HtmlProperties, AModulesPageShowsEachLineAndABlank) {
  for (unsigned seed = 0; seed < kModules; ++seed) {
    ExpectShowsTheCode(AnyText(seed), kModuleWords, seed);
  }
}

TEST(HtmlProperties, APageOfAnythingShowsEachLineAndABlank) {
  for (unsigned seed = 0; seed < kSoups; ++seed) {
    ExpectShowsTheCode(CodeSoup(seed), kSoupWords, seed);
  }
}

TEST(HtmlProperties, AModulesPageIsThatOfThePlainWalk) {
  for (unsigned seed = 0; seed < kModules; ++seed) {
    ExpectPlainPage(AnyText(seed), kModuleWords, seed);
  }
}

TEST(HtmlProperties, APageOfAnythingIsThatOfThePlainWalk) {
  for (unsigned seed = 0; seed < kSoups; ++seed) {
    ExpectPlainPage(CodeSoup(seed), kSoupWords, seed);
  }
}

TEST(HtmlProperties, ThePlainWalkMakesTheKnownPages) {
  EXPECT_EQ(PlainPage("If,Then").Of({"If x Then\r\n'note"}),
            "<pre>\r\n" + kKeywordOpen + "If " + kClose + "x " + kKeywordOpen + "Then \r\n" +
                kClose + kCommentOpen + "'note " + kClose + "\r\n</pre>\r\n");
  EXPECT_EQ(PlainPage("").Of({""}), "<pre>\r\n" + kKeywordOpen + " \r\n</pre>\r\n");
}

}  // namespace html_properties_test
}  // namespace brimwork

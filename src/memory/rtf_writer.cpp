#include "memory/rtf_writer.h"

#include <array>
#include <span>

#include "memory/number_table.h"
#include "memory/rtf_spelling.h"

namespace brimwork {
namespace {

std::string_view FamilyOf(std::string_view fontName) {
  struct Family {
    std::string_view fontName;
    std::string_view word;
  };
  constexpr std::array<Family, 6> kFamilies = {{{"Courier New", "\\fmodern"},
                                                {"Courier", "\\fmodern"},
                                                {"Consolas", "\\fmodern"},
                                                {"MS Sans Serif", "\\fswiss"},
                                                {"Arial", "\\fswiss"},
                                                {"Times New Roman", "\\froman"}}};
  for (const Family& family : kFamilies) {
    if (family.fontName == fontName) return family.word;
  }
  return "\\fnil";
}

class RtfWriter {
 public:
  RtfWriter(const RichText& content, TextRange range)
      : content_(content), bytes_(content.BytesOf(range)) {}

  std::string Write() {
    NumberFontsAndColors();
    document_.reserve(ExpectedSize());
    AppendHeader();
    AppendBody();
    spelling_.AppendSyntax("}\r\n");
    spelling_.Finish();
    return std::move(document_);
  }

 private:
  std::span<const FormatRun> Runs() const;
  std::size_t ExpectedSize() const;
  void NumberFontsAndColors();
  void AppendHeader();
  void AppendFontTable();
  void AppendColorTable();
  void AppendBody();
  void AppendFormat(const PackedFormat& format, const PackedFormat* before);
  ByteRange BytesOf(std::span<const FormatRun> runs, std::size_t index) const;

  const RichText& content_;
  const ByteRange bytes_;
  std::string document_;
  RtfSpelling spelling_{document_};
  NumberTable<std::uint16_t> fonts_;
  NumberTable<Color> colors_;
};

/// The runs of which the range holds something; of an empty range the one that holds its place.
std::span<const FormatRun> RtfWriter::Runs() const {
  const FormatRuns& formats = content_.Formats();
  const std::size_t first = formats.IndexAt(bytes_.start);
  const std::size_t last = formats.IndexAt(bytes_.Size() > 0 ? bytes_.end - 1 : bytes_.start);
  return formats.Runs().subspan(first, last - first + 1);
}

std::size_t RtfWriter::ExpectedSize() const {
  constexpr std::size_t kBytesOfRun = 6;
  constexpr std::size_t kBytesOfHeader = 1000;
  return bytes_.Size() + bytes_.Size() / 8 + Runs().size() * kBytesOfRun + kBytesOfHeader;
}

void RtfWriter::NumberFontsAndColors() {
  colors_.NumberOf(PackedFormat::kAutomatic);
  const auto runs = Runs();
  for (std::size_t i = 0; i < runs.size(); ++i) {
    // Most runs stand between two of the same format.
    if (i >= 2 && runs[i].format == runs[i - 2].format) continue;
    fonts_.NumberOf(runs[i].format.font);
    colors_.NumberOf(runs[i].format.color);
  }
}

void RtfWriter::AppendHeader() {
  spelling_.AppendSyntax("{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1");
  AppendFontTable();
  AppendColorTable();
  spelling_.AppendSyntax("\r\n");
  spelling_.AppendWord("\\viewkind4\\uc1\\pard");
}

void RtfWriter::AppendFontTable() {
  spelling_.AppendSyntax("{\\fonttbl");
  for (std::size_t number = 0; number < fonts_.Values().size(); ++number) {
    const std::string& name = content_.Formats().FontName(fonts_.Values()[number]);
    spelling_.AppendSyntax("{");
    spelling_.AppendWord("\\f", static_cast<int>(number));
    spelling_.AppendWord(FamilyOf(name));
    spelling_.AppendWord("\\fcharset0");
    spelling_.AppendName(name);
    spelling_.AppendSyntax(";}");
  }
  spelling_.AppendSyntax("}\r\n");
}

void RtfWriter::AppendColorTable() {
  spelling_.AppendWord("{\\colortbl");
  spelling_.AppendSyntax(" ;");
  for (const Color color : std::span(colors_.Values()).subspan(1)) {
    spelling_.AppendWord("\\red", static_cast<int>(color & 0xFF));
    spelling_.AppendWord("\\green", static_cast<int>(color >> 8 & 0xFF));
    spelling_.AppendWord("\\blue", static_cast<int>(color >> 16));
    spelling_.AppendSyntax(";");
  }
  spelling_.AppendSyntax("}");
}

void RtfWriter::AppendBody() {
  const auto runs = Runs();
  SpelledOtherwise marks(content_.Text());
  for (std::size_t i = 0; i < runs.size(); ++i) {
    AppendFormat(runs[i].format, i == 0 ? nullptr : &runs[i - 1].format);
    spelling_.AppendText(content_.Text(), BytesOf(runs, i), marks);
  }
  spelling_.EndParagraph();
}

void RtfWriter::AppendFormat(const PackedFormat& format, const PackedFormat* before) {
  if (before == nullptr || before->color != format.color) {
    spelling_.AppendWord("\\cf", colors_.NumberOf(format.color));
  }
  if (before == nullptr || before->font != format.font) {
    spelling_.AppendWord("\\f", fonts_.NumberOf(format.font));
  }
  if (before == nullptr || before->halfPoints != format.halfPoints) {
    spelling_.AppendWord("\\fs", format.halfPoints);
  }
}

ByteRange RtfWriter::BytesOf(std::span<const FormatRun> runs, std::size_t index) const {
  const std::size_t start = std::max<std::size_t>(runs[index].start, bytes_.start);
  return {start, index + 1 < runs.size() ? runs[index + 1].start : bytes_.end};
}

}  // namespace

std::string WriteRtf(const RichText& content, TextRange range) {
  return RtfWriter(content, range).Write();
}

}  // namespace brimwork

#include "memory/source_layout.h"

#include <algorithm>

#include "environment/text.h"
#include "memory/attribute_line.h"

namespace brimwork {
namespace {

/// Tells most lines from an attribute at their first letter; a line may be one of a million.
bool MayBeAttribute(std::string_view line) {
  std::size_t at = 0;
  while (at < line.size() && IsBlankOrTab(line[at])) ++at;
  return at < line.size() && ToUpperAscii(line[at]) == 'A';
}

class LayoutReader {
 public:
  LayoutReader(std::shared_ptr<const std::string> text, const std::string& path)
      : whole_(*text), parsed_{{}, ModuleText(std::move(text))} {
    parsed_.layout.preamble = ReadPreamble(whole_, path);
  }

  ParsedSource Read() {
    const std::string_view preamble = whole_.substr(0, parsed_.layout.preamble.size);
    for (std::string_view rest = preamble; !rest.empty();) CountEnd(TakeLine(rest).end);
    std::string_view rest = whole_.substr(preamble.size());
    parsed_.text.Reserve(CountLines(rest));
    std::string_view above;
    while (!rest.empty()) {
      const RawLine line = TakeLine(rest);
      CountEnd(line.end);
      if (MayBeAttribute(line.text) && IsMemberAttribute(line.text) && !IsContinued(above)) {
        AddHidden(line);
      } else {
        parsed_.text.AppendOriginal(line.text, line.end);
      }
      above = line.text;
    }
    Finish();
    return std::move(parsed_);
  }

 private:
  void CountEnd(LineEnd end) {
    crLfs_ += end == LineEnd::kCrLf;
    lineFeeds_ += end == LineEnd::kLf;
  }

  void AddHidden(const RawLine& line) {
    auto& hidden = parsed_.layout.hidden;
    parsed_.text.AppendHidden(static_cast<HiddenLine>(hidden.size()));
    hidden.push_back({static_cast<std::size_t>(line.text.data() - whole_.data()),
                      static_cast<std::uint32_t>(line.text.size()), line.end,
                      parsed_.text.Count()});
  }

  void Finish() {
    SourceLayout& layout = parsed_.layout;
    layout.moduleLines = parsed_.text.Count();
    layout.commonerEnd = lineFeeds_ > crLfs_ ? LineEnd::kLf : LineEnd::kCrLf;
    layout.endsLastLine = layout.FileLines() == 0 || whole_.ends_with('\n');
  }

  std::string_view whole_;
  ParsedSource parsed_;
  std::size_t crLfs_ = 0;
  std::size_t lineFeeds_ = 0;
};

}  // namespace

ParsedSource ReadLayout(std::shared_ptr<const std::string> text, const std::string& path) {
  return LayoutReader(std::move(text), path).Read();
}

int SourceLayout::FileLineOf(int moduleLine) const {
  const auto firstBelow = std::partition_point(
      hidden.begin(), hidden.end(),
      [moduleLine](const HiddenAttribute& line) { return line.behind < moduleLine; });
  return preamble.lines + moduleLine + static_cast<int>(firstBelow - hidden.begin());
}

int SourceLayout::ModuleLineOf(int fileLine) const {
  const int below = fileLine - preamble.lines;  // from 1 behind the preamble
  int hiddenAbove = 0;
  for (int high = static_cast<int>(hidden.size()); hiddenAbove < high;) {
    const int middle = hiddenAbove + (high - hiddenAbove) / 2;
    if (hidden[middle].behind + middle + 1 <= below) {
      hiddenAbove = middle + 1;
    } else {
      high = middle;
    }
  }
  return std::max(1, below - hiddenAbove);
}

OriginalLines::OriginalLines(const SourceLayout& layout, std::string_view text)
    : rest_(text.substr(layout.preamble.size)),
      textStart_(text.data()),
      nextHidden_(layout.hidden.data()),
      hiddenEnd_(nextHidden_ + layout.hidden.size()),
      fileLine_(layout.preamble.lines) {}

bool OriginalLines::Next() {
  while (!rest_.empty()) {
    line_ = TakeLine(rest_).text;
    ++fileLine_;
    const bool isHidden =
        nextHidden_ != hiddenEnd_ && line_.data() == textStart_ + nextHidden_->offset;
    if (!isHidden) return true;
    ++nextHidden_;
  }
  return false;
}

}  // namespace brimwork

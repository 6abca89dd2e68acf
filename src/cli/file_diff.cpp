#include "cli/file_diff.h"

#include <string_view>
#include <vector>

#include "cli/unified_diff.h"
#include "memory/text_codec.h"

namespace brimwork {
namespace {

/// Lines with the CR of their line ends, as a diff holds them.
class ByteLines : public CodeLines {
 public:
  explicit ByteLines(std::string_view bytes) : endsLastLine_(bytes.ends_with('\n')) {
    while (!bytes.empty()) {
      const auto end = bytes.find('\n');
      lines_.push_back(bytes.substr(0, end));
      bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
    }
  }

  int Count() const override { return static_cast<int>(lines_.size()); }
  std::string_view Line(int number) const override {
    return lines_[static_cast<std::size_t>(number - 1)];
  }
  FileLines AsFile() const { return {*this, endsLastLine_}; }

 private:
  bool endsLastLine_;
  std::vector<std::string_view> lines_;
};

/// Every so many lines a pair of lines that stand for each other in both files.
std::vector<DiffAnchor> AnchorsOf(const SourceFile& file, const ModuleText& text,
                                  const Alignment& alignment) {
  constexpr int kLinesApart = 100;
  std::vector<DiffAnchor> anchors;
  int hiddenAbove = file.PreambleLines() + static_cast<int>(text.HiddenBehind(0).size());
  int line = 1;
  int nextAnchor = 1;
  for (const AlignedStretch& stretch : alignment.Stretches()) {
    for (int i = 0; i < stretch.count; ++i) {
      if (stretch.after + i < nextAnchor) continue;
      nextAnchor = stretch.after + i + kLinesApart;
      for (; line < stretch.after + i; ++line) {
        hiddenAbove += static_cast<int>(text.HiddenBehind(line).size());
      }
      anchors.push_back({file.FileLineOf(stretch.before + i), stretch.after + i + hiddenAbove});
    }
  }
  return anchors;
}

std::string Readable(const std::string& bytes, const std::string& encoding) {
  TextCodec codec(encoding);
  return codec.ForDisplay(codec.DecodeStart(bytes));
}

}  // namespace

std::string FileDiff(const FileDiffRequest& request) {
  const std::string& encoding = request.file.Encoding();
  // Only where ASCII is ASCII do the bytes fall into lines.
  const bool decode = request.readable || !TextCodec(encoding).IsAsciiCompatible();
  const std::string before = decode ? Readable(request.before, encoding) : request.before;
  const std::string after = decode ? Readable(request.after, encoding) : request.after;
  const ByteLines beforeLines(before);
  const ByteLines afterLines(after);
  DiffOptions options;
  options.color = request.color;
  std::string diff;
  UnifiedDiff({request.path, request.path}, beforeLines.AsFile(), afterLines.AsFile(),
              AnchorsOf(request.file, request.text, request.alignment), options,
              [&](std::string_view piece) { diff += piece; });
  return diff;
}

}  // namespace brimwork

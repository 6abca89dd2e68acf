#include "cli/hunk_writer.h"

#include <algorithm>
#include <utility>

namespace brimwork {
namespace {

constexpr std::size_t kOutputBlock = 64 * 1024;

constexpr std::string_view kBold = "\x1b[1m";
constexpr std::string_view kCyan = "\x1b[36m";
constexpr std::string_view kRed = "\x1b[31m";
constexpr std::string_view kGreen = "\x1b[32m";
constexpr std::string_view kReset = "\x1b[m";

/// "12,3": the first line and the number of lines; of no lines, the line in front of them.
std::string RangeText(int first, int count) {
  if (count == 1) return std::to_string(first);
  return std::to_string(count == 0 ? first - 1 : first) + ',' + std::to_string(count);
}

std::string_view ColorOf(char mark) {
  return mark == '-' ? kRed : mark == '+' ? kGreen : std::string_view();
}

}  // namespace

HunkWriter::HunkWriter(const FileLines& before, const FileLines& after, std::string header,
                       const DiffOptions& options, const TextSink& sink)
    : before_(before), after_(after), header_(std::move(header)), options_(options), sink_(sink) {}

void HunkWriter::Keep(int lines) {
  beforeLine_ += lines;
  afterLine_ += lines;
  if (hunk_.empty()) return;
  keptBehind_ += lines;
  // Nearer changes share their hunk, for their surroundings would meet.
  if (keptBehind_ > 2 * options_.context) WriteHunk(options_.context);
}

void HunkWriter::Change(int removed, int added) {
  if (removed == 0 && added == 0) return;
  if (hunk_.empty()) {
    OpenHunk();
  } else if (keptBehind_ > 0) {
    hunk_.push_back({std::exchange(keptBehind_, 0)});
  }
  hunk_.back().removed += removed;
  hunk_.back().added += added;
  beforeLine_ += removed;
  afterLine_ += added;
}

DiffStat HunkWriter::Finish() {
  if (!hunk_.empty()) WriteHunk(std::min(keptBehind_, options_.context));
  if (!output_.empty()) sink_(output_);
  output_.clear();
  return stat_;
}

void HunkWriter::OpenHunk() {
  const int kept = std::min({options_.context, beforeLine_ - 1, afterLine_ - 1});
  hunkBefore_ = beforeLine_ - kept;
  hunkAfter_ = afterLine_ - kept;
  hunk_.push_back({kept});
}

void HunkWriter::WriteHunk(int keptBehind) {
  WriteRange(keptBehind);
  int beforeLine = hunkBefore_;
  int afterLine = hunkAfter_;
  for (const Block& block : hunk_) {
    WriteLines(' ', before_, beforeLine, block.kept);
    afterLine += block.kept;
    WriteLines('-', before_, beforeLine, block.removed);
    WriteLines('+', after_, afterLine, block.added);
    stat_.removed += block.removed;
    stat_.added += block.added;
  }
  WriteLines(' ', before_, beforeLine, keptBehind);
  hunk_.clear();
  keptBehind_ = 0;
}

void HunkWriter::WriteRange(int keptBehind) {
  int beforeCount = keptBehind;
  int afterCount = keptBehind;
  for (const Block& block : hunk_) {
    beforeCount += block.kept + block.removed;
    afterCount += block.kept + block.added;
  }
  std::string_view header = header_;
  while (!header.empty()) {
    const auto end = header.find('\n');
    WriteColored(kBold, header.substr(0, end), "\n");
    header.remove_prefix(end + 1);
  }
  header_.clear();
  WriteColored(kCyan,
               "@@ -" + RangeText(hunkBefore_, beforeCount) + " +" +
                   RangeText(hunkAfter_, afterCount) + " @@",
               "\n");
}

void HunkWriter::WriteLines(char mark, const FileLines& file, int& line, int count) {
  std::string marked;
  for (const int end = line + count; line < end; ++line) {
    std::string_view text = file.lines.Line(line);
    const bool hasCr = text.ends_with('\r');
    if (hasCr) text.remove_suffix(1);
    marked.assign(1, mark).append(text);
    WriteColored(ColorOf(mark), marked, hasCr ? "\r\n" : "\n");
    if (file.IsUnended(line)) output_ += "\\ No newline at end of file\n";
    FlushWhenLarge();
  }
}

/// The line's end stays outside the color, so that a terminal does not paint its right margin.
void HunkWriter::WriteColored(std::string_view color, std::string_view text, std::string_view end) {
  const bool isColored = options_.color && !color.empty();
  if (isColored) output_ += color;
  output_ += text;
  if (isColored) output_ += kReset;
  output_ += end;
}

void HunkWriter::FlushWhenLarge() {
  if (output_.size() < kOutputBlock) return;
  sink_(output_);
  output_.clear();
}

}  // namespace brimwork

#include "memory/rich_text.h"

#include <algorithm>
#include <utility>

#include "environment/run_time_error.h"
#include "environment/text.h"
#include "environment/utf8.h"

namespace brimwork {
namespace {

constexpr int kMostPoints = 2160;

void RequireRoom(std::size_t bytes) {
  if (bytes <= RichText::kMostBytes) return;
  throw RunTimeError(error_number::kOverflow, "a text box holds 2 GB of text at most");
}

bool IsPlain(char c) { return c != '\r' && c != '\n' && static_cast<unsigned char>(c) < 0x80; }

std::size_t PlainEnd(std::string_view text, std::size_t at) {
  while (at < text.size() && IsPlain(text[at])) ++at;
  return at;
}

/// Whether text is ASCII with CR LF at every line end, as most of it is. All of it is looked at
/// without a branch, which compilers turn into many bytes at a time.
bool IsAsciiWithCrLf(std::string_view text) {
  if (text.empty()) return true;
  unsigned char all = static_cast<unsigned char>(text.front());
  unsigned char alone = (text.front() == '\n') | (text.back() == '\r');
  for (std::size_t i = 1; i < text.size(); ++i) {
    all = static_cast<unsigned char>(all | text[i]);
    alone = static_cast<unsigned char>(alone | ((text[i] == '\n') ^ (text[i - 1] == '\r')));
  }
  return all < 0x80 && alone == 0;
}

/// Appends the line end that text starts with; returns its size there.
std::size_t AppendLineEnd(std::string& result, std::string_view text) {
  result += "\r\n";
  return text.starts_with("\r\n") ? 2 : 1;
}

/// Appends the character beyond ASCII that text starts with; returns its size there.
std::size_t AppendCharacter(std::string& result, std::string_view text) {
  const std::size_t size = Utf8Size(text);
  if (size == 0) {
    AppendUtf8(result, 0xFFFD);
    return 1;
  }
  result += text.substr(0, size);
  return size;
}

}  // namespace

std::string WithLineEnds(std::string given) {
  if (IsAsciiWithCrLf(given)) return given;
  const std::string_view text = given;
  std::string result;
  result.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = PlainEnd(text, at);
    result += text.substr(at, end - at);
    if (end == text.size()) break;
    const std::string_view rest = text.substr(end);
    const bool isLineEnd = rest[0] == '\r' || rest[0] == '\n';
    at = end + (isLineEnd ? AppendLineEnd(result, rest) : AppendCharacter(result, rest));
  }
  return result;
}

RichText::RichText(std::string text, FormatRuns formats)
    : text_(std::move(text)), formats_(std::move(formats)) {
  RequireRoom(text_.size());
  positions_.Reset(text_);
}

void RichText::SetText(std::string_view text) {
  RequireRoom(text.size());
  TakeText(std::string(text));
}

void RichText::TakeText(std::string text) {
  RequireRoom(text.size());
  *this = RichText(WithLineEnds(std::move(text)), FormatRuns());
}

int RichText::Replace(TextRange range, std::string_view text) {
  RequireRoom(text.size());
  const ByteRange bytes = BytesOf(range);
  const std::string_view removed = std::string_view(text_).substr(bytes.start, bytes.Size());
  if (removed == text && formats_.IsUniform(bytes)) return positions_.PositionOf(text_, bytes.end);
  return ReplaceBytes(bytes, WithLineEnds(std::string(text)));
}

int RichText::ReplaceBytes(ByteRange bytes, const std::string& added) {
  RequireRoom(text_.size() - bytes.Size() + added.size());
  const std::string_view removed = std::string_view(text_).substr(bytes.start, bytes.Size());
  const bool linesStay =
      removed.size() == added.size() && !Contains(removed, "\n") && !Contains(added, "\n");
  if (!linesStay) lines_.Forget(bytes.start);
  positions_.Replace(text_, bytes.start, bytes.end, added);
  formats_.Replace(bytes, added.size(), text_.size());
  text_.replace(bytes.start, bytes.Size(), added);
  return positions_.PositionOf(text_, bytes.start + added.size());
}

void RichText::SetColor(TextRange range, Color color) {
  Format(range, [color](PackedFormat format) {
    format.color = color & 0xFFFFFF;
    return format;
  });
}

void RichText::SetFontName(TextRange range, std::string_view name) {
  const std::uint16_t font = formats_.FontIndex(WithLineEnds(std::string(name)));
  Format(range, [font](PackedFormat format) {
    format.font = font;
    return format;
  });
}

void RichText::SetFontSize(TextRange range, int points) {
  if (points < 1 || points > kMostPoints) {
    throw RunTimeError(error_number::kInvalidProcedureCall,
                       "no font has a size of " + std::to_string(points) + " points");
  }
  Format(range, [points](PackedFormat format) {
    format.halfPoints = static_cast<std::uint16_t>(2 * points);
    return format;
  });
}

TextFormat RichText::FormatAt(int position) const {
  const std::size_t byte = ByteOf(position);
  return formats_.Unpacked(formats_.Runs()[formats_.IndexAt(byte)].format);
}

ByteRange RichText::BytesOf(TextRange range) const {
  ByteRange bytes = CutBytesOf(range);
  const bool isEmpty = bytes.Size() == 0;
  if (IsWithinLineEnd(bytes.start)) --bytes.start;
  if (isEmpty) bytes.end = bytes.start;
  if (IsWithinLineEnd(bytes.end)) ++bytes.end;
  return bytes;
}

RichText RichText::Changed(const std::function<std::string(std::string_view)>& change) const {
  const auto runs = formats_.Runs();
  std::string text;
  FormatRuns formats = formats_.Emptied();
  for (std::size_t i = 0; i < runs.size(); ++i) {
    const std::size_t end = i + 1 < runs.size() ? runs[i + 1].start : text_.size();
    formats.Continue(text.size(), runs[i].format);
    text += change(std::string_view(text_).substr(runs[i].start, end - runs[i].start));
  }
  formats.Cut(text.size());
  return RichText(std::move(text), std::move(formats));
}

template <class NewFormat>
void RichText::Format(TextRange range, NewFormat newFormat) {
  ByteRange bytes = CutBytesOf(range);
  if (IsWithinLineEnd(bytes.start)) ++bytes.start;
  if (IsWithinLineEnd(bytes.end)) ++bytes.end;
  if (bytes.start < bytes.end || text_.empty()) formats_.Change(bytes, text_.size(), newFormat);
}

}  // namespace brimwork

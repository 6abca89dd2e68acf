#include "memory/memory_rich_text_box.h"

#include <algorithm>

#include "environment/run_time_error.h"
#include "environment/text.h"
#include "memory/rtf_reader.h"
#include "memory/rtf_writer.h"

namespace brimwork {

void MemoryRichTextBox::SetText(std::string_view text) {
  content_.SetText(text);
  selection_ = {};
}

void MemoryRichTextBox::SetSelStart(int position) {
  selection_ = {std::clamp(position, 0, content_.Size()), 0};
}

void MemoryRichTextBox::SetSelLength(int length) {
  selection_.length = std::clamp(length, 0, content_.Size() - selection_.start);
}

void MemoryRichTextBox::SetSelText(std::string_view text) {
  selection_ = {content_.Replace(selection_, text), 0};
}

std::string MemoryRichTextBox::SelRTF() { return WriteRtf(content_, selection_); }

void MemoryRichTextBox::SetTextRTF(std::string_view richText) {
  content_ = ReadRtf(richText);
  selection_ = {};
}

void MemoryRichTextBox::SaveFile(std::string_view path, SaveAs type) {
  files_.Write(path, type == SaveAs::kRichText ? RichTextBytes() : PlainTextBytes(path));
}

int MemoryRichTextBox::LineLength(int position) {
  return CharacterCount(content_.Line(content_.LineAt(position)));
}

std::string MemoryRichTextBox::Line(int line) {
  if (line < 0 || line >= LineCount()) return {};
  return std::string(content_.Line(line));
}

/// Characters by which the codec tells byte forms apart mean nothing to other programs: these get
/// what the characters look like.
std::string MemoryRichTextBox::RichTextBytes() {
  const TextCodec& codec = files_.Codec();
  if (codec.ForDisplay(content_.Text()) == content_.Text()) return WriteRtf(content_);
  return WriteRtf(content_.Changed([&](std::string_view text) { return codec.ForDisplay(text); }));
}

std::string MemoryRichTextBox::PlainTextBytes(std::string_view path) {
  try {
    std::string buffer;
    return std::string(files_.Codec().Encode(content_.Text(), buffer));
  } catch (const TextCodecError& error) {
    throw RunTimeError(error_number::kInvalidProcedureCall,
                       std::string(path) + ": " + error.what());
  }
}

}  // namespace brimwork

#include "memory/memory_rich_text_box.h"

#include <utility>

#include "environment/run_time_error.h"
#include "environment/text.h"
#include "memory/rtf_reader.h"
#include "memory/rtf_writer.h"

namespace brimwork {

void MemoryRichTextBox::SetText(std::string text) {
  unread_ = nullptr;
  content_.TakeText(std::move(text));
  selection_ = {};
}

void MemoryRichTextBox::SetSelText(std::string_view text) {
  selection_ = {Edited().Replace(selection_, text), 0};
}

std::string MemoryRichTextBox::SelRTF() {
  const auto written = std::make_shared<const std::string>(RichTextBytes(selection_));
  lastWritten_->text = written;
  return *written;
}

void MemoryRichTextBox::SetTextRTF(std::string_view richText) {
  if (richText == *lastWritten_->text) {
    unread_ = lastWritten_->text;
  } else {
    content_ = ReadRtf(richText);
    unread_ = nullptr;
  }
  selection_ = {};
}

void MemoryRichTextBox::SaveFile(std::string_view path, SaveAs type) {
  if (type == SaveAs::kPlainText) {
    files_.Write(path, PlainTextBytes(path));
  } else {
    files_.Write(
        path, unread_ ? unread_
                      : std::make_shared<const std::string>(RichTextBytes({0, content_.Size()})));
  }
}

void MemoryRichTextBox::ReadUnread() const { content_ = ReadRtf(*std::exchange(unread_, nullptr)); }

int MemoryRichTextBox::LineLength(int position) {
  return Content().LineLength(Content().LineAt(position));
}

void MemoryRichTextBox::ReadLine(int line, std::string& text) {
  const bool isThere = line >= 0 && line < LineCount();
  text = isThere ? Content().Line(line) : std::string_view();
}

/// Characters by which the codec tells byte forms apart mean nothing to other programs: these get
/// what the characters look like.
std::string MemoryRichTextBox::RichTextBytes(TextRange range) {
  const TextCodec& codec = files_.Codec();
  const RichText& content = Content();
  if (!codec.HasAliases() || codec.ForDisplay(content.Text()) == content.Text()) {
    return WriteRtf(content, range);
  }
  const RichText shown =
      content.Changed([&](std::string_view text) { return codec.ForDisplay(text); });
  const bool isWhole = range.start == 0 && range.length == content.Size();
  return isWhole ? WriteRtf(shown) : WriteRtf(shown, range);
}

std::string MemoryRichTextBox::PlainTextBytes(std::string_view path) {
  try {
    std::string buffer;
    return std::string(files_.Codec().Encode(Content().Text(), buffer));
  } catch (const TextCodecError& error) {
    throw RunTimeError(error_number::kInvalidProcedureCall,
                       std::string(path) + ": " + error.what());
  }
}

}  // namespace brimwork

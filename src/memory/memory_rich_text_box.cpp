#include "memory/memory_rich_text_box.h"

#include <algorithm>

#include "environment/run_time_error.h"
#include "environment/text.h"

namespace brimwork {
namespace {

[[noreturn]] void RefuseFormats() {
  throw RunTimeError(error_number::kInvalidProcedureCall, "the text box holds plain text only");
}

}  // namespace

void MemoryRichTextBox::SetText(std::string_view text) {
  text_ = WithCrLf(text);
  SetSelStart(0);
}

void MemoryRichTextBox::SetSelStart(int position) {
  selStart_ = std::clamp(position, 0, CharacterCount(text_));
  selLength_ = 0;
}

void MemoryRichTextBox::SetSelLength(int length) {
  selLength_ = std::clamp(length, 0, CharacterCount(text_) - selStart_);
}

void MemoryRichTextBox::SetSelColor(Color /*color*/) { RefuseFormats(); }
void MemoryRichTextBox::SetSelFontName(std::string_view /*name*/) { RefuseFormats(); }
void MemoryRichTextBox::SetSelFontSize(int /*points*/) { RefuseFormats(); }
std::string MemoryRichTextBox::SelRTF() { RefuseFormats(); }
void MemoryRichTextBox::SetTextRTF(std::string_view /*richText*/) { RefuseFormats(); }

void MemoryRichTextBox::SetSelText(std::string_view text) {
  const std::size_t start = ByteOffset(text_, selStart_);
  const std::size_t end = ByteOffset(text_, selStart_ + selLength_);
  text_.replace(start, end - start, text);
  SetSelStart(selStart_ + CharacterCount(text));
}

void MemoryRichTextBox::SaveFile(std::string_view path, SaveAs type) {
  if (type == SaveAs::kRichText) RefuseFormats();
  std::string buffer;
  files_.Write(path, std::string(files_.Codec().Encode(text_, buffer)));
}

int MemoryRichTextBox::LineCount() { return static_cast<int>(SplitLines(text_).size()); }

int MemoryRichTextBox::LineFromCaret() {
  const std::string before = text_.substr(0, ByteOffset(text_, selStart_));
  return static_cast<int>(SplitLines(before).size()) - 1;
}

int MemoryRichTextBox::LineIndexOfCaret() {
  const auto lines = SplitLines(text_);
  const auto line = lines[static_cast<std::size_t>(LineFromCaret())];
  return CharacterCount(std::string_view(text_.data(), line.data()));
}

int MemoryRichTextBox::LineLength(int /*position*/) {
  return CharacterCount(Line(LineFromCaret()));
}

std::string MemoryRichTextBox::Line(int line) {
  return std::string(SplitLines(text_)[static_cast<std::size_t>(line)]);
}

}  // namespace brimwork

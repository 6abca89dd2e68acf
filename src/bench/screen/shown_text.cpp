#include "bench/screen/shown_text.h"

#include "bench/model/text_change.h"
#include "environment/text.h"

namespace brimwork::bench {
namespace {

/// Counts from 0 in characters, a line's end as two.
int Offset(std::string_view text, int line, int column) {
  std::size_t start = 0;
  for (int passed = 1; passed < line; ++passed) {
    const auto end = text.find("\r\n", start);
    if (end == std::string_view::npos) return CharacterCount(text);
    start = end + 2;
  }
  return CharacterCount(text.substr(0, start)) + column - 1;
}

struct ShownPlace {
  int line;
  int column;
};

ShownPlace PlaceOf(std::string_view text, int offset) {
  const std::string_view before = text.substr(0, ByteOffset(text, offset));
  const auto lines = SplitLines(before);
  return {static_cast<int>(lines.size()), CharacterCount(lines.back()) + 1};
}

}  // namespace

void PaneText::SetText(std::string_view text) { TakeOverText(*module_, text); }

Selection PlainText::GetSelection() {
  const ShownPlace start = PlaceOf(text_->Text(), text_->Start());
  const ShownPlace end = PlaceOf(text_->Text(), text_->Start() + text_->Length());
  return {start.line, start.column, end.line, end.column};
}

void PlainText::SetSelection(const Selection& selection) {
  const int start = Offset(text_->Text(), selection.startLine, selection.startColumn);
  const int end = Offset(text_->Text(), selection.endLine, selection.endColumn);
  text_->Select(start, end - start);
}

}  // namespace brimwork::bench

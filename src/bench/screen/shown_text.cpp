#include "bench/screen/shown_text.h"

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

struct Place {
  int line;
  int column;
};

Place PlaceOf(std::string_view text, int offset) {
  const std::string_view before = text.substr(0, ByteOffset(text, offset));
  const auto lines = SplitLines(before);
  return {static_cast<int>(lines.size()), CharacterCount(lines.back()) + 1};
}

void ReplaceText(MemoryCodeModule& module, std::string_view text) {
  const auto lines = SplitLines(text);
  const int before = module.CountOfLines();
  const int after = text.empty() ? 0 : static_cast<int>(lines.size());
  int same = 0;
  while (same < before && same < after && module.Text().Line(same + 1) == lines[same]) ++same;
  int end = 0;
  while (end < before - same && end < after - same &&
         module.Text().Line(before - end) == lines[after - end - 1]) {
    ++end;
  }
  const int removed = before - same - end;
  const int added = after - same - end;
  std::string inserted;
  for (int line = 0; line < added; ++line) {
    if (line > 0) inserted += "\r\n";
    inserted += lines[same + line];
  }
  if (removed == 1 && added >= 1) {
    module.ReplaceLine(same + 1, inserted);
  } else {
    if (removed > 0) module.DeleteLines(same + 1, removed);
    if (added > 0) module.InsertLines(same + 1, inserted);
  }
}

}  // namespace

void PaneText::SetText(std::string_view text) { ReplaceText(*module_, text); }

Selection PlainText::GetSelection() {
  const Place start = PlaceOf(text_->Text(), text_->Start());
  const Place end = PlaceOf(text_->Text(), text_->Start() + text_->Length());
  return {start.line, start.column, end.line, end.column};
}

void PlainText::SetSelection(const Selection& selection) {
  const int start = Offset(text_->Text(), selection.startLine, selection.startColumn);
  const int end = Offset(text_->Text(), selection.endLine, selection.endColumn);
  text_->Select(start, end - start);
}

}  // namespace brimwork::bench

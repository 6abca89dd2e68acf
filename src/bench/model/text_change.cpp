#include "bench/model/text_change.h"

#include <algorithm>
#include <span>
#include <string>
#include <vector>

#include "environment/text.h"

namespace brimwork::bench {
namespace {

using Lines = std::span<const std::string_view>;

int CommonStart(const ModuleText& text, Lines lines) {
  const int most = std::min(text.Count(), static_cast<int>(lines.size()));
  int common = 0;
  while (common < most && text.Line(common + 1) == lines[common]) ++common;
  return common;
}

int CommonEnd(const ModuleText& text, Lines lines, int commonStart) {
  const int count = static_cast<int>(lines.size());
  const int most = std::min(text.Count(), count) - commonStart;
  int common = 0;
  while (common < most && text.Line(text.Count() - common) == lines[count - common - 1]) ++common;
  return common;
}

std::string Joined(Lines lines) {
  std::string joined(lines.front());
  for (const std::string_view line : lines.subspan(1)) joined.append("\r\n").append(line);
  return joined;
}

/// Lines give way one to one; the last of them takes the lines that are more, or those that are too
/// many go behind it.
void Edit(MemoryCodeModule& module, const LineChange& change, Lines lines) {
  const int replaced = std::min(change.removed, change.inserted);
  if (replaced == 0 && change.inserted > 0) return module.InsertLines(change.first, Joined(lines));
  for (int i = 0; i + 1 < replaced; ++i) {
    module.ReplaceLine(change.first + i, lines[i]);
  }
  const int surplus = change.removed - replaced;
  if (surplus > 0) module.DeleteLines(change.first + replaced, surplus);
  if (replaced > 0) {
    module.ReplaceLine(change.first + replaced - 1, Joined(lines.subspan(replaced - 1)));
  }
}

}  // namespace

LineChange TakeOverText(MemoryCodeModule& module, std::string_view editorText) {
  const ModuleText& text = module.Text();
  const bool isEmpty = text.Count() == 0 || (text.Count() == 1 && text.Line(1).empty());
  if (editorText.empty() && isEmpty) return {};
  // An editor shows a module without lines and one of an empty line alike.
  const std::vector<std::string_view> lines =
      editorText.empty() ? std::vector<std::string_view>() : SplitLines(editorText);
  const int start = CommonStart(text, lines);
  const int end = CommonEnd(text, lines, start);
  const LineChange change{start + 1, text.Count() - start - end,
                          static_cast<int>(lines.size()) - start - end};
  if (change.removed == 0 && change.inserted == 0) return {};
  Edit(module, change, Lines(lines).subspan(start, change.inserted));
  return change;
}

}  // namespace brimwork::bench

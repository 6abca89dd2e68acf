#include "cli/inserted_lines.h"

#include <algorithm>

#include "cli/line_label.h"
#include "environment/text.h"

namespace brimwork {
namespace {

/// What stands in text in the place of each placeholder of pattern; "" when text is no such text.
std::string PlaceholderValue(std::string_view pattern, std::string_view placeholder,
                             std::string_view text) {
  std::size_t places = 0;
  for (auto at = pattern.find(placeholder); at != std::string_view::npos;
       at = pattern.find(placeholder, at + placeholder.size())) {
    ++places;
  }
  const std::size_t fixed = pattern.size() - places * placeholder.size();
  if (places == 0 || text.size() <= fixed || (text.size() - fixed) % places != 0) return {};
  const std::string value(text.substr(pattern.find(placeholder), (text.size() - fixed) / places));
  return Replace(pattern, placeholder, value) == text ? value : std::string();
}

bool IsProcedurePath(std::string_view path, std::string_view prefix) {
  return path.starts_with(prefix) && path.size() > prefix.size() &&
         path.substr(prefix.size()).find_first_of(" \t:'(\"") == std::string_view::npos;
}

}  // namespace

bool InsertedLines::Holds(int line, std::string_view expected) const {
  return line <= after_.Count() &&
         matcher_.SameCode(expected, after_.Line(line), line, Continues::kNothing);
}

bool InsertedLines::IsCopy(int line) const {
  const std::string_view text = after_.Line(line);
  return (line > 1 && after_.Line(line - 1) == text) ||
         (line < after_.Count() && after_.Line(line + 1) == text);
}

int InsertedLines::SeparatorAt(int line) const {
  const auto& expected = allowance_.separatorLines;
  const int count = static_cast<int>(expected.size());
  if (count == 0 || line + count - 1 > after_.Count()) return 0;
  for (int i = 0; i < count; ++i) {
    if (!EqualTrimmed(after_.Line(line + i), expected[static_cast<std::size_t>(i)])) return 0;
  }
  return count == 1 && IsCopy(line) ? 0 : count;
}

int InsertedLines::JumpAt(int line) const {
  if (!allowance_.handler) return 0;
  const bool resumes = allowance_.handler->resumeNext;
  return Holds(line, resumes ? "On Error Resume Next" : "On Error GoTo ErrorTrap") ? 1 : 0;
}

bool InsertedLines::HoldsExit(int line) const {
  return Holds(line, "Exit Sub") || Holds(line, "Exit Function") || Holds(line, "Exit Property");
}

int InsertedLines::HandlerBlockAt(int line) const {
  constexpr int kLinesAboveTemplate = 4;
  if (!allowance_.handler || allowance_.handler->resumeNext) return 0;
  const bool isBlock = Holds(line, "") && HoldsExit(line + 1) && Holds(line + 2, "") &&
                       Holds(line + 3, "ErrorTrap:") && HoldsTemplate(line + kLinesAboveTemplate);
  return isBlock ? kLinesAboveTemplate + static_cast<int>(allowance_.handler->templateLines.size())
                 : 0;
}

bool InsertedLines::HoldsTemplate(int firstLine) const {
  const HandlerAllowance& handler = *allowance_.handler;
  const std::string path = ProcedurePathIn(firstLine);
  int line = firstLine;
  for (const std::string& pattern : handler.templateLines) {
    const bool hasPlace = !path.empty() && Contains(pattern, handler.placeholder);
    if (!Holds(line++, hasPlace ? Replace(pattern, handler.placeholder, path) : pattern)) {
      return false;
    }
  }
  return true;
}

/// The path that the first line with a placeholder holds; "" when no line has one or no path stands
/// there, and then that line matches nothing.
std::string InsertedLines::ProcedurePathIn(int firstLine) const {
  const HandlerAllowance& handler = *allowance_.handler;
  if (handler.placeholder.empty()) return {};
  const auto& lines = handler.templateLines;
  const auto placed = std::find_if(lines.begin(), lines.end(), [&](const std::string& line) {
    return Contains(line, handler.placeholder);
  });
  const int line = firstLine + static_cast<int>(placed - lines.begin());
  if (placed == lines.end() || line > after_.Count()) return {};
  const std::string_view pattern = TrimBlanksAndTabs(*placed);
  const std::string_view text = TrimBlanksAndTabs(after_.Line(line));
  const auto unlabelled = SplitNumericLabel(text);
  for (const std::string_view candidate : {text, unlabelled ? unlabelled->rest : text}) {
    std::string path = PlaceholderValue(pattern, handler.placeholder, candidate);
    if (IsProcedurePath(path, handler.pathPrefix)) return path;
  }
  return {};
}

}  // namespace brimwork

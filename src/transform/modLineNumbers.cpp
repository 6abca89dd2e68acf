#include "transform/modLineNumbers.h"

#include <optional>
#include <string>

#include "environment/text.h"
#include "transform/code_source.h"

namespace brimwork {
namespace {

constexpr std::size_t kLabelWidth = 7;
constexpr std::string_view kNeutralIndent = "       ";
static_assert(kNeutralIndent.size() == kLabelWidth);

std::string LabelOf(int line) {
  std::string label = std::to_string(line) + ':';
  if (label.size() < kLabelWidth) label.append(kLabelWidth - label.size(), ' ');
  return label;
}

bool TakesNoNumber(std::string_view text, bool continuesStatement) {
  return continuesStatement || Contains(text, ":") || Contains(text, "Case") ||
         Contains(text, "End Select");
}

std::string Numbered(const std::string& text, int line, bool continuesStatement) {
  if (text.starts_with("ErrorTrap:")) return text;
  if (TakesNoNumber(text, continuesStatement)) return std::string(kNeutralIndent) + text;
  return LabelOf(line) + text;
}

/// The offset of the first colon in the first characters of the trimmed text. Only a colon that the
/// label's own width allows can end a label.
std::optional<std::size_t> LabelColon(std::string_view text) {
  const std::string_view trimmed = Trim(text);
  const auto colon = trimmed.substr(0, ByteOffset(trimmed, kLabelWidth)).find(':');
  if (colon == std::string_view::npos) return std::nullopt;
  return colon;
}

std::string_view Unnumbered(std::string_view text) {
  const auto colon = LabelColon(text);
  if (!colon) return Trim(text);
  // The colon was found in the trimmed text: with blanks in front it stands elsewhere, so such a
  // label is none of ours.
  if (text.starts_with(' ') || !IsNumeric(text.substr(0, *colon))) return text;
  return Trim(text.substr(*colon + 1));
}

}  // namespace

void AddLineNumbers(Context& context, int firstLine, int lastLine) {
  WithCodeSource(context.environment, [&](CodeModule& module) {
    bool continuesStatement = false;
    std::string text;
    for (int line = firstLine; line <= lastLine; ++line) {
      module.ReadLine(line, text);
      module.ReplaceLine(line, Numbered(text, line, continuesStatement));
      continuesStatement = text.ends_with('_');
    }
  });
}

void RemoveLineNumbers(Context& context, int firstLine, int lastLine) {
  WithCodeSource(context.environment, [&](CodeModule& module) {
    std::string text;
    for (int line = firstLine; line <= lastLine; ++line) {
      module.ReadLine(line, text);
      module.ReplaceLine(line, Unnumbered(text));
    }
  });
}

}  // namespace brimwork

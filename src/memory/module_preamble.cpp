#include "memory/module_preamble.h"

#include <optional>
#include <vector>

#include "environment/text.h"
#include "memory/attribute_line.h"
#include "memory/raw_line.h"
#include "memory/source_error.h"
#include "memory/source_text.h"

namespace brimwork {
namespace {

enum class Part { kBlank, kVersion, kObject, kBegin, kAttribute, kCode };

bool IsWordAlone(std::string_view text, std::string_view upperCaseWord) {
  return text.size() == upperCaseWord.size() && StartsWithIgnoringCase(text, upperCaseWord);
}

/// What follows the word and its blanks; nothing when text starts otherwise.
std::optional<std::string_view> BehindWord(std::string_view text, std::string_view upperCaseWord) {
  if (!StartsWithIgnoringCase(text, upperCaseWord)) return std::nullopt;
  const std::string_view rest = text.substr(upperCaseWord.size());
  const std::string_view behind = TrimLeft(rest, " \t");
  if (behind.size() == rest.size() && !rest.empty() && rest[0] != '=') return std::nullopt;
  return behind;
}

/// A Begin line names nothing or an object; `Begin = 1` is a property of that name.
bool OpensBlock(std::string_view trimmed) {
  const auto object = BehindWord(trimmed, "BEGIN");
  return object && !object->starts_with('=');
}

bool IsVersionLine(std::string_view trimmed) {
  const auto number = BehindWord(trimmed, "VERSION");
  return number && !number->empty() && (*number)[0] >= '0' && (*number)[0] <= '9';
}

bool IsObjectLine(std::string_view trimmed) {
  const auto value = BehindWord(trimmed, "OBJECT");
  return value && value->starts_with('=');
}

Part PartOf(std::string_view line) {
  const std::string_view trimmed = TrimBlanksAndTabs(line);
  if (trimmed.empty()) return Part::kBlank;
  if (IsVersionLine(trimmed)) return Part::kVersion;
  if (IsObjectLine(trimmed)) return Part::kObject;
  if (OpensBlock(trimmed)) return Part::kBegin;
  if (IsModuleAttribute(trimmed)) return Part::kAttribute;
  return Part::kCode;
}

class PreambleReader {
 public:
  PreambleReader(std::string_view text, const std::string& path) : rest_(text), path_(path) {}

  ModulePreamble Read() {
    const std::size_t whole = rest_.size();
    if (rest_.starts_with(kByteOrderMark)) rest_.remove_prefix(kByteOrderMark.size());
    preamble_.size = whole - rest_.size();
    while (!rest_.empty() && TakePart()) {
      // Blank lines belong to the preamble only when more of it follows them.
      if (lastPart_ == Part::kBlank) continue;
      preamble_.size = whole - rest_.size();
      preamble_.lines = line_;
    }
    return std::move(preamble_);
  }

 private:
  /// False at the first line of the module itself.
  bool TakePart() {
    const std::string_view line = Next();
    const Part part = PartOf(line);
    const bool isFirst = lastPart_ == Part::kBlank && preamble_.lines == 0;
    if (part == Part::kCode || (part == Part::kVersion && !isFirst)) return false;
    if (part == Part::kAttribute) {
      hasAttributes_ = true;
      if (preamble_.moduleName.empty()) preamble_.moduleName = ModuleNameIn(line);
    } else if (part != Part::kBlank && hasAttributes_) {
      return false;
    }
    if (part == Part::kBegin) SkipBlock();
    lastPart_ = part;
    return true;
  }

  void SkipBlock() {
    std::vector<int> openLines{line_};
    while (!openLines.empty()) {
      const bool isCutOff = rest_.empty();
      const std::string_view line = isCutOff ? rest_ : TrimBlanksAndTabs(Next());
      // No block holds an attribute: what should have closed this one is missing above it.
      if (isCutOff || IsModuleAttribute(line)) {
        throw SourceError(path_, openLines.back(), 1,
                          "this Begin has no End; put the file's missing lines back");
      }
      if (OpensBlock(line)) {
        openLines.push_back(line_);
      } else if (IsWordAlone(line, "END")) {
        openLines.pop_back();
      }
    }
  }

  std::string_view Next() {
    ++line_;
    return TakeLine(rest_).text;
  }

  std::string_view rest_;
  const std::string& path_;
  ModulePreamble preamble_;
  int line_ = 0;
  Part lastPart_ = Part::kBlank;
  bool hasAttributes_ = false;
};

}  // namespace

ModulePreamble ReadPreamble(std::string_view text, const std::string& path) {
  return PreambleReader(text, path).Read();
}

}  // namespace brimwork

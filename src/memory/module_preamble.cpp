#include "memory/module_preamble.h"

#include <algorithm>
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

struct LaidOutObject {
  std::string_view objectClass;
  std::string_view name;  // "" where none is given
};

/// What `Begin VB.Form frmDesk` says.
LaidOutObject ObjectOn(std::string_view beginLine) {
  const std::string_view object = BehindWord(TrimBlanksAndTabs(beginLine), "BEGIN").value_or("");
  const auto classEnd = std::min(object.find_first_of(" \t"), object.size());
  return {object.substr(0, classEnd), TrimBlanksAndTabs(object.substr(classEnd))};
}

class PreambleReader {
 public:
  PreambleReader(std::string_view text, const std::string& path)
      : start_(text.data()), rest_(text), path_(path) {}

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
      if (preamble_.moduleName.empty()) NoteName(line);
    } else if (part != Part::kBlank && hasAttributes_) {
      return false;
    }
    if (part == Part::kBegin) {
      NoteObject(line);
      SkipBlock();
    }
    lastPart_ = part;
    return true;
  }

  void NoteName(std::string_view line) {
    preamble_.moduleName = ModuleNameIn(line);
    if (preamble_.moduleName.empty()) return;
    preamble_.nameInAttribute =
        SpanOf(line.substr(line.find('"') + 1, preamble_.moduleName.size()));
  }

  void NoteObject(std::string_view line) {
    if (!preamble_.objectClass.empty()) return;
    const LaidOutObject object = ObjectOn(line);
    preamble_.objectClass = object.objectClass;
    preamble_.nameInLayout = SpanOf(object.name);
  }

  TextSpan SpanOf(std::string_view part) const {
    return {static_cast<std::size_t>(part.data() - start_), part.size()};
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

  const char* start_;
  std::string_view rest_;
  const std::string& path_;
  ModulePreamble preamble_;
  int line_ = 0;
  Part lastPart_ = Part::kBlank;
  bool hasAttributes_ = false;
};

/// The preamble with an attribute that names the module behind it.
std::string Named(std::string preamble, std::string_view name, std::string_view lineEnd) {
  const bool isOpen = !preamble.empty() && preamble != kByteOrderMark && !preamble.ends_with('\n');
  if (isOpen) preamble += lineEnd;
  return preamble.append("Attribute VB_Name = \"").append(name).append("\"").append(lineEnd);
}

}  // namespace

ModulePreamble ReadPreamble(std::string_view text, const std::string& path) {
  return PreambleReader(text, path).Read();
}

std::string WithModuleName(std::string_view text, const ModulePreamble& preamble,
                           std::string_view name) {
  std::string renamed(text.substr(0, preamble.size));
  if (preamble.moduleName.empty()) return Named(std::move(renamed), name, FirstLineEnd(text));
  // The layout stands above the attribute.
  const TextSpan& attribute = preamble.nameInAttribute;
  renamed.replace(attribute.offset, attribute.size, name);
  const TextSpan& layout = preamble.nameInLayout;
  const bool isNamedSo = text.substr(layout.offset, layout.size) == preamble.moduleName;
  if (isNamedSo) renamed.replace(layout.offset, layout.size, name);
  return renamed;
}

}  // namespace brimwork

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
    if (part == Part::kBegin) {
      if (preamble_.objectClass.empty()) preamble_.objectClass = ObjectOn(line).objectClass;
      SkipBlock();
    }
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

/// Copies a preamble and puts the new name in its places.
class PreambleRenamer {
 public:
  PreambleRenamer(std::string_view preamble, std::string_view oldName, std::string_view newName)
      : rest_(preamble), oldName_(oldName), newName_(newName) {}

  std::string Rename() {
    renamed_.assign(TakeMark());
    while (!rest_.empty()) AddLine();
    if (!isNamed_) AddAttribute();
    return std::move(renamed_);
  }

 private:
  std::string_view TakeMark() {
    const std::string_view mark =
        rest_.substr(0, rest_.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0);
    rest_.remove_prefix(mark.size());
    return mark;
  }

  void AddLine() {
    const char* const start = rest_.data();
    const std::string_view line = TakeLine(rest_).text;
    const std::string_view whole(start, static_cast<std::size_t>(rest_.data() - start));
    if (whole.size() > line.size()) lineEnd_ = whole.substr(line.size());
    const std::string_view name = NamePlaceOn(line);
    if (name.data() == nullptr) {
      renamed_.append(whole);
      return;
    }
    const auto before = static_cast<std::size_t>(name.data() - start);
    renamed_.append(whole.substr(0, before)).append(newName_);
    renamed_.append(whole.substr(before + name.size()));
  }

  /// Where the line names the module, a null view when it does not.
  std::string_view NamePlaceOn(std::string_view line) {
    if (!isNamed_ && !oldName_.empty() && ModuleNameIn(line) == oldName_) {
      isNamed_ = true;
      return line.substr(line.find('"') + 1, oldName_.size());
    }
    if (isLaidOut_ || !OpensBlock(TrimBlanksAndTabs(line))) return {};
    isLaidOut_ = true;
    const std::string_view object = ObjectOn(line).name;
    return object == oldName_ && !object.empty() ? object : std::string_view();
  }

  void AddAttribute() {
    if (!renamed_.empty() && !renamed_.ends_with('\n') && renamed_ != kByteOrderMark)
      renamed_ += lineEnd_;
    renamed_.append("Attribute VB_Name = \"").append(newName_).append("\"").append(lineEnd_);
  }

  std::string_view rest_;
  std::string_view oldName_;
  std::string_view newName_;
  std::string_view lineEnd_ = "\r\n";
  std::string renamed_;
  bool isNamed_ = false;
  bool isLaidOut_ = false;
};

}  // namespace

ModulePreamble ReadPreamble(std::string_view text, const std::string& path) {
  return PreambleReader(text, path).Read();
}

std::string WithModuleName(std::string_view text, const ModulePreamble& preamble,
                           std::string_view name) {
  return PreambleRenamer(text.substr(0, preamble.size), preamble.moduleName, name).Rename();
}

}  // namespace brimwork

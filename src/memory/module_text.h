// The lines of one module as a gap buffer: an edit costs what lies between it and the edit before
// it, so commands that move down a module cost the same for each line however long the module is.
//
// Lines point into the text that the module was read from until they are edited; an edited line
// points into blocks of this object's own. What the file holds beside a line's text (its line end,
// the hidden lines behind it) rides on the line, so that it stays in place through every edit.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace brimwork {

/// How a line ends on disk. A new line has kFileStyle: it takes the file's own.
enum class LineEnd : std::uint8_t { kFileStyle = 0, kCrLf = 1, kLf = 2 };

/// Names a hidden line to whoever read the file; this object only keeps it in its place.
using HiddenLine = std::uint32_t;

class ModuleText {
 public:
  ModuleText() = default;

  /// original holds the text that AppendOriginal's lines point into.
  explicit ModuleText(std::shared_ptr<const std::string> original);

  /// A module of this text; a final line end ends the last line, an empty text has no lines.
  static ModuleText FromText(std::string text);

  ModuleText(ModuleText&&) = default;
  ModuleText& operator=(ModuleText&&) = default;

  // Building, before the first edit.
  void Reserve(std::size_t lines);
  void AppendOriginal(std::string_view line, LineEnd end);
  /// Hangs a hidden line behind the last line appended (before line 1 when there is none).
  void AppendHidden(HiddenLine hidden);

  // Lines are numbered from 1; the caller has checked them.
  int Count() const { return static_cast<int>(slots_.size() - GapSize()); }
  std::string_view Line(int line) const { return Slot(line).Text(); }
  LineEnd End(int line) const { return Slot(line).End(); }
  /// The hidden lines behind a line, in order; line 0 has those before line 1.
  std::span<const HiddenLine> HiddenBehind(int line) const {
    const std::uint32_t group = line == 0 ? hiddenBeforeFirst_ : Slot(line).HiddenGroup();
    if (group == 0) return {};
    return hiddenGroups_[group];
  }

  // text must not point into this object's own lines.

  /// text may hold several lines; the line's end and hidden lines go behind the last of them.
  void Replace(int line, std::string_view text);
  /// Inserts before line, or appends when line is Count() + 1.
  void Insert(int line, std::string_view text);
  /// Hidden lines of a deleted line go behind the line above it.
  void Delete(int line, int count);

  /// True as long as no text with other characters than ASCII was written into the module.
  bool StoredAsciiOnly() const { return storedAsciiOnly_; }

  /// All lines with CR LF between them.
  std::string Joined() const { return Count() > 0 ? Joined(1, Count()) : std::string(); }
  /// Lines first to last, which there are, with CR LF between them.
  std::string Joined(int first, int last) const;

 private:
  struct TextLine {
    const char* data = "";
    std::uint32_t size = 0;
    std::uint32_t tail = 0;  // line end in the low two bits, hidden group above them

    std::string_view Text() const { return {data, size}; }
    LineEnd End() const { return static_cast<LineEnd>(tail & 3); }
    std::uint32_t HiddenGroup() const { return tail >> 2; }
    void SetHiddenGroup(std::uint32_t group) { tail = group << 2 | (tail & 3); }
  };

  /// Lines that can be copied as one.
  struct Stretch {
    std::string_view text;  // without the last one's end
    int last;
  };

  static constexpr std::size_t kSpareSlots = 64;

  std::size_t GapSize() const { return gapEnd_ - gapStart_; }
  const TextLine& Slot(int line) const {
    const auto at = static_cast<std::size_t>(line - 1);
    return slots_[at < gapStart_ ? at : at + GapSize()];
  }
  TextLine& Slot(int line) { return const_cast<TextLine&>(std::as_const(*this).Slot(line)); }

  Stretch StretchAt(int line, int last) const;
  void MoveGap(std::size_t to, std::size_t atLeast);
  void SetText(TextLine& slot, std::string_view text);
  const char* Store(std::string_view text);
  void Compact();
  bool IsOwn(const TextLine& slot) const;
  void HangBehind(int line, std::uint32_t group);

  std::shared_ptr<const std::string> original_;
  std::vector<TextLine> slots_;
  std::size_t gapStart_ = 0;
  std::size_t gapEnd_ = 0;

  std::vector<std::unique_ptr<char[]>> blocks_;
  char* blockNext_ = nullptr;
  std::size_t blockLeft_ = 0;
  std::size_t storedBytes_ = 0;  // in blocks_, dead ones included
  std::size_t liveBytes_ = 0;    // of lines that point into blocks_
  bool storedAsciiOnly_ = true;

  std::vector<std::vector<HiddenLine>> hiddenGroups_{{}};  // group 0 is empty
  std::uint32_t hiddenBeforeFirst_ = 0;
};

}  // namespace brimwork

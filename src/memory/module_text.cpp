#include "memory/module_text.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <utility>

#include "environment/byte_words.h"
#include "environment/run_time_error.h"
#include "environment/text.h"
#include "environment/utf8.h"
#include "memory/huge_pages.h"

namespace brimwork {
namespace {

constexpr std::string_view kCrLf = "\r\n";

constexpr std::size_t kFirstBlockBytes = 256 * 1024;
constexpr std::size_t kLargestBlockBytes = 16 * 1024 * 1024;

}  // namespace

ModuleText::ModuleText(std::shared_ptr<const std::string> original)
    : original_(std::move(original)) {}

ModuleText ModuleText::FromText(std::string text) {
  auto original = std::make_shared<const std::string>(std::move(text));
  std::string_view rest = *original;
  ModuleText module(original);
  while (!rest.empty()) {
    const auto end = rest.find('\n');
    std::string_view line = rest.substr(0, end);
    const bool crLf = end != std::string_view::npos && line.ends_with('\r');
    if (crLf) line.remove_suffix(1);
    module.AppendOriginal(line, crLf ? LineEnd::kCrLf : LineEnd::kLf);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  }
  return module;
}

void ModuleText::Reserve(std::size_t lines) {
  slots_.reserve(lines + kSpareSlots);
  PreferHugePages(slots_.data(), slots_.capacity() * sizeof(TextLine));
}

void ModuleText::AppendOriginal(std::string_view line, LineEnd end) {
  if (line.size() > std::numeric_limits<std::uint32_t>::max()) {
    throw RunTimeError(error_number::kOverflow, "a line is longer than 4 GB", Count() + 1);
  }
  slots_.push_back(
      {line.data(), static_cast<std::uint32_t>(line.size()), static_cast<std::uint32_t>(end)});
  gapStart_ = gapEnd_ = slots_.size();
}

void ModuleText::AppendHidden(HiddenLine hidden) {
  hiddenGroups_.push_back({hidden});
  HangBehind(Count(), static_cast<std::uint32_t>(hiddenGroups_.size() - 1));
}

void ModuleText::Replace(int line, std::string_view text) {
  const bool isPlain = !HoldsLineFeedOrNonAscii(text);
  storedAsciiOnly_ = storedAsciiOnly_ && (isPlain || FindNonAscii(text, 0) == text.size());
  if (isPlain || !Contains(text, "\n")) {
    TextLine& slot = Slot(line);
    if (slot.Text() != text) SetText(slot, text);
    return;
  }
  const std::string_view last = SplitLines(text).back();
  std::string_view above = text.substr(0, text.size() - last.size() - 1);
  if (above.ends_with('\r')) above.remove_suffix(1);
  SetText(Slot(line), last);
  Insert(line, above);
}

void ModuleText::Insert(int line, std::string_view text) {
  const std::vector<std::string_view> lines = SplitLines(text);
  storedAsciiOnly_ = storedAsciiOnly_ && FindNonAscii(text, 0) == text.size();
  MoveGap(static_cast<std::size_t>(line - 1), lines.size());
  for (std::string_view inserted : lines) {
    TextLine slot;
    SetText(slot, inserted);
    slots_[gapStart_++] = slot;
  }
}

void ModuleText::Delete(int line, int count) {
  MoveGap(static_cast<std::size_t>(line - 1), 0);
  for (int i = 0; i < count; ++i) {
    const TextLine removed = slots_[gapEnd_++];
    if (IsOwn(removed)) liveBytes_ -= removed.size;
    if (removed.HiddenGroup() != 0) HangBehind(line - 1, removed.HiddenGroup());
  }
}

std::string ModuleText::Joined(int first, int last) const {
  std::size_t size = 0;
  for (int line = first; line <= last; ++line) size += Line(line).size() + kCrLf.size();
  std::string joined;
  joined.reserve(size);
  PreferHugePages(joined.data(), size);
  for (int line = first; line <= last;) {
    const Stretch stretch = StretchAt(line, last);
    joined.append(stretch.text).append(kCrLf);
    line = stretch.last + 1;
  }
  joined.resize(size - kCrLf.size());
  return joined;
}

/// The lines from one on that stand in memory as they are to be joined. Most of a module that was
/// read does.
ModuleText::Stretch ModuleText::StretchAt(int line, int last) const {
  const char* const start = Line(line).data();
  const char* end = start + Line(line).size();
  for (; line < last; ++line) {
    const std::string_view next = Line(line + 1);
    if (next.data() != end + kCrLf.size() || std::memcmp(end, kCrLf.data(), kCrLf.size()) != 0)
      break;
    end = next.data() + next.size();
  }
  return {{start, static_cast<std::size_t>(end - start)}, line};
}

void ModuleText::MoveGap(std::size_t to, std::size_t atLeast) {
  if (GapSize() < atLeast) {
    const std::size_t more = std::max(atLeast, kSpareSlots + slots_.size() / 8);
    slots_.insert(slots_.begin() + static_cast<std::ptrdiff_t>(gapEnd_), more, TextLine{});
    gapEnd_ += more;
  }
  if (to == gapStart_) return;
  const auto at = [this](std::size_t slot) {
    return slots_.begin() + static_cast<std::ptrdiff_t>(slot);
  };
  if (to < gapStart_) {
    std::move_backward(at(to), at(gapStart_), at(gapEnd_));
    gapEnd_ -= gapStart_ - to;
  } else {
    std::move(at(gapEnd_), at(gapEnd_ + (to - gapStart_)), at(gapStart_));
    gapEnd_ += to - gapStart_;
  }
  gapStart_ = to;
}

void ModuleText::SetText(TextLine& slot, std::string_view text) {
  if (IsOwn(slot) && text.size() <= slot.size) {
    // Rewriting a line in its own place costs no fresh memory.
    std::memcpy(const_cast<char*>(slot.data), text.data(), text.size());
    liveBytes_ -= slot.size - text.size();
    slot.size = static_cast<std::uint32_t>(text.size());
    return;
  }
  const char* const stored = Store(text);
  if (IsOwn(slot)) liveBytes_ -= slot.size;
  slot.data = stored;
  slot.size = static_cast<std::uint32_t>(text.size());
  liveBytes_ += text.size();
}

const char* ModuleText::Store(std::string_view text) {
  if (storedBytes_ > 4 * liveBytes_ + 16 * kFirstBlockBytes) Compact();
  if (text.empty()) return "";
  if (text.size() > blockLeft_) {
    const std::size_t wanted = std::clamp(storedBytes_ / 2, kFirstBlockBytes, kLargestBlockBytes);
    blockLeft_ = std::max(text.size(), wanted);
    blocks_.push_back(std::make_unique_for_overwrite<char[]>(blockLeft_));
    blockNext_ = blocks_.back().get();
    PreferHugePages(blockNext_, blockLeft_);
  }
  char* const stored = blockNext_;
  std::memcpy(stored, text.data(), text.size());
  blockNext_ += text.size();
  blockLeft_ -= text.size();
  storedBytes_ += text.size();
  return stored;
}

/// Copies the living lines into new blocks and drops the dead ones with the old.
void ModuleText::Compact() {
  const auto old = std::exchange(blocks_, {});
  blockLeft_ = 0;
  storedBytes_ = liveBytes_ = 0;
  for (std::size_t i = 0; i < slots_.size(); ++i) {
    if (i == gapStart_) i = gapEnd_;
    if (i == slots_.size()) break;
    if (!IsOwn(slots_[i])) continue;
    slots_[i].data = Store(slots_[i].Text());
    liveBytes_ += slots_[i].size;
  }
}

bool ModuleText::IsOwn(const TextLine& slot) const {
  if (slot.size == 0) return false;
  if (!original_) return true;
  const char* const begin = original_->data();
  return std::less<>{}(slot.data, begin) || !std::less<>{}(slot.data, begin + original_->size());
}

void ModuleText::HangBehind(int line, std::uint32_t group) {
  const std::uint32_t before = line == 0 ? hiddenBeforeFirst_ : Slot(line).HiddenGroup();
  std::uint32_t both = group;
  if (before != 0) {
    auto& lines = hiddenGroups_[before];
    lines.insert(lines.end(), hiddenGroups_[group].begin(), hiddenGroups_[group].end());
    both = before;
  }
  if (line == 0) {
    hiddenBeforeFirst_ = both;
  } else {
    Slot(line).SetHiddenGroup(both);
  }
}

}  // namespace brimwork

#include "export/word_positions.h"

#include <functional>
#include <utility>

namespace brimwork {
namespace {

constexpr std::size_t kFirstSlots = 1024;  // a power of two, as every later number of slots

}  // namespace

WordPositions::WordPositions() : slots_(kFirstSlots) {}

std::uint64_t WordPositions::HashOf(std::string_view word) {
  return std::hash<std::string_view>()(word);
}

void WordPositions::Fill(Slot& slot, std::string_view word, const Key& key, int position) {
  slot = {key.first, key.last, key.size, static_cast<std::uint32_t>(words_.size()), position, true};
  if (!key.IsWholeWord()) words_ += word;
  ++count_;
}

void WordPositions::Grow() {
  const std::vector<Slot> old = std::exchange(slots_, std::vector<Slot>(slots_.size() * 2));
  for (const Slot& slot : old) {
    if (slot.isUsed) slots_[SlotOf(WordOf(slot), slot.Word())] = slot;
  }
}

}  // namespace brimwork

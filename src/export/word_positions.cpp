#include "export/word_positions.h"

#include <cstring>

namespace brimwork {
namespace {

constexpr std::size_t kFirstSlots = 1024;  // a power of two, as every later number of slots

constexpr std::uint64_t kMix = 0x9E3779B97F4A7C15;

std::uint64_t Mixed(std::uint64_t hash, std::uint64_t word) {
  hash = (hash ^ word) * kMix;
  return hash ^ (hash >> 32);
}

}  // namespace

WordPositions::WordPositions() : slots_(kFirstSlots) {}

std::uint64_t WordPositions::HashOf(std::string_view word) {
  std::uint64_t hash = word.size();
  std::uint64_t eight = 0;
  while (word.size() >= sizeof eight) {
    std::memcpy(&eight, word.data(), sizeof eight);
    hash = Mixed(hash, eight);
    word.remove_prefix(sizeof eight);
  }
  eight = 0;
  std::memcpy(&eight, word.data(), word.size());
  return Mixed(hash, eight);
}

std::size_t WordPositions::SlotOf(std::string_view word, std::uint64_t hash) const {
  const std::size_t last = slots_.size() - 1;
  std::size_t at = hash & last;
  while (slots_[at].isUsed && !(slots_[at].hash == hash && WordOf(slots_[at]) == word)) {
    at = (at + 1) & last;
  }
  return at;
}

void WordPositions::Fill(Slot& slot, std::string_view word, std::uint64_t hash, int position) {
  slot = {hash, static_cast<std::uint32_t>(words_.size()), static_cast<std::uint32_t>(word.size()),
          position, true};
  words_ += word;
  ++count_;
}

void WordPositions::Grow() {
  std::vector<Slot> old(slots_.size() * 2);
  old.swap(slots_);
  for (const Slot& slot : old) {
    if (slot.isUsed) slots_[SlotOf(WordOf(slot), slot.hash)] = slot;
  }
}

}  // namespace brimwork

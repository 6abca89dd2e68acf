// Numbers values in the order in which they are met, for texts that name the same few again and
// again.
#pragma once

#include <array>
#include <cstddef>
#include <unordered_map>
#include <vector>

namespace brimwork {

/// Value: an unsigned number.
template <class Value>
class NumberTable {
 public:
  /// The value's number, from 0; a new one when the value is new.
  int NumberOf(Value value) {
    Recent& recent = recent_[SlotOf(value)];
    if (recent.number < 0 || recent.value != value) recent = {value, SearchedNumberOf(value)};
    return recent.number;
  }

  /// In the order of their numbers.
  const std::vector<Value>& Values() const { return values_; }

 private:
  struct Recent {
    Value value = 0;
    int number = -1;
  };

  static constexpr std::size_t kRecent = 16;

  static std::size_t SlotOf(Value value) {
    return value * std::size_t{0x9E3779B1} >> 20 & (kRecent - 1);
  }

  int SearchedNumberOf(Value value) {
    const auto [known, isNew] = numbers_.try_emplace(value, static_cast<int>(values_.size()));
    if (isNew) values_.push_back(value);
    return known->second;
  }

  std::array<Recent, kRecent> recent_;
  std::unordered_map<Value, int> numbers_;
  std::vector<Value> values_;
};

}  // namespace brimwork

// Finds the byte of a character of UTF-8 text and the character of a byte. The last place found is
// remembered: what is near it costs the way to it, and in ASCII text nothing is counted at all.
#pragma once

#include <cstddef>
#include <string_view>

namespace brimwork {

/// Each call is handed the text, which is valid UTF-8.
class CharacterPositions {
 public:
  /// Starts over with another text.
  void Reset(std::string_view text);

  bool IsAscii(std::string_view text) const { return count_ == text.size(); }

  int Count() const { return static_cast<int>(count_); }

  /// Byte at which a character starts, or the text's end; position is at most Count().
  std::size_t ByteOf(std::string_view text, int position) const {
    const auto target = static_cast<std::size_t>(position);
    return IsAscii(text) ? target : SearchByte(text, target);
  }

  /// Number of characters in front of the byte at which one starts.
  int PositionOf(std::string_view text, std::size_t byte) const {
    return static_cast<int>(IsAscii(text) ? byte : SearchPosition(text, byte));
  }

  /// Bytes of the text are about to be replaced by others.
  void Replace(std::string_view text, std::size_t start, std::size_t end, std::string_view added);

 private:
  struct Place {
    std::size_t byte = 0;
    std::size_t position = 0;
  };

  std::size_t SearchByte(std::string_view text, std::size_t target) const;
  std::size_t SearchPosition(std::string_view text, std::size_t byte) const;
  Place Nearest(std::string_view text, std::size_t Place::*measure, std::size_t target) const;

  static Place Forward(std::string_view text, Place place, std::size_t position);
  static Place Backward(std::string_view text, Place place, std::size_t position);

  std::size_t count_ = 0;
  mutable Place last_;
};

}  // namespace brimwork

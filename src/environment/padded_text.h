// Text with room behind it, so that short pieces are read and written a fixed number of bytes at a
// time instead of letter by letter.
#pragma once

#include <algorithm>
#include <cstring>
#include <memory>
#include <string_view>

namespace brimwork {

/// A text that grows at its end and is emptied again and again.
class PaddedText {
 public:
  /// So many bytes behind the text can be read; what they hold is not said.
  static constexpr std::size_t kPadding = 16;

  PaddedText() { MakeRoom(0); }

  std::string_view View() const { return {data_.get(), size_}; }
  const char* Data() const { return data_.get(); }
  std::size_t Size() const { return size_; }

  void Clear() { size_ = 0; }

  void Append(std::string_view text) {
    char* const end = EndWithRoomFor(text.size());
    std::memcpy(end, text.data(), text.size());
    size_ += text.size();
  }

  /// text: with readable padding behind it.
  void AppendPadded(std::string_view text) {
    char* const end = EndWithRoomFor(text.size());
    std::memcpy(end, text.data(), kPadding);
    for (std::size_t copied = kPadding; copied < text.size(); copied += kPadding) {
      std::memcpy(end + copied, text.data() + copied, kPadding);
    }
    size_ += text.size();
  }

  void Append(char c) {
    *EndWithRoomFor(1) = c;
    ++size_;
  }

 private:
  char* EndWithRoomFor(std::size_t more) {
    if (room_ - size_ < more) [[unlikely]]
      MakeRoom(size_ + more);
    return data_.get() + size_;
  }

  void MakeRoom(std::size_t atLeast) {
    constexpr std::size_t kFirstRoom = 1024;
    room_ = std::max({atLeast, 2 * room_, kFirstRoom});
    auto larger = std::make_unique_for_overwrite<char[]>(room_ + kPadding);
    if (size_ > 0) std::memcpy(larger.get(), data_.get(), size_);
    data_ = std::move(larger);
  }

  std::unique_ptr<char[]> data_;
  std::size_t size_ = 0;
  std::size_t room_ = 0;
};

}  // namespace brimwork

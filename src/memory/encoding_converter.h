// The system's converter from one text encoding to another.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace brimwork {

class EncodingConverter {
 public:
  enum class Outcome {
    kComplete,
    kInvalid,   // text holds what is not in one of the encodings
    kTruncated  // text ends within a character
  };

  struct Result {
    std::string converted;
    std::size_t consumed = 0;  // bytes before the one that could not be converted
    Outcome outcome = Outcome::kComplete;
  };

  /// Throws std::invalid_argument when the system knows one of the two encodings not.
  EncodingConverter(const std::string& from, const std::string& to);

  /// Converts a whole text: each call starts and ends in the encodings' initial state.
  Result Convert(std::string_view text);

 private:
  struct Close {
    void operator()(void* descriptor) const;
  };
  std::unique_ptr<void, Close> descriptor_;
};

}  // namespace brimwork

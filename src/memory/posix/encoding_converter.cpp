#include "memory/encoding_converter.h"

#include <iconv.h>

#include <array>
#include <cerrno>
#include <stdexcept>

namespace brimwork {
namespace {

constexpr std::size_t kFailed = static_cast<std::size_t>(-1);

iconv_t Open(const std::string& from, const std::string& to) {
  const iconv_t descriptor = iconv_open(to.c_str(), from.c_str());
  if (descriptor == reinterpret_cast<iconv_t>(-1)) {
    throw std::invalid_argument("no conversion from " + from + " to " + to);
  }
  return descriptor;
}

}  // namespace

void EncodingConverter::Close::operator()(void* descriptor) const { iconv_close(descriptor); }

EncodingConverter::EncodingConverter(const std::string& from, const std::string& to)
    : descriptor_(Open(from, to)) {}

EncodingConverter::Result EncodingConverter::Convert(std::string_view text) {
  Result result;
  std::array<char, 4096> buffer;
  char* input = const_cast<char*>(text.data());  // iconv takes a char**, but writes nothing there
  std::size_t inputLeft = text.size();
  iconv(descriptor_.get(), nullptr, nullptr, nullptr, nullptr);
  for (bool flushing = false;;) {
    char* output = buffer.data();
    std::size_t outputLeft = buffer.size();
    const std::size_t irreversible =
        iconv(descriptor_.get(), flushing ? nullptr : &input, &inputLeft, &output, &outputLeft);
    const int error = errno;
    result.converted.append(buffer.data(), buffer.size() - outputLeft);
    if (irreversible == kFailed && error == E2BIG) continue;
    if (irreversible != 0) {
      result.outcome =
          irreversible == kFailed && error == EINVAL ? Outcome::kTruncated : Outcome::kInvalid;
      break;
    }
    if (flushing) break;
    flushing = true;  // what the converter still holds back, and the way to the initial state
  }
  result.consumed = text.size() - inputLeft;
  return result;
}

}  // namespace brimwork

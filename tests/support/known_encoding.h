// Encodings that one system knows and another does not.
#pragma once

#include <stdexcept>
#include <string>

#include "memory/text_codec.h"

namespace brimwork {

/// What some system under test may not know; the others are known everywhere.
inline constexpr const char* kRareEncodings[] = {
    "GB18030", "ISO-2022-JP", "UTF-32LE", "IBM1141", "BIG5-HKSCS", "EUC-JISX0213", "JOHAB"};

inline bool IsKnownEncoding(const std::string& encoding) {
  try {
    const TextCodec codec(encoding);
    return true;
  } catch (const std::invalid_argument&) {
    return false;
  }
}

}  // namespace brimwork

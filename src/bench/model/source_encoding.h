// The encoding of files without a byte-order mark.
#pragma once

namespace brimwork::bench {

inline constexpr const char* kSourceEncoding = "WINDOWS-1252";

}  // namespace brimwork::bench

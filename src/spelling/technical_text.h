// What stands among the words of a text and is none: addresses, paths, names, codes.
#pragma once

#include <cstddef>
#include <string_view>

namespace brimwork {

/// True for a stretch without blanks that is an address of the net or of mail, a path, the name of
/// a file or a member (readme.txt, Form1.Caption), or a GUID.
bool IsTechnical(std::string_view chunk);

/// True for a word of text, from offset to end, that is the letters of a format code (%ld), of an
/// environment variable (%TEMP%), of a hexadecimal number (&HFF) or of an entity (&nbsp;).
bool IsCode(std::string_view text, std::size_t offset, std::size_t end);

}  // namespace brimwork

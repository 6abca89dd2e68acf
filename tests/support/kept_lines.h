// Whether a command kept every line that the user wrote. Layout may change, line numbers may come
// and go, and lines may be put between; the user's own lines stay, in their order.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brimwork {

/// The line without indent, trailing blanks, and a line number of its own ("120:").
std::string_view WithoutNumber(std::string_view line);

/// Whether a command could have left the line `before` as the line `after`: only the layout or the
/// line number differs, or, in a closing line, the comment.
bool IsSameLine(std::string_view before, std::string_view after);

/// The first line of `before` that is missing in `after`, or nothing when all are there in their
/// order. Blank lines do not count.
std::optional<std::string> FirstLostLine(std::string_view before, std::string_view after);

/// The number of lines that hold more than blanks and a line number.
int CountWrittenLines(std::string_view text);

}  // namespace brimwork

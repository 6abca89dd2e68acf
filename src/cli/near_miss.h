// "Did you mean": the known word nearest to a mistyped one.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace brimwork {

/// `, did you mean "..."?` for a word within a few letters of a known one (letters in any case), ""
/// when none is near.
std::string NearMissHint(std::string_view word, std::span<const std::string_view> known);

}  // namespace brimwork

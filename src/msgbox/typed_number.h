// A number that the user types into a box, or leaves out.
#pragma once

#include <cstdint>
#include <string_view>

namespace brimwork {

/// What stands for a number that is not there.
inline constexpr int kNotSet = -1;

/// The number in text as a whole one of 16 bits; a half goes to the even number beside it. kNotSet
/// for an empty text and for what is no decimal number or does not fit.
std::int16_t TypedInteger(std::string_view text);

/// The same with 32 bits.
std::int32_t TypedLong(std::string_view text);

}  // namespace brimwork

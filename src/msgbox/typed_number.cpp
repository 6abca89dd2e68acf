#include "msgbox/typed_number.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>

#include "environment/text.h"

namespace brimwork {
namespace {

template <class Integer>
Integer TypedNumber(std::string_view text) {
  if (!IsNumeric(text) || Contains(text, "&")) return kNotSet;
  std::string decimal(Trim(text));
  std::ranges::replace_if(
      decimal, [](char c) { return ToUpperAscii(c) == 'D'; }, 'e');
  const double value = std::nearbyint(std::strtod(decimal.c_str(), nullptr));
  const bool fits =
      value >= std::numeric_limits<Integer>::min() && value <= std::numeric_limits<Integer>::max();
  return fits ? static_cast<Integer>(value) : Integer{kNotSet};
}

}  // namespace

std::int16_t TypedInteger(std::string_view text) { return TypedNumber<std::int16_t>(text); }

std::int32_t TypedLong(std::string_view text) { return TypedNumber<std::int32_t>(text); }

}  // namespace brimwork

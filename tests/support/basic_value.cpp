#include "support/basic_value.h"

#include <cmath>
#include <limits>
#include <stdexcept>

#include "environment/run_time_error.h"
#include "environment/text.h"

namespace brimwork {
namespace {

[[noreturn]] void RaiseTypeMismatch() {
  throw RunTimeError(error_number::kTypeMismatch, "Type mismatch");
}

template <class Integer>
Integer Fitted(double number) {
  const double rounded = std::nearbyint(number);
  if (rounded < std::numeric_limits<Integer>::min() ||
      rounded > std::numeric_limits<Integer>::max()) {
    throw RunTimeError(error_number::kOverflow, "Overflow");
  }
  return static_cast<Integer>(rounded);
}

/// Exact for all integers of 32 bits and their sums and products of 16 bits.
double NumberOf(const BasicValue& value) {
  if (const auto* boolean = std::get_if<bool>(&value)) return *boolean ? -1 : 0;
  if (const auto* integer = std::get_if<std::int16_t>(&value)) return *integer;
  if (const auto* number = std::get_if<std::int32_t>(&value)) return *number;
  if (const auto* real = std::get_if<double>(&value)) return *real;
  RaiseTypeMismatch();
}

template <class T>
bool Either(const BasicValue& left, const BasicValue& right) {
  return std::holds_alternative<T>(left) || std::holds_alternative<T>(right);
}

BasicValue InTypeOf(const BasicValue& left, const BasicValue& right, double result) {
  if (Either<double>(left, right)) return result;
  if (Either<std::int32_t>(left, right)) return Fitted<std::int32_t>(result);
  return Fitted<std::int16_t>(result);
}

BasicValue Logical(std::string_view symbol, const BasicValue& left, const BasicValue& right) {
  const auto a = Fitted<std::int32_t>(NumberOf(left));
  const auto b = Fitted<std::int32_t>(NumberOf(right));
  const std::int32_t result = EqualNames(symbol, "And") ? (a & b) : (a | b);
  if (std::holds_alternative<bool>(left) && std::holds_alternative<bool>(right)) return result != 0;
  return result;
}

bool Compared(std::string_view symbol, const BasicValue& left, const BasicValue& right) {
  if (std::holds_alternative<std::string>(left)) {
    const auto& a = std::get<std::string>(left);
    const std::string b = AsText(right);
    return symbol == "=" ? a == b : a != b;
  }
  const double a = NumberOf(left);
  const double b = NumberOf(right);
  if (symbol == "=") return a == b;
  if (symbol == "<>") return a != b;
  return symbol == "<" ? a < b : a > b;
}

}  // namespace

BasicValue Coerced(const BasicValue& value, std::string_view type) {
  if (EqualNames(type, "Integer")) return Fitted<std::int16_t>(NumberOf(value));
  if (EqualNames(type, "Long")) return Fitted<std::int32_t>(NumberOf(value));
  if (EqualNames(type, "Boolean")) return NumberOf(value) != 0;
  const bool fits = EqualNames(type, "String")     ? std::holds_alternative<std::string>(value)
                    : EqualNames(type, "String()") ? value.index() == 6
                    : EqualNames(type, "Any")      ? true
                                                   : value.index() == 0 || value.index() == 7;
  if (!fits) RaiseTypeMismatch();
  return value;
}

BasicValue InitialValue(std::string_view type) {
  if (EqualNames(type, "Integer")) return std::int16_t{0};
  if (EqualNames(type, "Long")) return std::int32_t{0};
  if (EqualNames(type, "Boolean")) return false;
  if (EqualNames(type, "String")) return std::string();
  if (EqualNames(type, "String()")) return std::vector<std::string>();
  if (EqualNames(type, "Form")) return std::monostate();
  throw std::logic_error("there is no type " + std::string(type));
}

BasicValue NumberLiteral(std::string_view text) {
  const bool isLong = text.ends_with('&') && text.size() > 1;
  if (isLong) text.remove_suffix(1);
  const bool isHex = text.starts_with("&H");
  const auto number =
      std::stoll(std::string(isHex ? text.substr(2) : text), nullptr, isHex ? 16 : 10);
  if (isLong) return static_cast<std::int32_t>(number);
  if (isHex && number <= 0xFFFF) return static_cast<std::int16_t>(number);
  if (number <= 0x7FFF) return static_cast<std::int16_t>(number);
  return static_cast<std::int32_t>(number);
}

BasicValue Applied(std::string_view symbol, const BasicValue& left, const BasicValue& right) {
  if (EqualNames(symbol, "And") || EqualNames(symbol, "Or")) return Logical(symbol, left, right);
  if (symbol == "/") return NumberOf(left) / NumberOf(right);
  if (symbol == "*") return InTypeOf(left, right, NumberOf(left) * NumberOf(right));
  if (symbol == "+") return InTypeOf(left, right, NumberOf(left) + NumberOf(right));
  if (symbol == "-") return InTypeOf(left, right, NumberOf(left) - NumberOf(right));
  return Compared(symbol, left, right);
}

}  // namespace brimwork

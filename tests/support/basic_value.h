// The values of Visual Basic code and what its operators do to them.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace brimwork {

class BasicObject;

/// The first alternative is Nothing.
using BasicValue =
    std::variant<std::monostate, bool, std::int16_t, std::int32_t, double, std::string,
                 std::vector<std::string>, std::shared_ptr<BasicObject>>;

/// An object, or a record, whose members code reads.
class BasicObject {
 public:
  virtual ~BasicObject() = default;
  /// Throws std::logic_error for a member that there is not.
  virtual BasicValue Member(std::string_view name, const std::vector<BasicValue>& arguments) = 0;
};

/// The value as a variable of that type takes it ("Long", "String", "String()", ...). Raises error
/// 6 or 13 as Visual Basic does.
BasicValue Coerced(const BasicValue& value, std::string_view type);

/// What a variable of that type holds before anything is assigned to it.
BasicValue InitialValue(std::string_view type);

/// A number as it is written in code, with the type that it has there.
BasicValue NumberLiteral(std::string_view text);

/// Raises error 6 or 13 as Visual Basic does.
BasicValue Applied(std::string_view symbol, const BasicValue& left, const BasicValue& right);

template <class T>
T ValueAs(const BasicValue& value, std::string_view type) {
  return std::get<T>(Coerced(value, type));
}
inline std::int32_t AsLong(const BasicValue& value) { return ValueAs<std::int32_t>(value, "Long"); }
inline std::string AsText(const BasicValue& value) { return ValueAs<std::string>(value, "String"); }
inline bool AsBoolean(const BasicValue& value) { return ValueAs<bool>(value, "Boolean"); }

}  // namespace brimwork

// The one error that an environment call raises. Only code that says "resume next" catches it.
#pragma once

#include <stdexcept>
#include <string>

namespace brimwork {

/// Numbers of the Visual Basic run-time errors that the environment raises.
namespace error_number {
inline constexpr int kInvalidProcedureCall = 5;
inline constexpr int kOverflow = 6;
inline constexpr int kSubscriptOutOfRange = 9;
inline constexpr int kTypeMismatch = 13;
inline constexpr int kProcedureNotDefined = 35;
inline constexpr int kPathFileAccess = 75;
inline constexpr int kObjectNotSet = 91;
inline constexpr int kNoSuchArrayElement = 340;
inline constexpr int kCannotCreateObject = 429;
inline constexpr int kNotSupportedByObject = 438;
inline constexpr int kAutomationError = 440;
inline constexpr int kInvalidClipboardFormat = 461;
inline constexpr int kInvalidFileFormat = 32000;
inline constexpr int kNameConflict = 32813;
inline constexpr int kElementNotFound = 35601;
inline constexpr int kUnspecified = -2147467259;  // a component object's "unspecified error"
}  // namespace error_number

class RunTimeError : public std::runtime_error {
 public:
  /// number: a Visual Basic run-time error number; line: the module line at fault (from 1), 0 when
  /// the error belongs to no line.
  RunTimeError(int number, const std::string& description, int line = 0)
      : std::runtime_error(description), number_(number), line_(line) {}

  int Number() const { return number_; }
  int Line() const { return line_; }

 private:
  int number_;
  int line_;
};

}  // namespace brimwork

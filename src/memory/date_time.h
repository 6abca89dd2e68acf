// The moment that a run calls now, so that stamps and dates can be repeated.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace brimwork {

/// A date and a time of day in the user's own time zone.
struct DateTime {
  int year = 1;
  int month = 1;
  int day = 1;
  int hour = 0;
  int minute = 0;
  int second = 0;

  bool operator==(const DateTime&) const = default;
};

/// A text that should give a date and does not; one line that says what is wanted.
class DateTimeError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Reads 2026-11-21T10:20:30, with a blank in place of the T, or the date alone (midnight). Throws
/// DateTimeError for every other text and for dates and times that do not exist.
DateTime ParseDateTime(std::string_view text);

/// The moment given, else SOURCE_DATE_EPOCH (seconds since 1970, taken as UTC), else the clock's
/// local time. Throws DateTimeError.
DateTime ResolveNow(const std::optional<std::string>& given);

}  // namespace brimwork

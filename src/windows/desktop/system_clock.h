// Today and now as the user's settings write them.
#pragma once

#include <windows.h>

#include <functional>
#include <utility>

#include "environment/desktop.h"

namespace brimwork::windows {

/// A two-digit year of the user's form is written in full. The texts are those of Visual Basic: the
/// general date of midnight is the date alone.
class SystemClock : public Clock {
 public:
  /// The moment that is now, in the user's time zone.
  using Now = std::function<SYSTEMTIME()>;

  explicit SystemClock(Now now = &LocalTime) : now_(std::move(now)) {}

  std::string ShortDate() override;
  std::string GeneralDate() override;

 private:
  static SYSTEMTIME LocalTime();

  Now now_;
};

/// A form of dates with every year of one or two digits in full. Text in quotes stays as it is.
std::wstring WithYearInFull(std::wstring_view dateForm);

}  // namespace brimwork::windows

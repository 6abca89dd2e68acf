// A clock that stands at one moment and writes it as the user's locale does, so that every stamp of
// a run says the same. The process's own locale is never changed.
#pragma once

#include <string>

#include "environment/desktop.h"
#include "memory/date_time.h"

namespace brimwork {

/// The locale of the user's dates: LC_ALL, else LC_TIME, else LANG, else "C"; on Windows "", which
/// means the user's own settings.
std::string DateLocaleName();

class LocaleClock : public Clock {
 public:
  /// In C, POSIX and locales that are not installed, a date is 11/5/2026 and a time 10:20:30 AM;
  /// elsewhere the locale's own forms, a two-digit year written in full. On Windows locales are
  /// named "de-DE", and others than its own mean the user's settings. Texts are UTF-8.
  explicit LocaleClock(const DateTime& now, const std::string& localeName = DateLocaleName());

  std::string ShortDate() override { return shortDate_; }
  std::string GeneralDate() override { return generalDate_; }

 private:
  std::string shortDate_;
  std::string generalDate_;
};

/// A date form of the C library, or a date picture of Windows, with every two-digit year replaced
/// by the full one.
std::string WithFullYear(std::string_view dateForm);

}  // namespace brimwork

#include "memory/locale_clock.h"

#include <windows.h>

#include <array>

#include "memory/windows/windows_file.h"

namespace brimwork {
namespace {

SYSTEMTIME SystemTimeOf(const DateTime& now) {
  SYSTEMTIME time{};
  time.wYear = static_cast<WORD>(now.year);
  time.wMonth = static_cast<WORD>(now.month);
  time.wDay = static_cast<WORD>(now.day);
  time.wHour = static_cast<WORD>(now.hour);
  time.wMinute = static_cast<WORD>(now.minute);
  time.wSecond = static_cast<WORD>(now.second);
  return time;
}

/// The user's own settings for "", as for a name that the system does not know.
std::string ShortDateOf(const SYSTEMTIME& time, const std::wstring& locale) {
  std::array<wchar_t, 128> text{};
  const auto size = static_cast<int>(text.size());
  const auto format = [&](const wchar_t* name) {
    return GetDateFormatEx(name, DATE_SHORTDATE, &time, nullptr, text.data(), size, nullptr);
  };
  if (format(locale.empty() ? LOCALE_NAME_USER_DEFAULT : locale.c_str()) == 0) {
    format(LOCALE_NAME_USER_DEFAULT);
  }
  return windows::Narrow(text.data());
}

std::string TimeOf(const SYSTEMTIME& time, const std::wstring& locale) {
  std::array<wchar_t, 128> text{};
  const auto size = static_cast<int>(text.size());
  const auto format = [&](const wchar_t* name) {
    return GetTimeFormatEx(name, 0, &time, nullptr, text.data(), size);
  };
  if (format(locale.empty() ? LOCALE_NAME_USER_DEFAULT : locale.c_str()) == 0) {
    format(LOCALE_NAME_USER_DEFAULT);
  }
  return windows::Narrow(text.data());
}

}  // namespace

std::string DateLocaleName() { return ""; }

LocaleClock::LocaleClock(const DateTime& now, const std::string& localeName) {
  const SYSTEMTIME time = SystemTimeOf(now);
  const std::wstring locale = windows::Wide(localeName);
  shortDate_ = ShortDateOf(time, locale);
  generalDate_ = shortDate_ + " " + TimeOf(time, locale);
}

}  // namespace brimwork

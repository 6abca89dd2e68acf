#include "memory/locale_clock.h"

#include <windows.h>

#include <algorithm>
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

/// How many of them a text begins with.
std::size_t CountOf(char c, std::string_view text) {
  return std::min(text.find_first_not_of(c), text.size());
}

/// The name of a locale that the system knows, else that of the user's own settings.
const wchar_t* KnownLocale(const std::wstring& locale) {
  return !locale.empty() && IsValidLocaleName(locale.c_str()) ? locale.c_str()
                                                              : LOCALE_NAME_USER_DEFAULT;
}

std::string ShortDateOf(const SYSTEMTIME& time, const wchar_t* locale) {
  std::array<wchar_t, 128> form{};
  GetLocaleInfoEx(locale, LOCALE_SSHORTDATE, form.data(), static_cast<int>(form.size()));
  const std::wstring whole = windows::Wide(WithFullYear(windows::Narrow(form.data())));
  std::array<wchar_t, 128> text{};
  GetDateFormatEx(locale, 0, &time, whole.c_str(), text.data(), static_cast<int>(text.size()),
                  nullptr);
  return windows::Narrow(text.data());
}

std::string TimeOf(const SYSTEMTIME& time, const wchar_t* locale) {
  std::array<wchar_t, 128> text{};
  GetTimeFormatEx(locale, 0, &time, nullptr, text.data(), static_cast<int>(text.size()));
  return windows::Narrow(text.data());
}

}  // namespace

std::string DateLocaleName() { return ""; }

LocaleClock::LocaleClock(const DateTime& now, const std::string& localeName) {
  const SYSTEMTIME time = SystemTimeOf(now);
  const std::wstring name = windows::Wide(localeName);
  const wchar_t* const locale = KnownLocale(name);
  shortDate_ = ShortDateOf(time, locale);
  generalDate_ = shortDate_ + " " + TimeOf(time, locale);
}

std::string WithFullYear(std::string_view dateForm) {
  std::string form;
  bool isQuoted = false;
  while (!dateForm.empty()) {
    const std::size_t size = std::max<std::size_t>(1, CountOf('y', dateForm));
    const std::string_view part = dateForm.substr(0, size);
    if (part == "'") isQuoted = !isQuoted;
    form += !isQuoted && (part == "y" || part == "yy") ? "yyyy" : part;
    dateForm.remove_prefix(size);
  }
  return form;
}

}  // namespace brimwork

#include "windows/desktop/system_clock.h"

#include <algorithm>
#include <string>

#include "win32/wide_text.h"
#include "windows/desktop/system_error.h"

namespace brimwork::windows {
namespace {

constexpr LCID kUser = LOCALE_USER_DEFAULT;
constexpr int kLongest = 256;  // texts of the system's settings have less than a hundred

std::wstring ShortDateForm() {
  wchar_t form[kLongest];
  if (GetLocaleInfoW(kUser, LOCALE_SSHORTDATE, form, kLongest) == 0) {
    RaiseSystemError("GetLocaleInfo");
  }
  return WithYearInFull(form);
}

std::string DateText(const SYSTEMTIME& moment) {
  wchar_t text[kLongest];
  if (GetDateFormatW(kUser, 0, &moment, ShortDateForm().c_str(), text, kLongest) == 0) {
    RaiseSystemError("GetDateFormat");
  }
  return win32::Narrow(text);
}

std::string TimeText(const SYSTEMTIME& moment) {
  wchar_t text[kLongest];
  if (GetTimeFormatW(kUser, 0, &moment, nullptr, text, kLongest) == 0) {
    RaiseSystemError("GetTimeFormat");
  }
  return win32::Narrow(text);
}

bool IsMidnight(const SYSTEMTIME& moment) {
  return moment.wHour == 0 && moment.wMinute == 0 && moment.wSecond == 0;
}

}  // namespace

SYSTEMTIME SystemClock::LocalTime() {
  SYSTEMTIME moment;
  GetLocalTime(&moment);
  return moment;
}

std::string SystemClock::ShortDate() { return DateText(now_()); }

std::string SystemClock::GeneralDate() {
  const SYSTEMTIME moment = now_();
  const std::string date = DateText(moment);
  return IsMidnight(moment) ? date : date + ' ' + TimeText(moment);
}

std::wstring WithYearInFull(std::wstring_view dateForm) {
  std::wstring form;
  bool isQuoted = false;
  while (!dateForm.empty()) {
    const std::size_t years = std::min(dateForm.find_first_not_of(L'y'), dateForm.size());
    const std::wstring_view part = dateForm.substr(0, std::max<std::size_t>(1, years));
    if (part == L"'") isQuoted = !isQuoted;
    const bool isShortYear = !isQuoted && (part == L"y" || part == L"yy");
    form += isShortYear ? L"yyyy" : part;
    dateForm.remove_prefix(part.size());
  }
  return form;
}

}  // namespace brimwork::windows

// Dates as the locales of Windows write them.
#include "memory/locale_clock.h"

#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "win32/wide_text.h"

namespace brimwork {
namespace windows_locale_clock_test {

TEST(WindowsLocaleClock, WritesTheDatesOfItsCountry) {
  const DateTime evening{2026, 11, 5, 22, 20, 30};
  EXPECT_EQ(LocaleClock(evening, "en-GB").ShortDate(), "05/11/2026");
  EXPECT_EQ(LocaleClock(evening, "en-GB").GeneralDate(), "05/11/2026 22:20:30");
  EXPECT_EQ(LocaleClock(evening, "en-US").ShortDate(), "11/5/2026");
  EXPECT_EQ(LocaleClock(evening, "en-US").GeneralDate(), "11/5/2026 10:20:30 PM");
}

TEST(WindowsLocaleClock, GivesUtf8) {
  EXPECT_THAT(LocaleClock({2026, 11, 5}, "bg-BG").ShortDate(), testing::HasSubstr("г."));
}

TEST(WindowsLocaleClock, TakesTheUsersSettingsForALocaleThatIsNoneOfTheSystems) {
  const DateTime now{2026, 11, 21, 10, 20, 30};
  const std::string usual = LocaleClock(now).GeneralDate();
  EXPECT_THAT(usual, testing::HasSubstr("2026"));
  for (const char* locale : {"xx-YY", "de_DE.UTF-8", "not a locale"}) {
    EXPECT_EQ(LocaleClock(now, locale).GeneralDate(), usual) << locale;
  }
}

std::wstring ShortDatePicture(LPCWSTR locale) {
  wchar_t picture[128] = {};
  GetLocaleInfoEx(locale, LOCALE_SSHORTDATE, picture, 128);
  return picture;
}

/// Takes the first locale with a two-digit year.
BOOL CALLBACK TakeShortYear(LPWSTR locale, DWORD, LPARAM found) {
  const std::wstring picture = ShortDatePicture(locale);
  if (picture.find(L"yy") == picture.npos || picture.find(L"yyy") != picture.npos) return TRUE;
  *reinterpret_cast<std::wstring*>(found) = locale;
  return FALSE;
}

TEST(WindowsLocaleClock, WritesATwoDigitYearInFull) {
  std::wstring locale;
  EnumSystemLocalesEx(TakeShortYear, LOCALE_ALL, reinterpret_cast<LPARAM>(&locale), nullptr);
  if (locale.empty()) GTEST_SKIP() << "no locale of this system has a two-digit year";
  const std::string name = win32::Narrow(locale);
  EXPECT_THAT(LocaleClock({2026, 11, 5}, name).ShortDate(), testing::HasSubstr("2026")) << name;
}

TEST(WindowsFullYear, LeavesTheOtherPartsOfAPictureAsTheyAre) {
  EXPECT_EQ(WithFullYear("dd.MM.yy"), "dd.MM.yyyy");
  EXPECT_EQ(WithFullYear("y-M-d"), "yyyy-M-d");
  EXPECT_EQ(WithFullYear("yyyy-MM-dd"), "yyyy-MM-dd");
  EXPECT_EQ(WithFullYear("d 'yy' M yy"), "d 'yy' M yyyy");
  EXPECT_EQ(WithFullYear(""), "");
}

}  // namespace windows_locale_clock_test
}  // namespace brimwork

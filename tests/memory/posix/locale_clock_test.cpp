#include "memory/locale_clock.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <optional>

#include "support/scoped_variable.h"
#include "support/temporary_folder.h"

#ifdef BRIMWORK_SANITIZED
#include <sanitizer/lsan_interface.h>
#endif

namespace brimwork {
namespace locale_clock_test {

TEST(LocaleClock, InThePlainLocalesADateHasNoLeadingZeros) {
  for (const char* locale : {"C", "POSIX", "C.UTF-8", "C.utf8"}) {
    LocaleClock clock({2026, 11, 21, 10, 20, 30}, locale);
    EXPECT_EQ(clock.ShortDate(), "11/21/2026") << locale;
    EXPECT_EQ(clock.GeneralDate(), "11/21/2026 10:20:30 AM") << locale;
  }
  EXPECT_EQ(LocaleClock({2026, 1, 5}, "C").ShortDate(), "1/5/2026");
}

TEST(LocaleClock, TheHourCountsFromOneToTwelve) {
  EXPECT_EQ(LocaleClock({2026, 1, 5, 0, 0, 0}, "C").GeneralDate(), "1/5/2026 12:00:00 AM");
  EXPECT_EQ(LocaleClock({2026, 1, 5, 9, 5, 7}, "C").GeneralDate(), "1/5/2026 9:05:07 AM");
  EXPECT_EQ(LocaleClock({2026, 1, 5, 12, 0, 1}, "C").GeneralDate(), "1/5/2026 12:00:01 PM");
  EXPECT_EQ(LocaleClock({2026, 1, 5, 23, 59, 59}, "C").GeneralDate(), "1/5/2026 11:59:59 PM");
}

TEST(LocaleClock, ALocaleThatIsNotInstalledIsWrittenPlainly) {
  EXPECT_EQ(LocaleClock({2026, 11, 21}, "xx_YY.UTF-8").ShortDate(), "11/21/2026");
}

TEST(LocaleClock, TheLocaleOfDatesIsLcAllThenLcTimeThenLang) {
  const ScopedVariable all("LC_ALL", "");
  const ScopedVariable time("LC_TIME", "de_DE.UTF-8");
  const ScopedVariable lang("LANG", "fr_FR.UTF-8");
  EXPECT_EQ(DateLocaleName(), "de_DE.UTF-8");
  const ScopedVariable allSet("LC_ALL", "C");
  EXPECT_EQ(DateLocaleName(), "C");
}

TEST(LocaleClock, WithoutTimeOrGeneralLocaleItIsLangAndThenC) {
  const ScopedVariable all("LC_ALL", std::nullopt);
  const ScopedVariable time("LC_TIME", std::nullopt);
  const ScopedVariable lang("LANG", "fr_FR.UTF-8");
  EXPECT_EQ(DateLocaleName(), "fr_FR.UTF-8");
  const ScopedVariable noLang("LANG", std::nullopt);
  EXPECT_EQ(DateLocaleName(), "C");
}

TEST(WithFullYear, WritesATwoDigitYearInFull) {
  EXPECT_EQ(WithFullYear("%d.%m.%y"), "%d.%m.%Y");
  EXPECT_EQ(WithFullYear("%-d/%-m/%-y"), "%-d/%-m/%-Y");
  EXPECT_EQ(WithFullYear("%D"), "%m/%d/%Y");
}

TEST(WithFullYear, LeavesOtherFormsAsTheyAre) {
  EXPECT_EQ(WithFullYear("%Y-%m-%d"), "%Y-%m-%d");
  EXPECT_EQ(WithFullYear("%Ey %Oy"), "%Ey %Oy");
  EXPECT_EQ(WithFullYear("%%y day %"), "%%y day %");
}

/// Locales made for a test, for a test machine need not have any but the plain ones.
class MadeLocale : public testing::Test {
 protected:
  /// Returns false when the system cannot make the locale.
  bool Make(const std::string& language, const std::string& characterSet) {
    const std::string command = "localedef -i " + language + " -f " + characterSet + " '" +
                                (folder_ / (language + "." + characterSet)).string() +
                                "' >/dev/null 2>&1";
    std::system(command.c_str());  // a warning makes its status 1, so the result is looked at
    return std::filesystem::exists(folder_ / (language + "." + characterSet) / "LC_TIME");
  }

  /// The C library never frees what it reads from LOCPATH, and the leak check would take that for
  /// a leak of ours.
  static LocaleClock ClockIn(const std::string& locale) {
#ifdef BRIMWORK_SANITIZED
    const __lsan::ScopedDisabler notOurs;
#endif
    return LocaleClock({2026, 11, 5, 22, 20, 30}, locale);
  }

  static constexpr const char* kCannotMake =
      "this system cannot make a locale: localedef or the sources of the locales are missing";

 private:
  TemporaryFolder folder_;
  ScopedVariable locales_{"LOCPATH", folder_.Path().string()};
};

TEST_F(MadeLocale, WritesTheDatesOfItsCountry) {
  if (!Make("de_DE", "UTF-8")) GTEST_SKIP() << kCannotMake;
  LocaleClock clock = ClockIn("de_DE.UTF-8");
  EXPECT_EQ(clock.ShortDate(), "05.11.2026");
  EXPECT_EQ(clock.GeneralDate(), "05.11.2026 22:20:30");
}

TEST_F(MadeLocale, WritesATwelveHourTimeWhereItsCountryDoes) {
  if (!Make("en_US", "UTF-8")) GTEST_SKIP() << kCannotMake;
  LocaleClock clock = ClockIn("en_US.UTF-8");
  EXPECT_EQ(clock.ShortDate(), "11/05/2026");
  EXPECT_EQ(clock.GeneralDate(), "11/05/2026 10:20:30 PM");
}

TEST_F(MadeLocale, GivesUtf8WhateverTheLocalesCharacterSet) {
  if (!Make("ja_JP", "EUC-JP")) GTEST_SKIP() << kCannotMake;
  EXPECT_EQ(ClockIn("ja_JP.EUC-JP").ShortDate(), "2026年11月05日");
}

TEST_F(MadeLocale, LeavesTheLocaleOfTheProcessAlone) {
  if (!Make("de_DE", "UTF-8")) GTEST_SKIP() << kCannotMake;
  const std::string before = std::setlocale(LC_ALL, nullptr);
  ClockIn("de_DE.UTF-8");
  EXPECT_EQ(std::setlocale(LC_ALL, nullptr), before);
}

}  // namespace locale_clock_test
}  // namespace brimwork

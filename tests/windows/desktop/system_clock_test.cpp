#include "windows/desktop/system_clock.h"

#include <gtest/gtest.h>

#include <string>

#include "memory/locale_clock.h"
#include "win32/wide_text.h"

namespace brimwork::windows {
namespace system_clock_test {

SystemClock At(WORD hour, WORD minute, WORD second) {
  const SYSTEMTIME moment = {2026, 11, 6, 5, hour, minute, second, 0};
  return SystemClock([moment] { return moment; });
}

TEST(SystemClock, WritesTheDateAsTheUsersSettingsDo) {
  const LocaleClock model({2026, 11, 5, 22, 7, 9}, "");
  EXPECT_EQ(At(22, 7, 9).ShortDate(), LocaleClock(model).ShortDate());
  EXPECT_NE(At(22, 7, 9).ShortDate().find("2026"), std::string::npos);
}

TEST(SystemClock, WritesTheTimeBehindTheDate) {
  EXPECT_EQ(At(22, 7, 9).GeneralDate(), LocaleClock({2026, 11, 5, 22, 7, 9}, "").GeneralDate());
  EXPECT_TRUE(At(0, 0, 1).GeneralDate().starts_with(At(0, 0, 1).ShortDate() + ' '));
}

TEST(SystemClock, WritesMidnightAsTheDateAlone) {
  EXPECT_EQ(At(0, 0, 0).GeneralDate(), At(0, 0, 0).ShortDate());
}

TEST(SystemClock, StandsAtTheLocalTimeWhereNothingIsSaid) {
  SystemClock clock;
  SYSTEMTIME before;
  SYSTEMTIME after;
  std::string date;
  do {  // at midnight once more
    GetLocalTime(&before);
    date = clock.ShortDate();
    GetLocalTime(&after);
  } while (before.wDay != after.wDay);
  EXPECT_EQ(date, SystemClock([&] { return after; }).ShortDate());
}

TEST(WithYearInFull, ChangesShortYearsAlone) {
  EXPECT_TRUE(WithYearInFull(L"d.M.yy") == L"d.M.yyyy");
  EXPECT_TRUE(WithYearInFull(L"y/MM") == L"yyyy/MM");
  EXPECT_TRUE(WithYearInFull(L"M/d/yyyy") == L"M/d/yyyy");
  EXPECT_TRUE(WithYearInFull(L"yy' yy 'd") == L"yyyy' yy 'd");
  EXPECT_TRUE(WithYearInFull(L"") == L"");
}

}  // namespace system_clock_test
}  // namespace brimwork::windows

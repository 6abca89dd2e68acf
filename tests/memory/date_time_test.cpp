#include "memory/date_time.h"

#include <gtest/gtest.h>

#include <ctime>
#include <optional>

#include "support/scoped_variable.h"

namespace brimwork {
namespace date_time_test {

std::string Refusal(std::string_view text) {
  try {
    ParseDateTime(text);
    return "none";
  } catch (const DateTimeError& error) {
    return error.what();
  }
}

TEST(ParseDateTime, ReadsADateAndATime) {
  EXPECT_EQ(ParseDateTime("2026-11-21T10:20:30"), (DateTime{2026, 11, 21, 10, 20, 30}));
  EXPECT_EQ(ParseDateTime("2026-11-21 23:59:59"), (DateTime{2026, 11, 21, 23, 59, 59}));
}

TEST(ParseDateTime, ADateAloneIsItsMidnight) {
  EXPECT_EQ(ParseDateTime("2026-11-21"), (DateTime{2026, 11, 21, 0, 0, 0}));
}

TEST(ParseDateTime, KnowsLeapYears) {
  EXPECT_EQ(ParseDateTime("2028-02-29").day, 29);
  EXPECT_EQ(Refusal("2026-02-29"), "\"2026-02-29\" is a date or time that does not exist");
}

TEST(ParseDateTime, DatesAndTimesThatDoNotExistAreRefused) {
  for (const char* text : {"2026-02-30", "2026-13-01", "2026-00-01", "2026-01-00", "0000-01-01",
                           "2026-01-01T24:00:00", "2026-01-01T10:60:00", "2026-01-01T10:00:60"}) {
    EXPECT_EQ(Refusal(text), "\"" + std::string(text) + "\" is a date or time that does not exist");
  }
}

TEST(ParseDateTime, OtherTextsAreRefusedWithTheFormThatIsWanted) {
  for (const char* text : {"", "now", "2026-11-2", "26-11-21", "2026/11/21", "2026-11-21T10:20",
                           "2026-11-21t10:20:30", "2026-11-21T10:20:30Z", " 2026-11-21",
                           "2026-11-21T", "+026-11-21", "2026-11-21T1O:20:30"}) {
    EXPECT_EQ(Refusal(text), "\"" + std::string(text) +
                                 "\" is no date; write it as 2026-11-21T10:20:30 or 2026-11-21");
  }
}

TEST(ResolveNow, TheMomentGivenComesFirst) {
  const ScopedVariable epoch("SOURCE_DATE_EPOCH", "0");
  EXPECT_EQ(ResolveNow("2026-11-21"), (DateTime{2026, 11, 21, 0, 0, 0}));
  EXPECT_THROW(ResolveNow("tomorrow"), DateTimeError);
}

TEST(ResolveNow, SourceDateEpochIsTakenAsUtcInEveryTimeZone) {
  const ScopedVariable zone("TZ", "XYZ-5");
  const ScopedVariable epoch("SOURCE_DATE_EPOCH", "1795256430");
  EXPECT_EQ(ResolveNow(std::nullopt), (DateTime{2026, 11, 21, 10, 20, 30}));
}

TEST(ResolveNow, ASourceDateEpochThatIsNoNumberOfSecondsIsRefused) {
  for (const char* text : {"soon", "12x", "-1", "1.5", "99999999999999999999", "253402300800"}) {
    const ScopedVariable epoch("SOURCE_DATE_EPOCH", text);
    try {
      ResolveNow(std::nullopt);
      ADD_FAILURE() << text << " was taken";
    } catch (const DateTimeError& error) {
      EXPECT_EQ(error.what(), "SOURCE_DATE_EPOCH is \"" + std::string(text) +
                                  "\", which is no number of seconds since 1970; correct or unset "
                                  "it");
    }
  }
}

TEST(ResolveNow, WithoutBothItIsTheLocalTimeOfTheClock) {
  const ScopedVariable zone("TZ", "XYZ-5");
  const ScopedVariable epoch("SOURCE_DATE_EPOCH", std::nullopt);
  const auto inFiveHours = [] {
    const ScopedVariable utc("SOURCE_DATE_EPOCH", std::to_string(std::time(nullptr) + 5 * 3600));
    return ResolveNow(std::nullopt);
  };
  // The second may change between two readings of the clock, so a reading is taken on both sides.
  const DateTime before = inFiveHours();
  const DateTime now = ResolveNow(std::nullopt);
  const DateTime after = inFiveHours();
  EXPECT_TRUE(now == before || now == after);
}

}  // namespace date_time_test
}  // namespace brimwork

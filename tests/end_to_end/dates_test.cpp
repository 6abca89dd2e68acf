// Which moment stamps and headers carry, and how it is written.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ctime>

#include "end_to_end/workplace.h"

namespace brimwork {
namespace dates_test {

using testing::HasSubstr;

class Dates : public testing::Test {
 protected:
  Dates() { place.Write("m.bas", "x = 1\n"); }

  std::string Stamped(const Words& options = {}) const {
    Words words{"timestamp", "--line", "1"};
    words.insert(words.end(), options.begin(), options.end());
    words.push_back("m.bas");
    return place.Run(words).out;
  }

  Workplace place;
};

TEST_F(Dates, AreTheMomentGiven) {
  EXPECT_EQ(Stamped({"--now", "2026-11-21T10:20:30"}), "x = 1 ' 11/21/2026 10:20:30 AM \n");
  EXPECT_EQ(Stamped({"--now", "2026-11-21 22:20:30"}), "x = 1 ' 11/21/2026 10:20:30 PM \n");
  EXPECT_EQ(Stamped({"--now", "2026-02-05"}), "x = 1 ' 2/5/2026 12:00:00 AM \n");
}

TEST_F(Dates, OfHeadersAreTheDayAlone) {
  const ProgramResult result = place.Run(
      {"header", "--set", "Header='Release Date, Release Date", "--now", "2026-11-21", "m.bas"});
  EXPECT_EQ(result.out, "'11/21/2026, 11/21/2026\nx = 1\n");
}

TEST_F(Dates, AreTheSourceDateEpochElse) {
  place.SetVariable("SOURCE_DATE_EPOCH", "1795256430");
  place.SetVariable("TZ", "Asia/Tokyo");
  EXPECT_EQ(Stamped(), "x = 1 ' 11/21/2026 10:20:30 AM \n");
  EXPECT_EQ(Stamped({"--now", "2026-11-22"}), "x = 1 ' 11/22/2026 12:00:00 AM \n");
}

TEST_F(Dates, AreTheClocksElse) {
  place.SetVariable("TZ", "UTC");
  const std::time_t earliest = std::time(nullptr);
  const std::string stamp = Stamped();
  const std::time_t latest = std::time(nullptr);
  bool isOneOfTheseSeconds = false;
  for (std::time_t second = earliest; second <= latest; ++second) {
    std::tm at{};
    gmtime_r(&second, &at);
    char day[64];
    std::snprintf(day, sizeof day, "x = 1 ' %d/%d/%d %d:%02d:%02d %s \n", at.tm_mon + 1, at.tm_mday,
                  at.tm_year + 1900, at.tm_hour % 12 == 0 ? 12 : at.tm_hour % 12, at.tm_min,
                  at.tm_sec, at.tm_hour < 12 ? "AM" : "PM");
    if (stamp == day) isOneOfTheseSeconds = true;
  }
  EXPECT_TRUE(isOneOfTheseSeconds) << stamp;
}

TEST_F(Dates, ThatAreNoneAreErrors) {
  for (const char* now : {"tomorrow", "2026-13-01", "2026-02-29", "2026-11-21T25:00:00", ""}) {
    const ProgramResult result = place.Run({"header", "--now", now, "m.bas"});
    EXPECT_EQ(result.exitCode, 2) << now;
    EXPECT_EQ(result.out, "") << now;
    EXPECT_EQ(LinesOf(result.error).size(), 1u) << result.error;
  }
}

TEST_F(Dates, OfADamagedSourceDateEpochAreErrors) {
  place.SetVariable("SOURCE_DATE_EPOCH", "soon");
  const ProgramResult result = place.Run({"header", "m.bas"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.error, HasSubstr("SOURCE_DATE_EPOCH"));
}

TEST_F(Dates, OfALocaleThatIsNotInstalledAreThoseOfC) {
  place.SetVariable("LC_ALL", "xx_XX.UTF-8");
  EXPECT_EQ(Stamped({"--now", "2026-11-21T10:20:30"}), "x = 1 ' 11/21/2026 10:20:30 AM \n");
}

TEST_F(Dates, AreTheSameInEveryFileOfARun) {
  for (char name = 'a'; name <= 'h'; ++name) {
    place.Write(std::string(1, name) + ".bas", "x = 1\n");
  }
  place.Run({"run", "Insert Time Stamp", "--line", "1", "--write", "."});
  for (char name = 'b'; name <= 'h'; ++name) {
    EXPECT_EQ(place.Read(std::string(1, name) + ".bas"), place.Read("a.bas"));
  }
}

}  // namespace dates_test
}  // namespace brimwork

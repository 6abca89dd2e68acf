// Standard streams that are closed or full: no file may take their place, and no error is lost in
// a crash.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "end_to_end/sources.h"
#include "end_to_end/workplace.h"

namespace brimwork {
namespace standard_streams_test {

using testing::HasSubstr;

constexpr int kFiles = 60;

class ClosedStreams : public testing::Test {
 protected:
  ClosedStreams() {
    for (int i = 0; i < kFiles; ++i) place.Write("m" + std::to_string(i) + ".bas", kMessy);
  }

  void ExpectWholeFiles() const {
    for (int i = 0; i < kFiles; ++i) {
      EXPECT_THAT(place.Read("m" + std::to_string(i) + ".bas"), testing::AnyOf(kMessy, kIndented));
    }
  }

  Workplace place;
};

TEST_F(ClosedStreams, AClosedStandardOutputNeverEndsUpInAFile) {
  for (int round = 0; round < 5; ++round) {
    place.Shell("\"$brimwork\" indent --write --diff --jobs 8 . >&-");
    ExpectWholeFiles();
    for (int i = 0; i < kFiles; ++i) place.Write("m" + std::to_string(i) + ".bas", kMessy);
  }
}

TEST_F(ClosedStreams, AClosedStandardErrorNeverEndsUpInAFile) {
  for (int round = 0; round < 5; ++round) {
    place.Shell("\"$brimwork\" indent --write --jobs 8 . 2>&-");
    ExpectWholeFiles();
    for (int i = 0; i < kFiles; ++i) place.Write("m" + std::to_string(i) + ".bas", kMessy);
  }
}

TEST_F(ClosedStreams, AStandardErrorThatCannotBeWrittenChangesNoExitCode) {
  for (const char* to : {"2>&-", "2>/dev/full"}) {
    const std::string redirection = to;
    EXPECT_EQ(place.Shell("\"$brimwork\" indent gone.bas " + redirection).exitCode, 2) << to;
    EXPECT_EQ(place.Shell("\"$brimwork\" bogus " + redirection).exitCode, 2) << to;
    EXPECT_EQ(place.Shell("\"$brimwork\" indent --check . " + redirection).exitCode, 1) << to;
    EXPECT_EQ(place.Shell("\"$brimwork\" indent --write . " + redirection).exitCode, 0) << to;
    EXPECT_EQ(place.Read("m0.bas"), kIndented);
    place.Write("m0.bas", kMessy);
  }
}

TEST_F(ClosedStreams, AClosedStandardInputIsAnErrorOfTheDashAlone) {
  EXPECT_EQ(place.Shell("\"$brimwork\" indent --write m0.bas <&-").exitCode, 0);
  EXPECT_EQ(place.Read("m0.bas"), kIndented);
}

}  // namespace standard_streams_test
}  // namespace brimwork

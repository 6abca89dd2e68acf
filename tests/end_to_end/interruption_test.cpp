// A run that is broken off: every file is as it was or as it shall be, and nothing else lies about.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>

#include <chrono>
#include <thread>

#include "end_to_end/sources.h"
#include "end_to_end/workplace.h"

namespace brimwork {
namespace interruption_test {

constexpr int kFiles = 120;
constexpr int kRepeats = 40;

std::string Repeated(std::string_view text) {
  std::string repeated;
  for (int i = 0; i < kRepeats; ++i) repeated += text;
  return repeated;
}

struct Outcome {
  int old = 0;
  int written = 0;
};

Outcome LookAt(const Workplace& place) {
  Outcome outcome;
  for (const std::string& name : place.Names()) {
    EXPECT_TRUE(name.ends_with(".bas")) << name << " was left behind";
    const std::string content = place.Read(name);
    EXPECT_TRUE(content == Repeated(kMessy) || content == Repeated(kIndented)) << name;
    ++(content == Repeated(kMessy) ? outcome.old : outcome.written);
  }
  EXPECT_EQ(outcome.old + outcome.written, kFiles);
  return outcome;
}

TEST(Interruption, LeavesEveryFileOldOrNewAndNothingElse) {
  bool wasUnderWay = false;
  for (int milliseconds = 2; milliseconds < 400 && !wasUnderWay; milliseconds *= 2) {
    Workplace place;
    for (int i = 0; i < kFiles; ++i) {
      place.Write("m" + std::to_string(i) + ".bas", Repeated(kMessy));
    }
    RunningProgram running(place.CallOf({"indent", "--write", "--quiet", "--jobs", "2", "."}));
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
    running.Send(SIGINT);
    running.Wait();
    const Outcome outcome = LookAt(place);
    wasUnderWay = outcome.old > 0 && outcome.written > 0;
  }
  if (!wasUnderWay) GTEST_SKIP() << "no run was broken off between its first and its last file";
}

TEST(Interruption, EndsTheProgramWithItsSignal) {
  Workplace place;
  ProgramCall call = place.CallOf({"indent", "-"});
  call.words = {"/bin/sh", "-c", "exec \"$brimwork\" indent - < pipe.bas"};
  call.variables["brimwork"] = BRIMWORK_COMMAND;
  place.Shell("mkfifo pipe.bas");
  RunningProgram writer([&] {
    ProgramCall holds = place.CallOf({});
    holds.words = {"/bin/sh", "-c", "sleep 5 > pipe.bas"};
    return holds;
  }());
  RunningProgram running(call);
  std::this_thread::sleep_for(std::chrono::milliseconds(100));
  running.Send(SIGINT);
  EXPECT_EQ(running.Wait().exitCode, 128 + SIGINT);
  writer.Send(SIGTERM);
  writer.Wait();
}

}  // namespace interruption_test
}  // namespace brimwork

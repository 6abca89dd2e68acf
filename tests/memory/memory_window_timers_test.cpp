// Timers in memory: their order, their lives, and the clock that they run by.
#include "memory/memory_window_timers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace brimwork {
namespace memory_window_timers_test {

using testing::ElementsAre;
using testing::IsEmpty;

struct MemoryWindowTimersTest : testing::Test {
  TimerId Set(TimerId id, std::uint32_t milliseconds) {
    return timers.SetTimer(window, id, milliseconds, Note());
  }

  TimerProcedure Note() {
    return [this](WindowHandle, std::uint32_t, TimerId id, std::uint32_t time) {
      notes.push_back(std::to_string(id) + " at " + std::to_string(time));
    };
  }

  /// A timer that fires once only.
  void SetOnce(TimerId id, std::uint32_t milliseconds) {
    timers.SetTimer(
        window, id, milliseconds,
        [this](WindowHandle owner, std::uint32_t message, TimerId fired, std::uint32_t time) {
          timers.KillTimer(owner, fired);
          Note()(owner, message, fired, time);
        });
  }

  MemoryNativeWindows native;
  MemoryWindowTimers timers{native};
  WindowHandle window = native.Add({});
  std::vector<std::string> notes;
};

TEST_F(MemoryWindowTimersTest, FireAgainAndAgainUntilTheyAreKilled) {
  EXPECT_EQ(Set(1, 40), 1u);
  timers.Pass(100);
  EXPECT_THAT(notes, ElementsAre("1 at 40", "1 at 80"));
  EXPECT_TRUE(timers.KillTimer(window, 1));
  EXPECT_FALSE(timers.KillTimer(window, 1));
  timers.Pass(100);
  EXPECT_EQ(notes.size(), 2u);
}

TEST_F(MemoryWindowTimersTest, FireInTheOrderInWhichTheyAreDue) {
  SetOnce(1, 300);
  SetOnce(2, 100);
  SetOnce(3, 200);
  timers.Pass(1000);
  EXPECT_THAT(notes, ElementsAre("2 at 100", "3 at 200", "1 at 300"));
  EXPECT_EQ(timers.Now(), 1000u);
}

TEST_F(MemoryWindowTimersTest, AreDueAfterTheShortestIntervalWhereTheyAskForLess) {
  SetOnce(1, 0);
  EXPECT_EQ(timers.NextDue(), MemoryWindowTimers::kShortestInterval);
  timers.Pass(9);
  EXPECT_THAT(notes, IsEmpty());
  timers.Pass(1);
  EXPECT_THAT(notes, ElementsAre("1 at 10"));
  EXPECT_EQ(timers.NextDue(), std::nullopt);
}

TEST_F(MemoryWindowTimersTest, ThatAreDueTogetherFireTheLatestSetFirst) {
  SetOnce(1, 0);
  SetOnce(2, 0);
  timers.Pass(10);
  EXPECT_THAT(notes, ElementsAre("2 at 10", "1 at 10"));
}

TEST_F(MemoryWindowTimersTest, ThatAreDueTogetherFireTheEarliestSetFirstWhereATestSaysSo) {
  timers.tie = MemoryWindowTimers::Tie::kEarliestSetFirst;
  SetOnce(1, 0);
  SetOnce(2, 0);
  timers.Pass(10);
  EXPECT_THAT(notes, ElementsAre("1 at 10", "2 at 10"));
}

TEST_F(MemoryWindowTimersTest, TakeThePlaceOfTheWindowsTimerOfTheirNumber) {
  Set(1, 50);
  timers.Pass(30);
  SetOnce(1, 100);
  timers.Pass(1000);
  EXPECT_THAT(notes, ElementsAre("1 at 130"));
}

TEST_F(MemoryWindowTimersTest, OfTwoWindowsMayHaveOneNumber) {
  const WindowHandle other = native.Add({});
  Set(1, 50);
  timers.SetTimer(other, 1, 50, Note());
  EXPECT_TRUE(timers.KillTimer(other, 1));
  timers.Pass(50);
  EXPECT_THAT(notes, ElementsAre("1 at 50"));
}

TEST_F(MemoryWindowTimersTest, WithoutAWindowHaveNumbersOfTheSystem) {
  const TimerId first = timers.SetTimer(0, 77, 50, Note());
  const TimerId second = timers.SetTimer(0, 77, 60, Note());
  EXPECT_NE(first, 77u);
  EXPECT_NE(first, second);
  timers.Pass(60);
  EXPECT_EQ(notes.size(), 2u);
  EXPECT_FALSE(timers.KillTimer(0, 77));
  EXPECT_TRUE(timers.KillTimer(0, first));
}

TEST_F(MemoryWindowTimersTest, AreNotSetForAWindowThatIsNotThere) {
  EXPECT_EQ(timers.SetTimer(9, 1, 50, Note()), 0u);
  EXPECT_EQ(timers.Count(), 0u);
  EXPECT_THAT(timers.Started(), IsEmpty());
}

TEST_F(MemoryWindowTimersTest, GoWithTheirWindow) {
  Set(1, 50);
  native.Remove(window);
  timers.Pass(100);
  EXPECT_THAT(notes, IsEmpty());
  EXPECT_EQ(timers.Count(), 0u);
}

TEST_F(MemoryWindowTimersTest, TellTheProcedureWhoFiredAndWhen) {
  timers.SetTimer(window, 5, 20,
                  [&](WindowHandle owner, std::uint32_t message, TimerId id, std::uint32_t time) {
                    EXPECT_EQ(owner, window);
                    EXPECT_EQ(message, window_message::kTimer);
                    EXPECT_EQ(id, 5u);
                    EXPECT_EQ(time, 20u);
                    notes.push_back("fired");
                  });
  timers.FireNext();
  EXPECT_THAT(notes, ElementsAre("fired"));
  EXPECT_EQ(timers.Now(), 20u);
}

TEST_F(MemoryWindowTimersTest, AreRememberedAsTheyWereAskedFor) {
  Set(1, 0);
  Set(2, 70);
  using Timer = MemoryWindowTimers::StartedTimer;
  EXPECT_THAT(timers.Started(), ElementsAre(Timer{window, 1, 0}, Timer{window, 2, 70}));
}

}  // namespace memory_window_timers_test
}  // namespace brimwork

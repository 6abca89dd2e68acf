#include "windows/desktop/system_window_timers.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>

#include "environment/dialog_windows.h"
#include "windows/desktop/handles.h"
#include "windows/desktop/system_message_boxes.h"
#include "windows/desktop/thread_messages.h"

namespace brimwork::windows {
namespace system_window_timers_test {

class SystemWindowTimersTest : public testing::Test {
 protected:
  SystemWindowTimersTest() : window_(NewWindow()) {}
  ~SystemWindowTimersTest() override { DestroyWindow(window_); }

  static HWND NewWindow() {
    return CreateWindowExW(0, L"STATIC", L"Brimwork timers test", WS_OVERLAPPEDWINDOW, 0, 0, 100,
                           100, nullptr, nullptr, nullptr, nullptr);
  }
  WindowHandle Window() const { return AsHandle(window_); }

  TimerProcedure Counting(int& count) {
    return [&count](WindowHandle, std::uint32_t, TimerId, std::uint32_t) { ++count; };
  }

  /// Handles messages until that is so; false when it is not within ten seconds.
  static bool WaitUntil(const std::function<bool()>& isSo) {
    ThreadMessages messages;
    for (const DWORD start = GetTickCount(); GetTickCount() - start < 10000;) {
      if (isSo()) return true;
      MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
      messages.DoEvents();
    }
    return isSo();
  }
  /// Long enough for several timers of the shortest interval.
  static void Wait() {
    const DWORD start = GetTickCount();
    WaitUntil([&] { return GetTickCount() - start > 100; });
  }

  HWND window_;
  std::unique_ptr<SystemWindowTimers> timers_ = std::make_unique<SystemWindowTimers>();
};

TEST_F(SystemWindowTimersTest, ATimerFiresAgainAndAgainAndSaysWhoseItIs) {
  int count = 0;
  WindowHandle window = 0;
  std::uint32_t message = 0;
  TimerId id = 0;
  const DWORD start = GetTickCount();
  DWORD time = 0;
  EXPECT_EQ(
      timers_->SetTimer(Window(), 0x5001, 0,
                        [&](WindowHandle of, std::uint32_t with, TimerId number, std::uint32_t at) {
                          ++count;
                          window = of;
                          message = with;
                          id = number;
                          time = at;
                        }),
      0x5001u);
  EXPECT_TRUE(WaitUntil([&] { return count >= 3; }));
  EXPECT_EQ(window, Window());
  EXPECT_EQ(message, window_message::kTimer);
  EXPECT_EQ(id, 0x5001u);
  EXPECT_LT(time - start, 11000u);
}

TEST_F(SystemWindowTimersTest, AKilledTimerIsSilent) {
  int count = 0;
  timers_->SetTimer(Window(), 1, 0, Counting(count));
  Sleep(50);  // its message may be under way by now
  EXPECT_TRUE(timers_->KillTimer(Window(), 1));
  EXPECT_FALSE(timers_->KillTimer(Window(), 1));
  EXPECT_FALSE(timers_->KillTimer(Window(), 2));
  Wait();
  EXPECT_EQ(count, 0);
}

TEST_F(SystemWindowTimersTest, ATimerOfTheSameNumberTakesTheOthersPlace) {
  int first = 0;
  int second = 0;
  timers_->SetTimer(Window(), 1, 0, Counting(first));
  timers_->SetTimer(Window(), 1, 0, Counting(second));
  EXPECT_TRUE(WaitUntil([&] { return second >= 2; }));
  EXPECT_EQ(first, 0);
  EXPECT_TRUE(timers_->KillTimer(Window(), 1));
  EXPECT_FALSE(timers_->KillTimer(Window(), 1));
}

TEST_F(SystemWindowTimersTest, TheSameNumberOfAnotherWindowIsAnotherTimer) {
  const HWND other = NewWindow();
  int count = 0;
  timers_->SetTimer(Window(), 1, 0, Counting(count));
  timers_->SetTimer(AsHandle(other), 1, 0, Counting(count));
  EXPECT_TRUE(timers_->KillTimer(Window(), 1));
  EXPECT_TRUE(WaitUntil([&] { return count >= 2; }));
  EXPECT_TRUE(timers_->KillTimer(AsHandle(other), 1));
  DestroyWindow(other);
}

TEST_F(SystemWindowTimersTest, AProcedureMayKillItsOwnTimer) {
  int count = 0;
  timers_->SetTimer(Window(), 1, 0, [&](WindowHandle of, std::uint32_t, TimerId id, std::uint32_t) {
    ++count;
    EXPECT_TRUE(timers_->KillTimer(of, id));
  });
  EXPECT_TRUE(WaitUntil([&] { return count > 0; }));
  Wait();
  EXPECT_EQ(count, 1);
}

TEST_F(SystemWindowTimersTest, AProcedureMayReplaceItsOwnTimer) {
  int first = 0;
  int second = 0;
  timers_->SetTimer(Window(), 1, 0, [&](WindowHandle of, std::uint32_t, TimerId id, std::uint32_t) {
    ++first;
    timers_->SetTimer(of, id, 0, Counting(second));
  });
  EXPECT_TRUE(WaitUntil([&] { return second >= 2; }));
  EXPECT_EQ(first, 1);
}

TEST_F(SystemWindowTimersTest, AProcedureMayEndAllTimers) {
  int count = 0;
  timers_->SetTimer(Window(), 1, 0, [&](WindowHandle, std::uint32_t, TimerId, std::uint32_t) {
    ++count;
    timers_.reset();
  });
  EXPECT_TRUE(WaitUntil([&] { return count > 0; }));
  Wait();
  EXPECT_EQ(count, 1);
}

TEST_F(SystemWindowTimersTest, NothingThatAProcedureThrowsReachesTheMessageLoop) {
  int count = 0;
  timers_->SetTimer(Window(), 1, 0, [&](WindowHandle, std::uint32_t, TimerId, std::uint32_t) {
    ++count;
    throw std::runtime_error("of the procedure");
  });
  EXPECT_TRUE(WaitUntil([&] { return count >= 2; }));
}

TEST_F(SystemWindowTimersTest, TimersEndWithTheObject) {
  int count = 0;
  timers_->SetTimer(Window(), 1, 0, Counting(count));
  timers_->SetTimer(0, 0, 0, Counting(count));
  timers_.reset();
  Wait();
  EXPECT_EQ(count, 0);
}

TEST_F(SystemWindowTimersTest, ATimerEndsWithItsWindow) {
  int count = 0;
  timers_->SetTimer(Window(), 1, 0, Counting(count));
  DestroyWindow(window_);
  Wait();
  EXPECT_EQ(count, 0);
  EXPECT_FALSE(timers_->KillTimer(Window(), 1));
  EXPECT_EQ(timers_->SetTimer(Window(), 1, 0, Counting(count)), 0u);
}

TEST_F(SystemWindowTimersTest, ATimerWithoutAWindowGetsANumberOfItsOwn) {
  int first = 0;
  int second = 0;
  const TimerId one = timers_->SetTimer(0, 7, 0, Counting(first));
  const TimerId other = timers_->SetTimer(0, 7, 0, Counting(second));
  EXPECT_NE(one, 0u);
  EXPECT_NE(one, other);
  EXPECT_TRUE(WaitUntil([&] { return first > 0 && second > 0; }));
  EXPECT_TRUE(timers_->KillTimer(0, one));
  EXPECT_TRUE(timers_->KillTimer(0, other));
}

TEST_F(SystemWindowTimersTest, TimersFireWhileAMessageBoxIsUp) {
  int count = 0;
  timers_->SetTimer(Window(), 1, 0, [&](WindowHandle, std::uint32_t, TimerId, std::uint32_t) {
    const HWND box = FindWindowW(L"#32770", L"Brimwork timers box");
    if (++count >= 3 && box != nullptr) PostMessageW(box, WM_COMMAND, IDYES, 0);
  });
  EXPECT_EQ(SystemMessageBoxes().MessageBox(Window(), "Wait?", "Brimwork timers box", MB_YESNO),
            message_box_result::kYes);
  EXPECT_GE(count, 3);
}

}  // namespace system_window_timers_test
}  // namespace brimwork::windows

#include "ide_windows/modTweakWindow.h"

#include <gtest/gtest.h>

#include "environment/run_time_error.h"
#include "support/desktop_fixture.h"

namespace brimwork {
namespace modTweakWindow_test {

constexpr WindowHandle kMain = 7;

struct TweakWindow : testing::Test, DesktopFixture {
  TweakWindow() {
    screen.AddWindow("Stock - Brim", kMain);
    vbe.mainWindow = std::make_shared<CaptionedWindow>("Stock - Brim");
  }
};

TEST_F(TweakWindow, LockingFreezesTheWindowOfTheTitleAndWritesItsHandleBack) {
  WindowHandle handle = 0;
  SetWindowUpdateLock(environment, true, handle, "Stock - Brim");
  EXPECT_EQ(handle, kMain);
  EXPECT_EQ(screen.LockedWindow(), kMain);
  EXPECT_EQ(screen.MousePointer(), mouse_pointer::kHourglass);
}

TEST_F(TweakWindow, UnlockingEndsTheFreezeAndShowsTheDefaultPointer) {
  WindowHandle handle = 0;
  SetWindowUpdateLock(environment, true, handle, "Stock - Brim");
  SetWindowUpdateLock(environment, false, handle, "Stock - Brim");
  EXPECT_EQ(screen.LockedWindow(), 0u);
  EXPECT_EQ(screen.MousePointer(), mouse_pointer::kDefault);
}

TEST_F(TweakWindow, AKnownHandleIsNotLookedUp) {
  WindowHandle handle = 9;
  SetWindowUpdateLock(environment, true, handle, "Stock - Brim");
  EXPECT_EQ(handle, 9u);
  EXPECT_EQ(screen.LockedWindow(), 9u);
}

TEST_F(TweakWindow, NothingHappensWhenNoWindowIsFound) {
  WindowHandle handle = 0;
  SetWindowUpdateLock(environment, true, handle, "Another");
  EXPECT_EQ(handle, 0u);
  EXPECT_EQ(screen.LockedWindow(), 0u);
  EXPECT_EQ(screen.MousePointer(), mouse_pointer::kDefault);
}

TEST_F(TweakWindow, NothingIsUnlockedWhenNoWindowIsFound) {
  screen.LockWindowUpdate(5);
  WindowHandle handle = 0;
  SetWindowUpdateLock(environment, false, handle, "Another");
  EXPECT_EQ(screen.LockedWindow(), 5u);
}

TEST_F(TweakWindow, TheGuardLocksTheMainWindowForItsLife) {
  {
    const RedrawLock lock(environment);
    EXPECT_EQ(screen.LockedWindow(), kMain);
    EXPECT_EQ(screen.MousePointer(), mouse_pointer::kHourglass);
  }
  EXPECT_EQ(screen.LockedWindow(), 0u);
  EXPECT_EQ(screen.MousePointer(), mouse_pointer::kDefault);
}

TEST_F(TweakWindow, TheGuardUnlocksAWindowWhoseTitleChangedInTheMeantime) {
  {
    const RedrawLock lock(environment);
    screen.RemoveWindow("Stock - Brim");
    screen.AddWindow("Stock - Brim [design]", kMain);
  }
  EXPECT_EQ(screen.LockedWindow(), 0u);
}

TEST_F(TweakWindow, TheGuardUnlocksWhenARunTimeErrorPassesThroughIt) {
  try {
    const RedrawLock lock(environment);
    throw RunTimeError(error_number::kInvalidProcedureCall, "in the middle");
  } catch (const RunTimeError&) {
  }
  EXPECT_EQ(screen.LockedWindow(), 0u);
  EXPECT_EQ(screen.MousePointer(), mouse_pointer::kDefault);
}

TEST_F(TweakWindow, TheGuardDoesNothingWithoutAMainWindow) {
  vbe.mainWindow = nullptr;
  screen.AddWindow("", 8);
  const RedrawLock lock(environment);
  EXPECT_EQ(screen.LockedWindow(), 0u);
}

class FailingWindow : public CaptionedWindow {
 public:
  FailingWindow() : CaptionedWindow("") {}
  std::string Caption() override {
    throw RunTimeError(error_number::kInvalidProcedureCall, "no caption");
  }
};

TEST_F(TweakWindow, TheGuardDoesNothingWhenTheMainWindowCannotBeAsked) {
  vbe.mainWindow = std::make_shared<FailingWindow>();
  const RedrawLock lock(environment);
  EXPECT_EQ(screen.LockedWindow(), 0u);
}

/// Raises an error at each of the next calls, as many as a test asks for.
class BusyScreen : public MemoryScreen {
 public:
  void SetMousePointer(int pointer) override {
    Call();
    MemoryScreen::SetMousePointer(pointer);
  }
  WindowHandle FindWindowByTitle(std::string_view title) override {
    Call();
    return MemoryScreen::FindWindowByTitle(title);
  }
  void LockWindowUpdate(WindowHandle window) override {
    Call();
    MemoryScreen::LockWindowUpdate(window);
  }

  int failures = 0;

 private:
  void Call() {
    if (failures == 0) return;
    --failures;
    throw RunTimeError(error_number::kInvalidProcedureCall, "busy");
  }
};

struct BusyTweakWindow : TweakWindow {
  BusyTweakWindow() { busy.AddWindow("Stock - Brim", kMain); }

  BusyScreen busy;
  Environment busyEnvironment = With(busy, dialogs);
};

TEST_F(BusyTweakWindow, ALookUpThatFailsIsPassedOver) {
  busy.failures = 1;
  WindowHandle handle = 0;
  SetWindowUpdateLock(busyEnvironment, true, handle, "Stock - Brim");
  EXPECT_EQ(handle, 0u);
  EXPECT_EQ(busy.LockedWindow(), 0u);
}

TEST_F(BusyTweakWindow, AWindowIsStillFrozenWhenThePointerCannotBeSet) {
  busy.failures = 1;
  WindowHandle handle = kMain;
  SetWindowUpdateLock(busyEnvironment, true, handle, "Stock - Brim");
  EXPECT_EQ(busy.LockedWindow(), kMain);
}

TEST_F(BusyTweakWindow, TheGuardTriesAgainWhenUnlockingFailsForAMoment) {
  {
    const RedrawLock lock(busyEnvironment);
    ASSERT_EQ(busy.LockedWindow(), kMain);
    busy.failures = 2;
  }
  EXPECT_EQ(busy.LockedWindow(), 0u);
  EXPECT_EQ(busy.MousePointer(), mouse_pointer::kDefault);
}

}  // namespace modTweakWindow_test
}  // namespace brimwork

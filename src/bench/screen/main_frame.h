// The main window: its menu bar, the client of its code windows, and the messages that it hands on.
#pragma once

#include <deque>
#include <functional>

#include "bench/screen/handles.h"
#include "bench/screen/native_window.h"

namespace brimwork::bench {

/// Whom the main window tells of what happens to it.
class FrameEvents {
 public:
  virtual ~FrameEvents() = default;

  virtual void OnResize() = 0;
  virtual void OnIdle() = 0;   // some time after Settle was asked for
  virtual void OnFocus() = 0;  // the main window itself got the keyboard's focus
  virtual void OnCloseAsked() = 0;
  virtual void OnCommand(UINT command) = 0;
  virtual void OnMenuOpening(HMENU menu) = 0;
  /// The mouse over the frame's own surface, or while it has captured it; place: of the frame.
  virtual void OnMouse(UINT message, POINT place) = 0;
  virtual HCURSOR CursorAt(POINT place) = 0;  // null for the usual one
};

class MainFrame : public NativeWindow {
 public:
  explicit MainFrame(FrameEvents& events);
  ~MainFrame() override;

  HWND Client() const { return client_; }

  /// Runs a task when the message that is being answered is done with.
  void Later(std::function<void()> task);

  /// Asks for OnIdle soon: the longer it took the last time, the later.
  void AskForIdle();

  void SetMenuBar(MenuHandle menu);
  bool IsInMenu() const { return isInMenu_; }

 protected:
  LRESULT OnMessage(UINT message, WPARAM wide, LPARAM longer) override;
  LRESULT Default(UINT message, WPARAM wide, LPARAM longer) override {
    return DefFrameProcW(Handle(), client_, message, wide, longer);
  }

 private:
  void CreateClient();
  void RunTasks();
  void TellIdle();
  bool SetCursorFor(LPARAM longer);

  FrameEvents& events_;
  HWND client_ = nullptr;  // goes with this window
  IconHandle icon_;
  MenuHandle menu_;
  std::deque<std::function<void()>> tasks_;
  bool isIdleAsked_ = false;
  DWORD idleDelay_;  // milliseconds
  bool isInMenu_ = false;
  bool isClosing_ = false;  // nobody is told any more
};

}  // namespace brimwork::bench

// Looks out for a window that comes and goes by itself while the test waits for something else.
#pragma once

#include <windows.h>

#include <atomic>
#include <string>
#include <thread>
#include <utility>

namespace brimwork {

class WindowWatch {
 public:
  /// Looks for a shown window with this title until the watch ends. Titles are read without asking
  /// the window's program, which may be busy.
  explicit WindowWatch(std::wstring title)
      : title_(std::move(title)), thread_([this] {
          while (!isEnding_) {
            Look();
            Sleep(kPause);
          }
        }) {}
  ~WindowWatch() {
    isEnding_ = true;
    thread_.join();
  }
  WindowWatch(const WindowWatch&) = delete;
  WindowWatch& operator=(const WindowWatch&) = delete;

  bool IsShown() const { return isShown_; }
  bool WasShown() const { return timesShown_ > 0; }
  int TimesShown() const { return timesShown_; }
  /// For how long it has been shown, all times together.
  DWORD Milliseconds() const { return milliseconds_; }

 private:
  static constexpr DWORD kPause = 5;  // milliseconds

  void Look() {
    const HWND window = FindWindowW(nullptr, title_.c_str());
    const bool isShown = window != nullptr && IsWindowVisible(window);
    const DWORD now = GetTickCount();
    if (isShown && !isShown_) ++timesShown_;
    if (isShown && isShown_) milliseconds_ += now - lastLook_;
    lastLook_ = now;
    isShown_ = isShown;
  }

  const std::wstring title_;
  DWORD lastLook_ = 0;
  std::atomic<bool> isEnding_ = false;
  std::atomic<bool> isShown_ = false;
  std::atomic<int> timesShown_ = 0;
  std::atomic<DWORD> milliseconds_ = 0;
  std::thread thread_;
};

}  // namespace brimwork

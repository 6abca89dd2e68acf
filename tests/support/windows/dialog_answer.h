// The answer to a modal dialog that a test is about to open: given from a thread of its own, once
// the dialog is there.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <thread>

namespace brimwork {

class DialogAnswer {
 public:
  /// Waits up to half a minute for a shown dialog of that title, "" for any, and calls answer with
  /// it. Where none comes, whatever dialog is open then is cancelled.
  DialogAnswer(std::wstring title, std::function<void(HWND)> answer)
      : thread_([this, title = std::move(title), answer = std::move(answer)] {
          for (int i = 0; i < kAttempts && !wasFound_; ++i) {
            if (const HWND dialog = Find(title)) {
              wasFound_ = true;
              answer(dialog);
            } else {
              Sleep(kPause);
            }
          }
          if (!wasFound_) Press(Find(L""), IDCANCEL);
        }) {}
  ~DialogAnswer() { thread_.join(); }
  DialogAnswer(const DialogAnswer&) = delete;
  DialogAnswer& operator=(const DialogAnswer&) = delete;

  static void Press(HWND dialog, int button) {
    PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0);
  }

  /// The first shown child of a class, at any depth; null when there is none.
  static HWND ChildOf(HWND dialog, const wchar_t* className) {
    Search search = {className, nullptr};
    EnumChildWindows(dialog, &LookAtChild, reinterpret_cast<LPARAM>(&search));
    return search.found;
  }

  static std::wstring TextOf(HWND window) {
    std::wstring text(1000, L'\0');
    text.resize(static_cast<std::size_t>(
        SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
    return text;
  }

 private:
  static constexpr int kAttempts = 1500;
  static constexpr DWORD kPause = 20;  // milliseconds

  struct Search {
    std::wstring text;
    HWND found;
  };

  static std::wstring ClassOf(HWND window) {
    wchar_t name[100];
    return {name, static_cast<std::size_t>(GetClassNameW(window, name, 100))};
  }

  static BOOL CALLBACK LookAtChild(HWND child, LPARAM parameter) {
    Search& search = *reinterpret_cast<Search*>(parameter);
    if (!IsWindowVisible(child) || ClassOf(child) != search.text) return TRUE;
    search.found = child;
    return FALSE;
  }

  static BOOL CALLBACK LookAtWindow(HWND window, LPARAM parameter) {
    Search& search = *reinterpret_cast<Search*>(parameter);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    const bool fits = process == GetCurrentProcessId() && IsWindowVisible(window) &&
                      ClassOf(window) == L"#32770" &&
                      (search.text.empty() || TextOf(window) == search.text);
    if (fits) search.found = window;
    return !fits;
  }

  /// A shown dialog of this process.
  static HWND Find(const std::wstring& title) {
    Search search = {title, nullptr};
    EnumWindows(&LookAtWindow, reinterpret_cast<LPARAM>(&search));
    return search.found;
  }

  bool wasFound_ = false;
  std::thread thread_;
};

}  // namespace brimwork

// A host of native windows, with the means of a user: keys, a mouse, and eyes.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

#include "support/sample_form.h"
#include "win32/wide_text.h"
#include "windows/desktop/system_keyboard.h"
#include "windows/forms/native_form_host.h"

namespace brimwork::windows {

/// The bytes of a picture of the project, by its name; none for other names.
inline std::span<const std::uint8_t> ProjectPicture(std::string_view name) {
  static std::map<std::string, std::vector<std::uint8_t>, std::less<>> files;
  const auto known = files.find(name);
  if (known != files.end()) return known->second;
  const char* const kind = name.starts_with("icon/") ? ".ico" : ".bmp";
  std::ifstream file(BRIMWORK_SOURCE_DIR "/resources/" + std::string(name) + kind,
                     std::ios::binary);
  return files[std::string(name)] = {std::istreambuf_iterator<char>(file), {}};
}

struct NativeForms {
  NativeForms() {
    owner = CreateWindowExW(0, L"STATIC", L"Brimwork forms test", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                            10, 10, 200, 100, nullptr, nullptr, nullptr, nullptr);
  }
  ~NativeForms() {
    DestroyWindow(owner);
    messages.DoEvents();
  }

  static HWND WindowOf(const Form& form) { return reinterpret_cast<HWND>(form.hWnd()); }
  HWND WindowOf(const Control& control) const { return host.HandleOf(control); }

  std::string TextOf(HWND window) const {
    wchar_t text[500];
    const int length = GetWindowTextW(window, text, 500);
    return win32::Narrow({text, static_cast<std::size_t>(length)});
  }
  std::string TextOf(const Control& control) const { return TextOf(WindowOf(control)); }

  /// The control that the system sends keys to; null for others of the form's windows.
  const Control* Focused(const Form& form) const {
    for (const Control* control : form.Controls()) {
      if (WindowOf(*control) != nullptr && WindowOf(*control) == GetFocus()) return control;
    }
    return nullptr;
  }

  COLORREF PixelOf(const Control& control, int x, int y) const {
    messages.DoEvents();
    const HDC context = GetDC(WindowOf(control));
    const COLORREF color = GetPixel(context, x, y);
    ReleaseDC(WindowOf(control), context);
    return color;
  }

  void Type(std::string_view keys) { keyboard.SendKeys(keys, true); }

  void Click(const Control& control) {
    RECT area;
    GetWindowRect(WindowOf(control), &area);
    ClickAt((area.left + area.right) / 2, (area.top + area.bottom) / 2);
  }
  void ClickInside(const Control& control, int x, int y) {
    POINT point = {x, y};
    ClientToScreen(WindowOf(control), &point);
    ClickAt(point.x, point.y);
  }

  void Wait(DWORD milliseconds) {
    const DWORD start = GetTickCount();
    while (GetTickCount() - start < milliseconds) {
      messages.DoEvents();
      Sleep(5);
    }
  }

  HWND owner = nullptr;
  mutable ThreadMessages messages;
  SystemKeyboard keyboard{messages};
  std::vector<std::string> errors;
  NativeFormHost host{ProjectPicture, [this] { return owner; },
                      [this](const std::exception& error) { errors.push_back(error.what()); }};

 private:
  void ClickAt(int x, int y) {
    SetCursorPos(x, y);
    messages.DoEvents();
    INPUT events[2] = {};
    events[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
    events[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
    for (INPUT& event : events) {
      event.type = INPUT_MOUSE;
      SendInput(1, &event, sizeof event);
      Wait(20);
    }
  }
};

/// The sample form in front of the others, its events forgotten.
struct NativeSample : NativeForms {
  NativeSample() {
    form.Show();
    messages.DoEvents();
    form.events.clear();
  }

  bool HasNoKeyboard() const { return GetForegroundWindow() != WindowOf(form); }

  frmSample form{host};
};

#define BRIMWORK_NEEDS_KEYBOARD(sample) \
  if ((sample).HasNoKeyboard()) GTEST_SKIP() << "this desktop gives a window no focus"

}  // namespace brimwork::windows

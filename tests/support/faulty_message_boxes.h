// Message boxes, and what is done to them while they are up, with calls that fail: each operation
// is counted, then handed on. A timer's procedure is called as it is.
#pragma once

#include <memory>
#include <string>
#include <utility>

#include "environment/dialog_windows.h"
#include "environment/form_screen.h"
#include "environment/message_boxes.h"
#include "environment/window_timers.h"
#include "support/faulty_calls.h"

namespace brimwork {

class FaultyDialogWindows : public DialogWindows {
 public:
  FaultyDialogWindows(DialogWindows& inner, FaultyCalls& calls) : inner_(inner), calls_(calls) {}
  WindowHandle FindWindow(std::string_view className, std::string_view title) override {
    return calls_.Through("DialogWindows.FindWindow",
                          [&] { return inner_.FindWindow(className, title); });
  }
  WindowHandle FindWindowEx(WindowHandle parent, WindowHandle childAfter,
                            std::string_view className, std::string_view text) override {
    return calls_.Through("DialogWindows.FindWindowEx",
                          [&] { return inner_.FindWindowEx(parent, childAfter, className, text); });
  }
  void SetForegroundWindow(WindowHandle window) override {
    calls_.Through("DialogWindows.SetForegroundWindow",
                   [&] { inner_.SetForegroundWindow(window); });
  }
  WindowHandle GetFocus() override {
    return calls_.Through("DialogWindows.GetFocus", [&] { return inner_.GetFocus(); });
  }
  WindowRectangle GetWindowRect(WindowHandle window) override {
    return calls_.Through("DialogWindows.GetWindowRect",
                          [&] { return inner_.GetWindowRect(window); });
  }
  void MoveWindow(WindowHandle window, const WindowArea& area, bool repaint) override {
    calls_.Through("DialogWindows.MoveWindow", [&] { inner_.MoveWindow(window, area, repaint); });
  }
  WindowHandle CreateWindowEx(const NewWindow& window) override {
    return calls_.Through("DialogWindows.CreateWindowEx",
                          [&] { return inner_.CreateWindowEx(window); });
  }
  void SetWindowText(WindowHandle window, std::string_view text) override {
    calls_.Through("DialogWindows.SetWindowText", [&] { inner_.SetWindowText(window, text); });
  }

 private:
  DialogWindows& inner_;
  FaultyCalls& calls_;
};

class FaultyWindowTimers : public WindowTimers {
 public:
  FaultyWindowTimers(WindowTimers& inner, FaultyCalls& calls) : inner_(inner), calls_(calls) {}
  TimerId SetTimer(WindowHandle window, TimerId id, std::uint32_t milliseconds,
                   TimerProcedure procedure) override {
    return calls_.Through("WindowTimers.SetTimer", [&] {
      return inner_.SetTimer(window, id, milliseconds, std::move(procedure));
    });
  }
  bool KillTimer(WindowHandle window, TimerId id) override {
    return calls_.Through("WindowTimers.KillTimer", [&] { return inner_.KillTimer(window, id); });
  }

 private:
  WindowTimers& inner_;
  FaultyCalls& calls_;
};

class FaultyMessageBoxes : public MessageBoxes {
 public:
  FaultyMessageBoxes(MessageBoxes& inner, FaultyCalls& calls) : inner_(inner), calls_(calls) {}
  int MessageBox(WindowHandle owner, std::string_view text, std::string_view title,
                 std::int32_t style) override {
    return calls_.Through("MessageBoxes.MessageBox",
                          [&] { return inner_.MessageBox(owner, text, title, style); });
  }

 private:
  MessageBoxes& inner_;
  FaultyCalls& calls_;
};

class FaultyScreenForm : public ScreenForm {
 public:
  FaultyScreenForm(std::shared_ptr<ScreenForm> inner, FaultyCalls& calls)
      : inner_(std::move(inner)), calls_(calls) {}
  WindowHandle hWnd() override {
    return calls_.Through("ScreenForm.hWnd", [&] { return inner_->hWnd(); });
  }
  double TextHeight(std::string_view text) override {
    return calls_.Through("ScreenForm.TextHeight", [&] { return inner_->TextHeight(text); });
  }
  double TextWidth(std::string_view text) override {
    return calls_.Through("ScreenForm.TextWidth", [&] { return inner_->TextWidth(text); });
  }

 private:
  std::shared_ptr<ScreenForm> inner_;
  FaultyCalls& calls_;
};

class FaultyFormScreen : public FormScreen {
 public:
  FaultyFormScreen(FormScreen& inner, FaultyCalls& calls) : inner_(inner), calls_(calls) {}
  std::shared_ptr<ScreenForm> ActiveForm() override {
    return calls_.ObjectThrough("FormScreen.ActiveForm", [&]() -> std::shared_ptr<ScreenForm> {
      auto form = inner_.ActiveForm();
      return form ? std::make_shared<FaultyScreenForm>(std::move(form), calls_) : nullptr;
    });
  }
  double Width() override {
    return calls_.Through("FormScreen.Width", [&] { return inner_.Width(); });
  }
  double Height() override {
    return calls_.Through("FormScreen.Height", [&] { return inner_.Height(); });
  }
  double TwipsPerPixelX() override {
    return calls_.Through("FormScreen.TwipsPerPixelX", [&] { return inner_.TwipsPerPixelX(); });
  }
  double TwipsPerPixelY() override {
    return calls_.Through("FormScreen.TwipsPerPixelY", [&] { return inner_.TwipsPerPixelY(); });
  }

 private:
  FormScreen& inner_;
  FaultyCalls& calls_;
};

}  // namespace brimwork

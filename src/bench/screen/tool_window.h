// A tool window, docked in the main window: a small caption bar with a close button, and beneath it
// what the window is for.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "bench/screen/native_window.h"
#include "bench/screen/screen_host.h"

namespace brimwork::bench {

/// What a tool window holds.
class ToolContent {
 public:
  virtual ~ToolContent() = default;

  /// The child that fills the window.
  virtual HWND Handle() const = 0;
  virtual HWND FocusTarget() const { return Handle(); }

  virtual void TakeInput() {}
  virtual void Refresh() {}
  virtual void Arrange(const Bounds& room);

  /// Answers a notification of a child's; nothing when it has no answer.
  virtual std::optional<LRESULT> OnNotify(const NMHDR& /*note*/) { return std::nullopt; }
};

class ToolWindow : public NativeWindow {
 public:
  ToolWindow(const ScreenParts& parts, HWND frame, std::shared_ptr<MemoryWindow> window);

  /// Has to come before anything else.
  void Hold(std::unique_ptr<ToolContent> content);

  const std::shared_ptr<MemoryWindow>& Model() const { return window_; }
  ToolContent& Content() { return *content_; }
  HWND FocusTarget() const { return content_->FocusTarget(); }

  void Refresh();

 protected:
  LRESULT OnMessage(UINT message, WPARAM wide, LPARAM longer) override;

 private:
  void Arrange();
  void Paint();
  void PaintCaption(HDC context) const;
  RECT CaptionArea() const;
  RECT CloseArea() const;
  void OnPress(POINT place);
  void OnRelease(POINT place);
  LRESULT OnNote(const NMHDR& note, WPARAM wide, LPARAM longer);

  ScreenParts parts_;
  std::shared_ptr<MemoryWindow> window_;
  std::unique_ptr<ToolContent> content_;
  std::string caption_;         // the one shown
  bool isShownActive_ = false;  // with the colours of the window that has the focus
  bool isPressingClose_ = false;
};

}  // namespace brimwork::bench

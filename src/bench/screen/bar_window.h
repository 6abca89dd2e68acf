// A toolbar's window, docked or in a small window of its own: its buttons with tool tips.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "bench/screen/bar_painter.h"
#include "bench/screen/native_window.h"
#include "bench/screen/screen_host.h"

namespace brimwork::bench {

/// What toolbars ask of whoever moves them about.
class BarMover {
 public:
  virtual ~BarMover() = default;

  /// The user has taken hold of a bar; place is one of the screen.
  virtual void StartDrag(const std::shared_ptr<MemoryCommandBar>& bar, POINT place) = 0;
};

class BarWindow : public NativeWindow {
 public:
  BarWindow(const ScreenParts& parts, BarMover& mover, HWND frame,
            std::shared_ptr<MemoryCommandBar> bar);

  const std::shared_ptr<MemoryCommandBar>& Model() const { return bar_; }

  /// Reads the model's entries; true when they take another room than before.
  bool Refresh();

  /// The room that the bar takes where a row has limit pixels.
  Size Measure(int position, int limit) const;

  /// Moves the window and lays its buttons out.
  void Place(int position, const Bounds& bounds);

  /// Where a button stands in this window; nothing for one that is not shown.
  std::optional<Bounds> BoundsOf(const MemoryCommandBarControl& control) const;

 protected:
  LRESULT OnMessage(UINT message, WPARAM wide, LPARAM longer) override;

 private:
  struct Button {
    std::shared_ptr<MemoryCommandBarControl> control;
    ControlLook look;

    bool operator==(const Button&) const = default;
  };

  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  Flow FlowIn(int position, int limit) const;
  int Grip(int position) const;
  bool IsDown() const;
  std::vector<Button> CurrentButtons() const;
  std::size_t ButtonAt(POINT place) const;
  void Paint();
  void PaintAll(HDC context, const RECT& room);
  void ShowTips();
  void OnMove(POINT place);
  void OnPress(POINT place);
  void OnRelease(POINT place);
  void SetHot(std::size_t button);
  void OpenMenuOf(std::size_t button);
  void Redraw(std::size_t button);

  ScreenParts parts_;
  BarMover& mover_;
  std::shared_ptr<MemoryCommandBar> bar_;
  std::vector<Button> buttons_;
  Flow flow_;
  int position_ = 1;
  HWND tips_ = nullptr;  // goes with this window
  std::size_t tipCount_ = 0;
  std::size_t hot_ = kNone;
  std::size_t pressed_ = kNone;
};

}  // namespace brimwork::bench

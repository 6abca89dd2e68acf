// The toolbars on the screen: docked at the main window's edges, or in small windows of their own,
// as the model says and as the user drags them.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "bench/screen/bar_docks.h"
#include "bench/screen/bar_window.h"
#include "bench/screen/floating_bar.h"

namespace brimwork::bench {

class BarSet : public BarMover {
 public:
  BarSet(const ScreenParts& parts, HWND frame) : parts_(parts), frame_(frame) {}

  /// Reads the model; true when docked bars have to be arranged again.
  bool Refresh();

  /// Puts the docked bars into the frame's room and hands back what is left of it.
  Bounds Arrange(const Bounds& outer);

  /// From the frame's inner corner, or from the screen's where the bar floats; nothing for what is
  /// not on the screen.
  std::optional<Bounds> BoundsOf(const MemoryCommandBar& bar) const;
  std::optional<Bounds> BoundsOf(const MemoryCommandBarControl& control) const;

  void StartDrag(const std::shared_ptr<MemoryCommandBar>& bar, POINT place) override;
  bool IsDragging() const { return dragged_ != nullptr; }
  /// Moves the dragged bar in the model.
  void DragTo(POINT place);
  void EndDrag() { dragged_ = nullptr; }

 private:
  /// What the model says of a bar's place.
  struct Stand {
    std::shared_ptr<MemoryCommandBar> bar;
    int position = 0;
    int row = 0;
    int left = 0;
    int top = 0;

    bool operator==(const Stand&) const = default;
  };

  std::vector<Stand> CurrentStands() const;
  void ShowFloating();
  BarWindow& WindowOf(const std::shared_ptr<MemoryCommandBar>& bar);
  BarWindow* FindWindowOf(const MemoryCommandBar& bar) const;
  int RowAt(const DropPlace& place, POINT inFrame) const;

  ScreenParts parts_;
  HWND frame_;
  std::vector<Stand> stands_;  // of the bars that are shown
  std::vector<std::unique_ptr<BarWindow>> windows_;
  std::map<const MemoryCommandBar*, std::unique_ptr<FloatingBar>> floating_;
  Bounds outer_;
  Bounds inner_;
  std::shared_ptr<MemoryCommandBar> dragged_;
  POINT grabbed_{};  // where in the bar's window the user took hold
};

}  // namespace brimwork::bench

// A surface without a screen: places and states are plain values, and what was asked of it can be
// looked at.
#pragma once

#include <functional>
#include <map>
#include <string>

#include "bench/model/surface.h"

namespace brimwork::bench {

class BareSurface : public Surface {
 public:
  void TakeInput() override { ++takenInputs; }
  void ShowChanges() override { ++shownChanges; }

  std::intptr_t HandleOf(const MemoryWindow&) override { return 0; }
  /// {0, 0, 640, 480} until they are set.
  Bounds BoundsOf(const MemoryWindow& window) override;
  void SetBoundsOf(const MemoryWindow& window, const Bounds& bounds) override;
  WindowState StateOf(const MemoryWindow& window) override;
  void SetStateOf(const MemoryWindow& window, WindowState state) override;

  /// 1 until it is set.
  int TopLineOf(const MemoryCodePane& pane) override;
  void SetTopLineOf(const MemoryCodePane& pane, int line) override;
  int VisibleLinesOf(const MemoryCodePane&) override { return visibleLines; }

  /// As wide as its controls beside each other, where its details do not say otherwise.
  Bounds BoundsOf(const MemoryCommandBar& bar) override;
  /// Beside the controls in front of it, where its details do not say otherwise.
  Bounds BoundsOf(const MemoryCommandBarControl& control) override;

  std::string FaceFromClipboard() override { return faceOnClipboard; }
  void FaceToClipboard(const MemoryCommandBarControl& control) override;
  void ShowPopup(MemoryCommandBar& menu) override;
  void Quit() override { hasQuit = true; }

  int visibleLines = 25;
  std::string faceOnClipboard;
  /// What the user does in a menu that is opened; may be empty.
  std::function<void(MemoryCommandBar&)> onPopup;

  int takenInputs = 0;
  int shownChanges = 0;
  bool hasQuit = false;

 private:
  std::map<const MemoryWindow*, Bounds> windowBounds_;
  std::map<const MemoryWindow*, WindowState> windowStates_;
  std::map<const MemoryCodePane*, int> topLines_;
};

}  // namespace brimwork::bench

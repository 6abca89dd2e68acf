// What shows the workbench to a user, as far as its object model has to ask: native windows in the
// program, plain data where there is no screen.
#pragma once

#include <cstdint>
#include <string>

#include "memory/memory_code_pane.h"
#include "memory/memory_command_bar.h"
#include "memory/memory_command_bar_control.h"
#include "memory/memory_window.h"

namespace brimwork::bench {

/// Pixels; of a docked bar or of a child window they count from the main window's inner corner.
struct Bounds {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;

  bool operator==(const Bounds&) const = default;
};

enum class WindowState { kNormal = 0, kMinimized = 1, kMaximized = 2 };

class Surface {
 public:
  virtual ~Surface() = default;

  /// Takes what the user typed, selected, moved or closed since the last call into the workbench.
  /// Every call from outside begins with it.
  virtual void TakeInput() = 0;

  /// Shows what changed in the workbench since the last call, the focus included; costs next to
  /// nothing when nothing did. Every call from outside ends with it. Text may be drawn later, when
  /// the program is idle, as long as no key reaches a window before.
  virtual void ShowChanges() = 0;

  /// The native window, 0 where there is none.
  virtual std::intptr_t HandleOf(const MemoryWindow& window) = 0;

  virtual Bounds BoundsOf(const MemoryWindow& window) = 0;
  virtual void SetBoundsOf(const MemoryWindow& window, const Bounds& bounds) = 0;
  virtual WindowState StateOf(const MemoryWindow& window) = 0;
  virtual void SetStateOf(const MemoryWindow& window, WindowState state) = 0;

  /// The first line that the pane shows, from 1.
  virtual int TopLineOf(const MemoryCodePane& pane) = 0;
  /// line is one of the module's.
  virtual void SetTopLineOf(const MemoryCodePane& pane, int line) = 0;
  /// How many lines the pane has room for.
  virtual int VisibleLinesOf(const MemoryCodePane& pane) = 0;

  virtual Bounds BoundsOf(const MemoryCommandBar& bar) = 0;
  virtual Bounds BoundsOf(const MemoryCommandBarControl& control) = 0;

  /// Keeps the picture that is on the user's clipboard and answers with a name for it; "" when
  /// there is none.
  virtual std::string FaceFromClipboard() = 0;
  /// Puts a control's face on the user's clipboard.
  virtual void FaceToClipboard(const MemoryCommandBarControl& control) = 0;

  /// Opens a menu at the pointer and returns when it has been closed.
  virtual void ShowPopup(MemoryCommandBar& menu) = 0;

  /// Ends the program when the calls that are under way have returned.
  virtual void Quit() = 0;
};

}  // namespace brimwork::bench

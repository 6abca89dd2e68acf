// Keeps the keyboard's focus and the model's active window the same, whichever of them moves.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>

#include "bench/model/workbench.h"

namespace brimwork::bench {

class FocusLink {
 public:
  /// give: gives the focus to a window of the model, and to the main window for null.
  FocusLink(Workbench& bench, std::function<void(MemoryWindow*)> give);

  /// The focus has come to a window.
  void NoteFocus(const std::shared_ptr<MemoryWindow>& window);

  /// Runs a task that may move the focus about without anybody having said so.
  void Ignoring(const std::function<void()>& task);

  /// Gives the focus where the model wants it, if that was said since the last time.
  void FollowModel();

  /// Gives the focus where it belongs, as when the main window comes to the front or a window that
  /// had it is gone.
  void Restore();

 private:
  struct Asked {
    bool isAsked = false;
  };

  MemoryWindow* Wanted() const;

  Workbench& bench_;
  std::function<void(MemoryWindow*)> give_;
  std::shared_ptr<Asked> asked_;        // the model's listener may outlive this
  std::weak_ptr<MemoryWindow> latest_;  // the one that was active when this last looked
  bool isIgnoring_ = false;
};

}  // namespace brimwork::bench

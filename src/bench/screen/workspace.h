// The workspace in the middle of the main window: the code windows and designers.
#pragma once

#include <memory>
#include <vector>

#include "bench/screen/code_window.h"
#include "bench/screen/designer_window.h"

namespace brimwork::bench {

class Workspace {
 public:
  /// client: the main window's MDI client.
  Workspace(const ScreenParts& parts, HWND client) : parts_(parts), client_(client) {}

  /// Opens, shows, hides and closes windows as the model has them.
  void FollowModel();

  void TakeInput();
  void Refresh();

  const std::vector<std::unique_ptr<MdiChild>>& Windows() const { return windows_; }

  /// Null for a window that is none of these.
  MdiChild* Of(const MemoryWindow& window) const;
  CodeWindow* Of(const MemoryCodePane& pane) const;

  /// The one in front; null when there is none.
  MdiChild* Active() const;
  void Activate(const MdiChild& window);

  void Cascade() { SendMessageW(client_, WM_MDICASCADE, 0, 0); }
  void TileAcross() { SendMessageW(client_, WM_MDITILE, MDITILE_HORIZONTAL, 0); }
  void TileDown() { SendMessageW(client_, WM_MDITILE, MDITILE_VERTICAL, 0); }
  void ArrangeIcons() { SendMessageW(client_, WM_MDIICONARRANGE, 0, 0); }

 private:
  void CloseGone();
  void OpenNew();
  std::unique_ptr<MdiChild> NewWindow(const std::shared_ptr<MemoryWindow>& window);

  ScreenParts parts_;
  HWND client_;
  std::vector<std::unique_ptr<MdiChild>> windows_;
};

}  // namespace brimwork::bench

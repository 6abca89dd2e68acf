// The workbench in native windows.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "bench/model/surface.h"
#include "bench/model/workbench.h"
#include "bench/screen/bar_set.h"
#include "bench/screen/desk.h"
#include "bench/screen/faces.h"
#include "bench/screen/focus_link.h"
#include "bench/screen/fonts.h"
#include "bench/screen/main_frame.h"
#include "bench/screen/menu_table.h"
#include "bench/screen/screen_host.h"
#include "bench/screen/tool_set.h"
#include "bench/screen/user_commands.h"
#include "bench/screen/window_places.h"
#include "bench/screen/workspace.h"

namespace brimwork::bench {

class WorkbenchWindows : public Surface, private ScreenHost, private FrameEvents {
 public:
  /// Makes the windows; the workbench outlives them. Throws RunTimeError when the system makes
  /// none.
  explicit WorkbenchWindows(Workbench& bench);
  ~WorkbenchWindows() override;

  /// Shows the main window.
  void Show();

  /// Opens a project or a source file, and a window for it; shows a fault to the user.
  void Open(const std::filesystem::path& path);

  /// Draws all that waits to be drawn.
  void Settle();

  /// The keys that are commands wherever in the main window the focus is; true when the message was one of them. The
  /// message loop asks before it dispatches.
  bool TakesKey(MSG& message);

  HWND Frame() const { return frame_.Handle(); }

  // The Surface.

  void TakeInput() override;
  void ShowChanges() override;
  std::intptr_t HandleOf(const MemoryWindow& window) override;
  Bounds BoundsOf(const MemoryWindow& window) override;
  void SetBoundsOf(const MemoryWindow& window, const Bounds& bounds) override;
  WindowState StateOf(const MemoryWindow& window) override;
  void SetStateOf(const MemoryWindow& window, WindowState state) override;
  int TopLineOf(const MemoryCodePane& pane) override;
  void SetTopLineOf(const MemoryCodePane& pane, int line) override;
  int VisibleLinesOf(const MemoryCodePane& pane) override;
  Bounds BoundsOf(const MemoryCommandBar& bar) override;
  Bounds BoundsOf(const MemoryCommandBarControl& control) override;
  std::string FaceFromClipboard() override;
  void FaceToClipboard(const MemoryCommandBarControl& control) override;
  void ShowPopup(MemoryCommandBar& menu) override;
  void Quit() override;

 private:
  // What the windows ask for.
  void Do(std::function<void()> action) override;
  void RunCommand(int command) override;
  void CloseByUser(const std::shared_ptr<MemoryWindow>& window) override;
  void NoteInput() override { frame_.AskForIdle(); }
  void NoteFocus(const std::shared_ptr<MemoryWindow>& window) override;
  void OpenMenu(std::shared_ptr<MemoryCommandBarControls> entries, POINT place) override;
  HWND Owner() const override { return frame_.Handle(); }

  // What the main window tells.
  void OnResize() override { desk_.Arrange(); }
  void OnIdle() override { Settle(); }
  void OnFocus() override { focus_.Restore(); }
  void OnCloseAsked() override;
  void OnCommand(UINT command) override;
  void OnMenuOpening(HMENU menu) override;
  void OnMouse(UINT message, POINT place) override;
  HCURSOR CursorAt(POINT place) override { return desk_.CursorAt(place); }

  void FollowWindows();
  void RepairFocus();
  void ArrangeBars();
  void ShowActiveCaption(const MemoryWindow& window);
  void ShowToolboxFor(const MemoryWindow& window);
  void ShowTitle();
  void ShowMenuBar();
  void GiveFocus(MemoryWindow* window);
  void Perform(const std::function<void()>& action);

  Workbench& bench_;
  Fonts fonts_;
  Faces faces_;
  MainFrame frame_;
  ScreenParts parts_;
  MenuTable menus_;
  BarSet bars_;
  ToolSet tools_;
  Workspace workspace_;
  Desk desk_;
  WindowPlaces places_;
  FocusLink focus_;
  UserCommands commands_;

  std::string title_;
  std::vector<ControlLook> menuBar_;  // the one shown
  std::uint64_t windowsRevision_ = 0;
  bool isSettling_ = false;
  bool hasShownToolbox_ = false;  // for a designer
};

}  // namespace brimwork::bench

#include "bench/screen/workbench_windows.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

#include "bench/screen/faults.h"
#include "bench/screen/flag_scope.h"
#include "bench/screen/further_entries.h"
#include "win32/wide_text.h"

namespace brimwork::bench {
WorkbenchWindows::WorkbenchWindows(Workbench& bench)
    : bench_(bench),
      frame_(*this),
      parts_{bench_, *this, fonts_, faces_},
      menus_(faces_,
             [this](const auto& entries) { return FurtherEntriesOf(entries, bench_, workspace_); }),
      bars_(parts_, frame_.Handle()),
      tools_(parts_, frame_.Handle()),
      workspace_(parts_, frame_.Client()),
      desk_(frame_.Handle(), frame_.Client(), bars_, tools_),
      places_(bench_, frame_, workspace_, tools_),
      focus_(bench_, [this](MemoryWindow* window) { GiveFocus(window); }),
      commands_(parts_, workspace_, tools_, [this] { OnCloseAsked(); }) {
  bench_.vbe.commandBars.DisableIdleCommands();
  bench_.windows.toolbox->SetVisible(false);
  Settle();
}

WorkbenchWindows::~WorkbenchWindows() = default;

void WorkbenchWindows::Show() {
  ShowWindow(frame_.Handle(), SW_SHOW);
  SetForegroundWindow(frame_.Handle());
  Settle();
}

void WorkbenchWindows::Open(const std::filesystem::path& path) {
  Perform([&] { commands_.Open(path); });
  Settle();
}

void WorkbenchWindows::TakeInput() {
  workspace_.TakeInput();
  tools_.TakeInput();
}

// It is called where a call from outside has ended, which nothing may throw into.
void WorkbenchWindows::ShowChanges() {
  try {
    FollowWindows();
  } catch (...) {
    ReportFault(frame_.Handle());
  }
  frame_.AskForIdle();
}

/// Opens and closes windows as the model has them, and moves the focus with its active window.
void WorkbenchWindows::FollowWindows() {
  const auto revision = bench_.vbe.windows.Revision();
  const bool areOthers = std::exchange(windowsRevision_, revision) != revision;
  if (areOthers) {
    focus_.Ignoring([this] {
      workspace_.FollowModel();
      if (tools_.ReadVisibility()) desk_.Arrange();
    });
  }
  focus_.FollowModel();
  if (areOthers) RepairFocus();
}

/// The system moves the focus when windows come and go.
void WorkbenchWindows::RepairFocus() {
  if (GetActiveWindow() != frame_.Handle()) return;
  const HWND focused = GetFocus();
  const auto active = bench_.vbe.windows.Active();
  const HWND wanted = active != nullptr ? places_.NativeOf(*active) : frame_.Handle();
  const bool isThere = focused == wanted || (wanted != frame_.Handle() && IsChild(wanted, focused));
  if (!isThere) focus_.Restore();
}

void WorkbenchWindows::Settle() {
  if (isSettling_) return;
  const FlagScope settling(isSettling_);
  TakeInput();
  FollowWindows();
  commands_.ShowStates();
  ArrangeBars();
  workspace_.Refresh();
  tools_.Refresh();
  ShowTitle();
  ShowMenuBar();
}

void WorkbenchWindows::ArrangeBars() {
  if (bars_.Refresh()) desk_.Arrange();
}

void WorkbenchWindows::ShowTitle() {
  const std::string title = bench_.vbe.MainWindow()->Caption();
  if (std::exchange(title_, title) == title) return;
  SetWindowTextW(frame_.Handle(), win32::Wide(title).c_str());
}

void WorkbenchWindows::ShowMenuBar() {
  const auto& bar = bench_.bars.menuBar;
  std::vector<ControlLook> looks;
  for (const auto& control : bar->Entries()->All()) looks.push_back(LookInMenu(*control, faces_));
  if (looks == menuBar_ || frame_.IsInMenu()) return;
  menuBar_ = std::move(looks);
  menus_.Clear();
  frame_.SetMenuBar(menus_.NewMenuBar(bar->Entries()));
}

void WorkbenchWindows::GiveFocus(MemoryWindow* window) {
  const HWND frame = frame_.Handle();
  const bool isBehind = GetForegroundWindow() != frame;
  if (isBehind && IsWindowVisible(frame) && IsWindowEnabled(frame)) SetForegroundWindow(frame);
  const MdiChild* child = window != nullptr ? workspace_.Of(*window) : nullptr;
  if (child != nullptr) workspace_.Activate(*child);
  SetFocus(places_.FocusTargetOf(window));
}

void WorkbenchWindows::Do(std::function<void()> action) {
  frame_.Later([this, action = std::move(action)] { Perform(action); });
}

void WorkbenchWindows::Perform(const std::function<void()>& action) {
  TakeInput();
  try {
    action();
  } catch (...) {
    ReportFault(frame_.Handle());
  }
  ShowChanges();
}

void WorkbenchWindows::RunCommand(int command) {
  Do([this, command] {
    const auto controls = bench_.vbe.commandBars.ControlsOf(command);
    if (!controls.empty() && controls.front()->Details().enabled) controls.front()->Execute();
  });
}

// The system activates the window behind, and the focus goes with it.
void WorkbenchWindows::CloseByUser(const std::shared_ptr<MemoryWindow>& window) {
  Do([this, window] {
    window->Close();
    workspace_.FollowModel();
    const MdiChild* next = workspace_.Active();
    if (bench_.vbe.windows.Active() == nullptr && next != nullptr) next->Model()->SetFocus();
  });
}

void WorkbenchWindows::NoteFocus(const std::shared_ptr<MemoryWindow>& window) {
  focus_.NoteFocus(window);
  ShowToolboxFor(*window);
  ShowActiveCaption(*window);
  frame_.AskForIdle();
}

/// The system leaves the colours of the window that has the focus to the code window in front.
void WorkbenchWindows::ShowActiveCaption(const MemoryWindow& window) {
  const MdiChild* front = workspace_.Active();
  if (front == nullptr) return;
  SendMessageW(front->Handle(), WM_NCACTIVATE, front->Model().get() == &window, 0);
}

/// A designer brings the toolbox along; what the user has hidden since stays hidden.
void WorkbenchWindows::ShowToolboxFor(const MemoryWindow& window) {
  if (hasShownToolbox_ || bench_.ComponentOfDesigner(window) == nullptr) return;
  hasShownToolbox_ = true;
  bench_.windows.toolbox->SetVisible(true);
}

void WorkbenchWindows::OpenMenu(std::shared_ptr<MemoryCommandBarControls> entries, POINT place) {
  Do([this, entries = std::move(entries), place] {
    if (const auto action = ChooseFromMenu(menus_, entries, frame_.Handle(), place)) action();
  });
}

void WorkbenchWindows::OnCloseAsked() {
  Do([this] {
    if (commands_.MayClose()) Quit();
  });
}

void WorkbenchWindows::OnCommand(UINT command) {
  if (auto action = menus_.ActionOf(command)) Do(std::move(action));
}

void WorkbenchWindows::OnMenuOpening(HMENU menu) {
  TakeInput();
  bench_.TickShownToolbars();
  menus_.Fill(menu);
}

void WorkbenchWindows::OnMouse(UINT message, POINT place) {
  if (!bars_.IsDragging()) return desk_.OnMouse(message, place);
  if (message == WM_MOUSEMOVE) {
    ClientToScreen(frame_.Handle(), &place);
    bars_.DragTo(place);
    ArrangeBars();
  } else {
    bars_.EndDrag();
    if (message == WM_LBUTTONUP) ReleaseCapture();
  }
}

// An add-in's window has keys of its own.
bool WorkbenchWindows::TakesKey(MSG& message) {
  if (commands_.TakesKeyOfDialog(message)) return true;
  if (GetAncestor(message.hwnd, GA_ROOT) != frame_.Handle()) return false;
  return commands_.TakesKeyOfCommand(message) ||
         TranslateMDISysAccel(frame_.Client(), &message) != 0;
}

std::intptr_t WorkbenchWindows::HandleOf(const MemoryWindow& window) {
  FollowWindows();
  return reinterpret_cast<std::intptr_t>(places_.NativeOf(window));
}

Bounds WorkbenchWindows::BoundsOf(const MemoryWindow& window) {
  FollowWindows();
  return places_.BoundsOf(window);
}

void WorkbenchWindows::SetBoundsOf(const MemoryWindow& window, const Bounds& bounds) {
  FollowWindows();
  places_.SetBoundsOf(window, bounds);
}

WindowState WorkbenchWindows::StateOf(const MemoryWindow& window) {
  FollowWindows();
  return places_.StateOf(window);
}

void WorkbenchWindows::SetStateOf(const MemoryWindow& window, WindowState state) {
  FollowWindows();
  places_.SetStateOf(window, state);
}

int WorkbenchWindows::TopLineOf(const MemoryCodePane& pane) {
  CodeWindow* window = workspace_.Of(pane);
  return window != nullptr ? window->Text().TopLine() : 1;
}

void WorkbenchWindows::SetTopLineOf(const MemoryCodePane& pane, int line) {
  if (CodeWindow* window = workspace_.Of(pane)) window->Text().SetTopLine(line);
}

int WorkbenchWindows::VisibleLinesOf(const MemoryCodePane& pane) {
  CodeWindow* window = workspace_.Of(pane);
  return window != nullptr ? window->Text().VisibleLines() : 0;
}

Bounds WorkbenchWindows::BoundsOf(const MemoryCommandBar& bar) {
  ArrangeBars();
  return bars_.BoundsOf(bar).value_or(Bounds{});
}

Bounds WorkbenchWindows::BoundsOf(const MemoryCommandBarControl& control) {
  ArrangeBars();
  return bars_.BoundsOf(control).value_or(Bounds{});
}

std::string WorkbenchWindows::FaceFromClipboard() {
  const auto face = FaceOnClipboard(frame_.Handle());
  return face ? faces_.Keep(*face) : std::string();
}

void WorkbenchWindows::FaceToClipboard(const MemoryCommandBarControl& control) {
  if (const auto face = faces_.Of(const_cast<MemoryCommandBarControl&>(control)))
    PutFaceOnClipboard(frame_.Handle(), *face);
}

void WorkbenchWindows::ShowPopup(MemoryCommandBar& menu) {
  ShowChanges();
  POINT place{};
  GetCursorPos(&place);
  menu.NoteOpen(true);
  const auto action = ChooseFromMenu(menus_, menu.Entries(), frame_.Handle(), place);
  menu.NoteOpen(false);
  if (action) Do(action);
}

void WorkbenchWindows::Quit() { PostQuitMessage(0); }

}  // namespace brimwork::bench

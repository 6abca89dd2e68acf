#include "bench/screen/main_frame.h"

#include <windowsx.h>

#include <algorithm>
#include <utility>

#include "bench/screen/faults.h"
#include "bench/screen/glyphs.h"
#include "bench/screen/picture_painter.h"

namespace brimwork::bench {
namespace {

constexpr UINT kRunTasks = WM_APP + 1;
constexpr UINT_PTR kIdleTimer = 1;
constexpr DWORD kLeastDelay = 15;  // milliseconds
constexpr DWORD kMostDelay = 500;
constexpr UINT kFirstChild = 0xE000;  // numbers that the client gives its windows

constexpr int kFrameWidth = 1000;
constexpr int kFrameHeight = 720;

}  // namespace

MainFrame::MainFrame(FrameEvents& events) : events_(events), idleDelay_(kLeastDelay) {
  Create({.className = L"BrimworkBench",
          .style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
          .bounds = {12, 12, kFrameWidth, kFrameHeight}});
  icon_ = IconOf(Drawn(ProjectGlyph()));
  SendMessageW(Handle(), WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(icon_.get()));
  SendMessageW(Handle(), WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(icon_.get()));
  CreateClient();
}

MainFrame::~MainFrame() {
  isClosing_ = true;
  if (Handle() != nullptr) SetMenu(Handle(), nullptr);
  Destroy();
}

void MainFrame::CreateClient() {
  CLIENTCREATESTRUCT creation{nullptr, kFirstChild};
  client_ = CreateWindowExW(
      WS_EX_CLIENTEDGE, L"MDICLIENT", L"",
      WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS | WS_VSCROLL | WS_HSCROLL, 0, 0, 0,
      0, Handle(), nullptr, GetModuleHandleW(nullptr), &creation);
  CheckSystem(client_ != nullptr, "the workspace could not be made");
}

void MainFrame::Later(std::function<void()> task) {
  tasks_.push_back(std::move(task));
  PostMessageW(Handle(), kRunTasks, 0, 0);
}

void MainFrame::AskForIdle() {
  if (isIdleAsked_) return;
  isIdleAsked_ = true;
  SetTimer(Handle(), kIdleTimer, idleDelay_, nullptr);
}

void MainFrame::SetMenuBar(MenuHandle menu) {
  SendMessageW(client_, WM_MDISETMENU, reinterpret_cast<WPARAM>(menu.get()), 0);
  DrawMenuBar(Handle());
  menu_ = std::move(menu);
}

LRESULT MainFrame::OnMessage(UINT message, WPARAM wide, LPARAM longer) {
  if (isClosing_) return Default(message, wide, longer);
  switch (message) {
    case WM_SIZE:
      if (wide != SIZE_MINIMIZED && client_ != nullptr) events_.OnResize();
      return 0;
    case WM_TIMER:
      if (wide != kIdleTimer) break;
      TellIdle();
      return 0;
    case kRunTasks:
      RunTasks();
      return 0;
    case WM_SETFOCUS:
      events_.OnFocus();
      return 0;
    case WM_CLOSE:
      events_.OnCloseAsked();
      return 0;
    case WM_QUERYENDSESSION:
      return TRUE;
    case WM_COMMAND:
      if (LOWORD(wide) >= kFirstChild) break;
      events_.OnCommand(LOWORD(wide));
      return 0;
    case WM_INITMENUPOPUP:
      if (HIWORD(longer) == 0) events_.OnMenuOpening(reinterpret_cast<HMENU>(wide));
      break;
    case WM_ENTERMENULOOP:
      isInMenu_ = true;
      break;
    case WM_EXITMENULOOP:
      isInMenu_ = false;
      AskForIdle();
      break;
    case WM_MOUSEMOVE:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_CAPTURECHANGED:
      events_.OnMouse(message, {GET_X_LPARAM(longer), GET_Y_LPARAM(longer)});
      return 0;
    case WM_SETCURSOR:
      if (SetCursorFor(longer)) return TRUE;
      break;
    default:
      break;
  }
  return Default(message, wide, longer);
}

// Much text takes long to draw: a client that calls again and again is not to wait for it most of
// the time.
void MainFrame::TellIdle() {
  KillTimer(Handle(), kIdleTimer);
  isIdleAsked_ = false;
  const DWORD start = GetTickCount();
  events_.OnIdle();
  idleDelay_ = std::clamp((GetTickCount() - start) * 4, kLeastDelay, kMostDelay);
}

// A task may ask for further ones, which have their turn when they are posted.
void MainFrame::RunTasks() {
  if (tasks_.empty()) return;
  const auto task = std::move(tasks_.front());
  tasks_.pop_front();
  task();
}

bool MainFrame::SetCursorFor(LPARAM longer) {
  if (LOWORD(longer) != HTCLIENT) return false;
  POINT place{};
  GetCursorPos(&place);
  ScreenToClient(Handle(), &place);
  const HCURSOR cursor = events_.CursorAt(place);
  if (cursor != nullptr) SetCursor(cursor);
  return cursor != nullptr;
}

}  // namespace brimwork::bench

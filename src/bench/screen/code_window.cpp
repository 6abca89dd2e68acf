#include "bench/screen/code_window.h"

#include <algorithm>
#include <utility>

#include "environment/vbe.h"
#include "memory/usual_commands.h"

namespace brimwork::bench {
namespace {

constexpr int kStripWidth = 20;  // the grey strip beside the text

}  // namespace

CodeWindow::CodeWindow(const ScreenParts& parts, HWND client, std::shared_ptr<MemoryWindow> window,
                       MemoryCodePane& pane)
    : MdiChild(parts, std::move(window)), pane_(pane) {
  CreateIn(client, L"BrimworkBenchCode", COLOR_BTNFACE, CommandGlyph(command::kViewCode));
  boxes_.emplace(Handle(), parts.fonts.Plain(),
                 [this](const ListedProcedure& procedure) { GoTo(procedure); });
  text_.emplace(parts, Handle(), std::make_unique<PaneText>(pane), Model(), [this](POINT place) {
    Parts().host.OpenMenu(Parts().bench.bars.codeWindow->Entries(), place);
  });
  Arrange();
  Refresh();
}

void CodeWindow::Refresh() {
  MdiChild::Refresh();
  text_->Refresh();
  boxes_->Refresh(*pane_.Code(), HandlesEvents(), pane_.GetSelection().startLine);
}

bool CodeWindow::HandlesEvents() const {
  const auto component = Parts().bench.ComponentOf(*pane_.Code());
  return component != nullptr && component->Kind() != component_type::kStandardModule;
}

void CodeWindow::GoTo(const ListedProcedure& procedure) {
  text_->SetTopLine(procedure.start);
  Parts().host.Do([window = Model(), line = procedure.body] {
    static_cast<MemoryCodePane*>(window->Keys())->SetSelection({line, 1, line, 1});
    window->SetFocus();
  });
}

LRESULT CodeWindow::OnMessage(UINT message, WPARAM wide, LPARAM longer) {
  switch (message) {
    case WM_SIZE:
      Arrange();
      break;
    case WM_COMMAND:
      if (boxes_ && boxes_->OnCommand(reinterpret_cast<HWND>(longer), HIWORD(wide))) {
        if (HIWORD(wide) == CBN_SETFOCUS) Parts().host.NoteFocus(Model());
        return 0;
      }
      break;
    default:
      break;
  }
  return MdiChild::OnMessage(message, wide, longer);
}

void CodeWindow::Arrange() {
  if (!text_) return;
  RECT room{};
  GetClientRect(Handle(), &room);
  const int top = ProcedureBoxes::kHeight + 1;
  boxes_->Place(0, 0, static_cast<int>(room.right));
  MoveWindow(text_->Handle(), kStripWidth, top, std::max<int>(room.right - kStripWidth, 0),
             std::max<int>(room.bottom - top, 0), TRUE);
}

}  // namespace brimwork::bench

#include "bench/screen/workspace.h"

#include <algorithm>

namespace brimwork::bench {
namespace {

bool BelongsHere(MemoryWindow& window) {
  return window.Type() == window_type::kCodeWindow || window.Type() == window_type::kDesigner;
}

}  // namespace

void Workspace::FollowModel() {
  CloseGone();
  OpenNew();
  for (const auto& window : windows_) {
    const bool isShown = (GetWindowLongPtrW(window->Handle(), GWL_STYLE) & WS_VISIBLE) != 0;
    if (isShown != window->Model()->Visible()) {
      ShowWindow(window->Handle(), isShown ? SW_HIDE : SW_SHOWNA);
    }
  }
}

// A window that goes makes the system activate the next one, which must not find it here any more.
void Workspace::CloseGone() {
  const auto& all = parts_.bench.vbe.windows.All();
  const auto isGone = [&](const auto& window) {
    return std::ranges::find(all, window->Model()) == all.end();
  };
  std::vector<std::unique_ptr<MdiChild>> gone;
  for (auto& window : windows_) {
    if (isGone(window)) gone.push_back(std::move(window));
  }
  std::erase(windows_, nullptr);
}

void Workspace::OpenNew() {
  for (const auto& window : parts_.bench.vbe.windows.All()) {
    if (!BelongsHere(*window) || Of(*window) != nullptr) continue;
    if (auto made = NewWindow(window)) windows_.push_back(std::move(made));
  }
}

std::unique_ptr<MdiChild> Workspace::NewWindow(const std::shared_ptr<MemoryWindow>& window) {
  if (window->Type() == window_type::kDesigner) {
    return std::make_unique<DesignerWindow>(parts_, client_, window);
  }
  auto* pane = dynamic_cast<MemoryCodePane*>(window->Keys());
  if (pane == nullptr) return nullptr;
  return std::make_unique<CodeWindow>(parts_, client_, window, *pane);
}

void Workspace::TakeInput() {
  for (const auto& window : windows_) window->TakeInput();
}

void Workspace::Refresh() {
  for (const auto& window : windows_) window->Refresh();
}

MdiChild* Workspace::Of(const MemoryWindow& window) const {
  const auto found = std::ranges::find_if(
      windows_, [&](const auto& each) { return each->Model().get() == &window; });
  return found == windows_.end() ? nullptr : found->get();
}

CodeWindow* Workspace::Of(const MemoryCodePane& pane) const {
  for (const auto& window : windows_) {
    auto* code = dynamic_cast<CodeWindow*>(window.get());
    if (code != nullptr && &code->Pane() == &pane) return code;
  }
  return nullptr;
}

MdiChild* Workspace::Active() const {
  const auto handle = reinterpret_cast<HWND>(SendMessageW(client_, WM_MDIGETACTIVE, 0, 0));
  const auto found =
      std::ranges::find_if(windows_, [&](const auto& each) { return each->Handle() == handle; });
  return found == windows_.end() ? nullptr : found->get();
}

void Workspace::Activate(const MdiChild& window) {
  if (Active() == &window) return;
  SendMessageW(client_, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(window.Handle()), 0);
}

}  // namespace brimwork::bench

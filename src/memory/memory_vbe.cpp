#include "memory/memory_vbe.h"

#include <algorithm>

namespace brimwork {

MemoryVbe::MemoryVbe(MemoryKeyboard& keyboard)
    : windows(keyboard), mainWindow_(windows.Add(kMainWindowCaption, window_type::kMainWindow)) {
  windows.OnActivate = [this](MemoryWindow& window) { NoteActivation(window); };
  windows.OnRemove = [this](MemoryWindow& window) { ForgetPaneOf(window); };
  AddCommandBar(std::make_shared<MemoryCommandBar>("Menu Bar"));
}

std::shared_ptr<Window> MemoryVbe::ActiveWindow() {
  const auto active = windows.Active();
  return active == mainWindow_ ? nullptr : active;
}

std::vector<std::shared_ptr<Window>> MemoryVbe::Windows() {
  return {windows.All().begin(), windows.All().end()};
}

std::shared_ptr<Window> MemoryVbe::WindowOfCaption(std::string_view caption) {
  return windows.OfCaption(caption);
}

std::vector<std::shared_ptr<CommandBar>> MemoryVbe::CommandBars() {
  return {commandBars_.begin(), commandBars_.end()};
}

void MemoryVbe::OpenPane(const std::shared_ptr<MemoryCodePane>& pane, std::string caption) {
  const auto window = windows.Add(std::move(caption), window_type::kCodeWindow, pane);
  pane->SetContainingWindow(window);
  panes_.push_back(pane);
  window->SetFocus();
}

void MemoryVbe::AddCommandBar(std::shared_ptr<MemoryCommandBar> bar) {
  commandBars_.push_back(std::move(bar));
}

MemoryVbe::Panes::iterator MemoryVbe::PaneOf(MemoryWindow& window) {
  return std::ranges::find_if(panes_,
                              [&](const auto& pane) { return pane.get() == window.Keys(); });
}

void MemoryVbe::NoteActivation(MemoryWindow& window) {
  const auto pane = PaneOf(window);
  if (pane == panes_.end()) return;
  std::rotate(pane, pane + 1, panes_.end());
  activePane_ = panes_.back();
}

void MemoryVbe::ForgetPaneOf(MemoryWindow& window) {
  const auto pane = PaneOf(window);
  if (pane == panes_.end()) return;
  const bool wasActive = activePane_ == *pane;
  panes_.erase(pane);
  if (wasActive) activePane_ = panes_.empty() ? nullptr : panes_.back();
}

}  // namespace brimwork

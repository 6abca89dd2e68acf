#include "memory/memory_vbe.h"

#include <algorithm>

namespace brimwork {

MemoryVbe::MemoryVbe(MemoryKeyboard& keyboard, const MemoryClipboard& clipboard)
    : windows(keyboard),
      commandBars(clipboard),
      mainWindow_(windows.Add(kMainWindowCaption, window_type::kMainWindow)) {
  windows.OnActivate([this](MemoryWindow& window) { NoteActivation(window); });
  windows.OnRemove([this](MemoryWindow& window) { ForgetPaneOf(window); });
  const auto menuBar = std::make_shared<MemoryCommandBar>(kMenuBarName);
  menuBar->MakeMenuBar();
  AddCommandBar(menuBar);
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
  return {commandBars.All().begin(), commandBars.All().end()};
}

std::shared_ptr<CommandBar> MemoryVbe::CommandBarOfName(std::string_view name) {
  return commandBars.OfName(name);
}

std::shared_ptr<CommandBar> MemoryVbe::AddCommandBar(const NewCommandBar& bar) {
  return commandBars.Add(bar);
}

std::shared_ptr<CommandBarControl> MemoryVbe::FindControl(int id) {
  return commandBars.FindControl(id);
}

std::unique_ptr<CommandBarEvents> MemoryVbe::CommandBarEventsOf(
    const std::shared_ptr<CommandBarControl>& control, ClickHandler onClick) {
  return commandBars.EventsOf(*control, std::move(onClick));
}

void MemoryVbe::OpenPane(const std::shared_ptr<MemoryCodePane>& pane, std::string caption) {
  const auto window = windows.Add(std::move(caption), window_type::kCodeWindow, pane);
  pane->SetContainingWindow(window);
  panes_.push_back(pane);
  window->SetFocus();
}

void MemoryVbe::AddCommandBar(const std::shared_ptr<MemoryCommandBar>& bar) {
  commandBars.Add(bar);
}

std::shared_ptr<MemoryCodePane> MemoryVbe::PaneOf(MemoryWindow& window) const {
  const auto pane =
      std::ranges::find_if(panes_, [&](const auto& held) { return held.get() == window.Keys(); });
  return pane == panes_.end() ? nullptr : *pane;
}

void MemoryVbe::NoteActivation(MemoryWindow& window) {
  const auto pane = PaneOf(window);
  if (pane == nullptr) return;
  std::erase(byActivity_, pane);
  byActivity_.push_back(pane);
  activePane_ = pane;
}

void MemoryVbe::ForgetPaneOf(MemoryWindow& window) {
  const auto pane = PaneOf(window);
  if (pane == nullptr) return;
  std::erase(panes_, pane);
  std::erase(byActivity_, pane);
  if (activePane_ == pane) activePane_ = byActivity_.empty() ? nullptr : byActivity_.back();
}

}  // namespace brimwork

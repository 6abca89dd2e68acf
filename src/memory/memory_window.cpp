#include "memory/memory_window.h"

#include <algorithm>
#include <utility>

#include "environment/run_time_error.h"

namespace brimwork {

MemoryWindow::MemoryWindow(MemoryWindows& all, std::string caption, int type,
                           std::shared_ptr<KeyTarget> keys)
    : all_(all), caption_(std::move(caption)), type_(type), keys_(std::move(keys)) {}

void MemoryWindow::SetVisible(bool visible) {
  if (visible_ != visible) all_.NoteChange();
  visible_ = visible;
  if (!visible) all_.Deactivate(*this);
}

void MemoryWindow::SetFocus() {
  if (!visible_) {
    throw RunTimeError(error_number::kInvalidProcedureCall,
                       "the window \"" + caption_ + "\" is hidden and takes no focus");
  }
  all_.Activate(*this);
}

void MemoryWindow::Close() {
  if (type_ == window_type::kCodeWindow || type_ == window_type::kDesigner) {
    all_.Remove(*this);
  } else {
    SetVisible(false);
  }
}

void MemoryWindow::SetCaption(std::string caption) {
  if (caption_ != caption) all_.NoteChange();
  caption_ = std::move(caption);
}

std::shared_ptr<MemoryWindow> MemoryWindows::Add(std::string caption, int type,
                                                 std::shared_ptr<KeyTarget> keys) {
  NoteChange();
  windows_.push_back(
      std::make_shared<MemoryWindow>(*this, std::move(caption), type, std::move(keys)));
  return windows_.back();
}

std::shared_ptr<MemoryWindow> MemoryWindows::OfCaption(std::string_view caption) const {
  const auto found = std::ranges::find_if(
      windows_, [&](const auto& window) { return window->Caption() == caption; });
  return found == windows_.end() ? nullptr : *found;
}

void MemoryWindows::Activate(MemoryWindow& window) {
  const auto activated = Shared(window);
  if (!activated) {
    throw RunTimeError(error_number::kInvalidProcedureCall,
                       "the window \"" + window.Caption() + "\" is closed and takes no focus");
  }
  if (active_ != activated) NoteChange();
  active_ = activated;
  keyboard_.SetFocus(window.Keys());
  for (const auto& listener : activationListeners_) listener(window);
}

void MemoryWindows::Deactivate(const MemoryWindow& window) {
  if (active_.get() != &window) return;
  NoteChange();
  active_ = nullptr;
  keyboard_.SetFocus(nullptr);
}

void MemoryWindows::Remove(MemoryWindow& window) {
  const auto removed = Shared(window);
  if (!removed) return;
  NoteChange();
  for (const auto& listener : removalListeners_) listener(window);
  std::erase(windows_, removed);
  Deactivate(window);
}

void MemoryWindows::OnActivate(std::function<void(MemoryWindow&)> listener) {
  activationListeners_.push_back(std::move(listener));
}

void MemoryWindows::OnRemove(std::function<void(MemoryWindow&)> listener) {
  removalListeners_.push_back(std::move(listener));
}

std::shared_ptr<MemoryWindow> MemoryWindows::Shared(const MemoryWindow& window) const {
  const auto found =
      std::ranges::find_if(windows_, [&](const auto& held) { return held.get() == &window; });
  return found == windows_.end() ? nullptr : *found;
}

}  // namespace brimwork

#include "bench/screen/focus_link.h"

#include <algorithm>
#include <utility>

#include "bench/screen/flag_scope.h"

namespace brimwork::bench {

FocusLink::FocusLink(Workbench& bench, std::function<void(MemoryWindow*)> give)
    : bench_(bench), give_(std::move(give)), asked_(std::make_shared<Asked>()) {
  bench_.vbe.windows.OnActivate([weak = std::weak_ptr(asked_)](MemoryWindow&) {
    if (const auto asked = weak.lock()) asked->isAsked = true;
  });
}

void FocusLink::NoteFocus(const std::shared_ptr<MemoryWindow>& window) {
  MemoryWindows& windows = bench_.vbe.windows;
  const bool isOpen = std::ranges::find(windows.All(), window) != windows.All().end();
  if (isIgnoring_ || !isOpen || windows.Active() == window) return;
  const bool wasAsked = asked_->isAsked;
  windows.Activate(*window);
  asked_->isAsked = wasAsked;
  latest_ = window;
}

void FocusLink::FollowModel() {
  const auto active = bench_.vbe.windows.Active();
  if (!asked_->isAsked && active == latest_.lock()) return;
  asked_->isAsked = false;
  latest_ = active;
  Restore();
}

void FocusLink::Restore() {
  Ignoring([this] { give_(Wanted()); });
}

void FocusLink::Ignoring(const std::function<void()>& task) {
  const FlagScope ignoring(isIgnoring_);
  task();
}

MemoryWindow* FocusLink::Wanted() const {
  const auto active = bench_.vbe.windows.Active();
  return active != nullptr && active->Type() != window_type::kMainWindow ? active.get() : nullptr;
}

}  // namespace brimwork::bench

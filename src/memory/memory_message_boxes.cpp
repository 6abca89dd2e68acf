#include "memory/memory_message_boxes.h"

#include <utility>

namespace brimwork {
namespace {

/// Puts a value back at the end of a scope.
template <class T>
class Restored {
 public:
  Restored(T& variable, T value) : variable_(variable), former_(std::exchange(variable, value)) {}
  ~Restored() { variable_ = former_; }
  Restored(const Restored&) = delete;
  Restored& operator=(const Restored&) = delete;

 private:
  T& variable_;
  T former_;
};

}  // namespace

int MemoryMessageBoxes::MessageBox(WindowHandle owner, std::string_view text,
                                   std::string_view title, std::int32_t style) {
  Plan plan = std::exchange(plan_, {});
  if (owner != 0 && !windows_.IsWindow(owner)) return 0;
  if (MessageBoxButtonsOf(style).empty()) return 0;
  const MessageBoxRequest request{owner, std::string(text), std::string(title), style};
  MemoryMessageBox box(windows_, keyboard_, request, Centre());
  const Restored<MemoryMessageBox*> open(box_, &box);
  const std::uint32_t opened = timers_.Now();
  RunUntilClosed(box, std::move(plan));
  Record(request, opened);
  return *box.Result();
}

WindowArea MemoryMessageBoxes::Centre() const {
  const int screenWidth = static_cast<int>(screen_.width / screen_.twipsPerPixelX);
  const int screenHeight = static_cast<int>(screen_.height / screen_.twipsPerPixelY);
  return {(screenWidth - width) / 2, (screenHeight - height) / 2, width, height};
}

void MemoryMessageBoxes::RunUntilClosed(MemoryMessageBox& box, Plan plan) {
  const std::uint32_t opened = timers_.Now();
  plan.emplace(kPatience, [&] { box.Dismiss(); });
  while (!box.Result()) {
    const std::uint32_t next = opened + plan.begin()->first;
    const auto due = timers_.NextDue();
    if (due && *due <= next) {
      timers_.FireNext();
    } else {
      timers_.SetNow(next);
      plan.extract(plan.begin()).mapped()();
    }
  }
}

void MemoryMessageBoxes::Record(const MessageBoxRequest& request, std::uint32_t opened) {
  ShownMessageBox shown{.request = request,
                        .window = windows_.windows[box_->Window()],
                        .controls = {},
                        .result = *box_->Result(),
                        .milliseconds = timers_.Now() - opened};
  for (const auto& [handle, window] : windows_.windows) {
    if (window.parent == box_->Window()) shown.controls.push_back(window);
  }
  shown_.push_back(std::move(shown));
}

void MemoryMessageBoxes::ClickAt(std::uint32_t milliseconds, const std::string& caption) {
  DoAt(milliseconds, [this, caption] { box_->Focus(caption); });
  DoAt(milliseconds + kClickTakes, [this] { box_->PressFocused(); });
}

void MemoryMessageBoxes::PressKeysAt(std::uint32_t milliseconds, const std::string& keys) {
  DoAt(milliseconds, [this, keys] { keyboard_.SendKeys(keys, true); });
}

void MemoryMessageBoxes::DoAt(std::uint32_t milliseconds, std::function<void()> action) {
  plan_.emplace(milliseconds, std::move(action));
}

}  // namespace brimwork

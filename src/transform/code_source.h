// The code source that every code command works on: the module of the active code pane.
#pragma once

#include <memory>

#include "environment/environment.h"
#include "environment/resume_next.h"

namespace brimwork {

/// The active pane's module; null when there is none or it cannot be had.
std::shared_ptr<CodeModule> ActiveCodeModule(Environment& environment);

/// True when there is a module; otherwise tells the user what to do and returns false.
bool IsValidCodeSource(Environment& environment, const std::shared_ptr<CodeModule>& module);

/// Shows the hourglass for as long as it lives, then the default pointer. Under another one it does
/// nothing: changing the pointer for each procedure of a module would cost more than the rest.
class HourglassPointer {
 public:
  explicit HourglassPointer(Screen& screen) : screen_(screen) {
    ResumeNext([&] { isShown_ = screen_.MousePointer() == mouse_pointer::kHourglass; });
    if (isShown_) return;
    ResumeNext([&] { screen_.SetMousePointer(mouse_pointer::kHourglass); });
  }
  ~HourglassPointer() {
    if (!isShown_) Insist([&] { screen_.SetMousePointer(mouse_pointer::kDefault); });
  }
  HourglassPointer(const HourglassPointer&) = delete;
  HourglassPointer& operator=(const HourglassPointer&) = delete;

 private:
  Screen& screen_;
  bool isShown_ = false;  // by another one
};

/// How every code command starts and ends: without a module the user is told and nothing happens,
/// else command(CodeModule&) runs under the hourglass.
template <class Command>
void WithCodeSource(Environment& environment, Command command) {
  const std::shared_ptr<CodeModule> module = ActiveCodeModule(environment);
  if (!IsValidCodeSource(environment, module)) return;
  const HourglassPointer hourglass(environment.screen);
  command(*module);
}

}  // namespace brimwork

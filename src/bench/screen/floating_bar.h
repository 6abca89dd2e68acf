// The small window around a toolbar that is not docked: a caption to move it by, and a close
// button.
#pragma once

#include <memory>

#include "bench/screen/bar_window.h"

namespace brimwork::bench {

class FloatingBar : public NativeWindow {
 public:
  FloatingBar(const ScreenParts& parts, BarMover& mover, std::shared_ptr<MemoryCommandBar> bar);

  /// Takes the bar's window in and goes where the model says.
  void Hold(BarWindow& content);

 protected:
  LRESULT OnMessage(UINT message, WPARAM wide, LPARAM longer) override;

 private:
  void Paint();
  RECT CloseArea() const;
  void OnPress(POINT place);

  ScreenParts parts_;
  BarMover& mover_;
  std::shared_ptr<MemoryCommandBar> bar_;
};

}  // namespace brimwork::bench

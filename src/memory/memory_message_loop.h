// The message loop as plain data: its runs are counted, and a test says what happens in them.
#pragma once

#include <functional>

#include "environment/desktop.h"

namespace brimwork {

class MemoryMessageLoop : public MessageLoop {
 public:
  void DoEvents() override {
    ++count_;
    if (onDoEvents) onDoEvents();
  }

  int Count() const { return count_; }

  /// What the messages that wait do; may be empty.
  std::function<void()> onDoEvents;

 private:
  int count_ = 0;
};

}  // namespace brimwork

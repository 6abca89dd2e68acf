// The message loop as plain data: no window waits for messages, so they are only counted.
#pragma once

#include "environment/desktop.h"

namespace brimwork {

class MemoryMessageLoop : public MessageLoop {
 public:
  void DoEvents() override { ++count_; }

  int Count() const { return count_; }

 private:
  int count_ = 0;
};

}  // namespace brimwork

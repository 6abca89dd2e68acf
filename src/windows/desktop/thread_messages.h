// The messages of the environment's thread, which is the add-in's, too.
#pragma once

#include <windows.h>

#include <functional>

#include "environment/desktop.h"

namespace brimwork::windows {

class ThreadMessages : public MessageLoop {
 public:
  /// Handles every message that waits. One that ends the program is left for the environment's own
  /// loop.
  void DoEvents() override;

  /// Handles messages until this many key messages were among them, or until no further one came
  /// for a second: they may have gone to another program's window.
  void HandleKeys(int count);

  /// What is done with a message before it goes to its window; true when that is all. May be empty.
  std::function<bool(MSG& message)> translate;

 private:
  /// Handles the next message that waits, if there is one.
  bool HandleNext(MSG& message);
};

}  // namespace brimwork::windows

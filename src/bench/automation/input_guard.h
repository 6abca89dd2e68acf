// Around each call from outside: what the user did comes in before it, what the call changed is
// shown behind it.
#pragma once

#include "bench/automation/session.h"

namespace brimwork::bench {

class InputGuard {
 public:
  explicit InputGuard(Session& session) : surface_(session.TheSurface()) { surface_.TakeInput(); }
  ~InputGuard() { surface_.ShowChanges(); }
  InputGuard(const InputGuard&) = delete;
  InputGuard& operator=(const InputGuard&) = delete;

 private:
  Surface& surface_;
};

}  // namespace brimwork::bench

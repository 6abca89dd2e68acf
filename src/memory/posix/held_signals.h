// Keeps the user's wish to end the program waiting for the few moments in which a file would be
// left between two states.
#pragma once

#include <signal.h>

#include <array>
#include <mutex>

namespace brimwork::posix {

/// While it lives, SIGINT, SIGTERM and SIGHUP wait, and so does every other thread that wants to
/// hold them. A signal that came meanwhile does its work at the end. What is ignored stays ignored.
class HeldSignals {
 public:
  HeldSignals();
  ~HeldSignals();
  HeldSignals(const HeldSignals&) = delete;
  HeldSignals& operator=(const HeldSignals&) = delete;

 private:
  static constexpr std::array<int, 3> kHeld = {SIGINT, SIGTERM, SIGHUP};

  std::unique_lock<std::mutex> turn_;
  std::array<struct sigaction, kHeld.size()> before_{};
};

}  // namespace brimwork::posix

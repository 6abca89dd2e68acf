#include "memory/posix/held_signals.h"

#include <atomic>
#include <cstddef>

namespace brimwork::posix {
namespace {

// What a signal does is one setting of the whole process, and its handler is given nothing else.
std::mutex oneAtATime;
std::atomic<int> latest = 0;

void Note(int signal) { latest = signal; }

}  // namespace

HeldSignals::HeldSignals() : turn_(oneAtATime) {
  latest = 0;
  struct sigaction noting {};
  noting.sa_handler = Note;
  noting.sa_flags = SA_RESTART;
  sigemptyset(&noting.sa_mask);
  for (std::size_t i = 0; i < kHeld.size(); ++i) {
    sigaction(kHeld[i], nullptr, &before_[i]);
    if (before_[i].sa_handler != SIG_IGN) sigaction(kHeld[i], &noting, nullptr);
  }
}

HeldSignals::~HeldSignals() {
  for (std::size_t i = 0; i < kHeld.size(); ++i) sigaction(kHeld[i], &before_[i], nullptr);
  if (const int signal = latest; signal != 0) raise(signal);
}

}  // namespace brimwork::posix

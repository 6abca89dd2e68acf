// A limit that files run into.
#pragma once

#include <sys/resource.h>

#include <csignal>

namespace brimwork {

/// Lets no file become larger, as a full disk would, for its life.
class SizeLimit {
 public:
  explicit SizeLimit(rlim_t bytes) : oldHandler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &old_);
    const rlimit limit{bytes, old_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~SizeLimit() {
    setrlimit(RLIMIT_FSIZE, &old_);
    std::signal(SIGXFSZ, oldHandler_);
  }
  SizeLimit(const SizeLimit&) = delete;
  SizeLimit& operator=(const SizeLimit&) = delete;

 private:
  rlimit old_{};
  void (*oldHandler_)(int);
};

}  // namespace brimwork

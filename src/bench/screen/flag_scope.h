// Says for the length of a block that something is under way, however the block is left.
#pragma once

#include <utility>

namespace brimwork::bench {

class FlagScope {
 public:
  /// flag outlives this.
  explicit FlagScope(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
  FlagScope(const FlagScope&) = delete;
  FlagScope& operator=(const FlagScope&) = delete;
  ~FlagScope() { flag_ = before_; }

 private:
  bool& flag_;
  bool before_;
};

}  // namespace brimwork::bench

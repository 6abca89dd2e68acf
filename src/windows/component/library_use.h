// What keeps the library loaded: the system may unload it when nobody uses it any more.
#pragma once

#include <memory>
#include <vector>

namespace brimwork::windows {

/// Held by each object of the library that its user may still call.
using LibraryUse = std::shared_ptr<const void>;

/// Hands out uses, and tells whether there are any. One apartment's thread works with it.
class LibraryUses {
 public:
  LibraryUse One() const { return all_; }
  bool IsNone() const { return all_.use_count() == 1; }

  // Uses that belong to no object. An unlocking without a lock is nothing.

  void Lock() { locks_.push_back(all_); }
  void Unlock() {
    if (!locks_.empty()) locks_.pop_back();
  }

 private:
  std::shared_ptr<const int> all_ = std::make_shared<const int>(0);
  std::vector<LibraryUse> locks_;
};

}  // namespace brimwork::windows

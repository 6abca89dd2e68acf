// An automation object whose calls fail as a test plans it. It stands in front of another one, and
// so do the objects that it hands out.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "win32/com_pointer.h"
#include "win32/variant.h"

namespace brimwork {

/// Which calls fail, and what they answer then.
struct DispatchFault {
  /// S_OK: "nothing" in the place of an object, and nothing is added; other calls work.
  HRESULT answer = E_FAIL;
  std::function<bool(int call)> hits = {};  // calls count from 1; none fails where it is empty
};

/// What the objects in front of one environment share.
class DispatchCalls {
 public:
  explicit DispatchCalls(DispatchFault fault) : fault_(std::move(fault)) {}

  /// Notes a call and tells whether it is to fail.
  bool Fails(std::string member) {
    members_.push_back(std::move(member));
    const int call = static_cast<int>(members_.size());
    return RanAway() || (fault_.hits && fault_.hits(call));
  }
  HRESULT Answer() const { return RanAway() ? E_FAIL : fault_.answer; }

  /// Called with each call that goes through; may be empty.
  std::function<void(const std::string& member, const DISPPARAMS& parameters)> onCall;

  /// The number of a member is asked for once, but each object in front has to know its name.
  void NoteName(const std::string& name) { names_.insert(name); }
  const std::set<std::string>& Names() const { return names_; }

  /// The names of the members that were called, one for each call.
  const std::vector<std::string>& Members() const { return members_; }
  /// True when there were more calls than any command makes; every one has failed since.
  bool RanAway() const { return members_.size() > kMostCalls; }

 private:
  static constexpr std::size_t kMostCalls = 100'000;

  DispatchFault fault_;
  std::vector<std::string> members_;
  std::set<std::string> names_;
};

/// calls and what object belongs to outlive the result.
win32::ComPointer<IDispatch> InFrontOf(const win32::ComPointer<IDispatch>& object,
                                       DispatchCalls& calls);

}  // namespace brimwork

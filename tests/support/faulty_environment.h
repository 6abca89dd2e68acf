// An environment whose calls fail as a test plans it. It stands in front of another environment,
// lists every call that comes through, and hands on those that do not fail.
#pragma once

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "environment/environment.h"

namespace brimwork {

/// Which calls fail, and how.
struct Fault {
  enum class Kind {
    kRaises,          // the call raises a run-time error and does nothing
    kRaisesBehind,    // the call does its work and raises a run-time error all the same
    kAnswersNothing,  // an object that is asked for is not there, the registry refuses; every other
                      // call works
  };

  Kind kind = Kind::kRaises;

  /// Whether the call with that number (from 1) to that operation ("CodeModule.Lines") fails. No
  /// call does where this is empty.
  std::function<bool(int call, std::string_view operation)> hits = {};
};

class FaultyEnvironment {
 public:
  /// inner is used as long as this object, or an object that a command got from it, lives.
  FaultyEnvironment(const Environment& inner, Fault fault);
  ~FaultyEnvironment();
  FaultyEnvironment(const FaultyEnvironment&) = delete;
  FaultyEnvironment& operator=(const FaultyEnvironment&) = delete;

  Environment Parts();

  /// The operation of every call so far, the failed ones included.
  const std::vector<std::string_view>& Operations() const;

  /// True when there were more calls than any command on a small module makes. From there on every
  /// call raises an error, which brings a command without end to one.
  bool RanAway() const;

  /// Whether a call to the operation can answer that there is nothing.
  static bool CanAnswerNothing(std::string_view operation);

 private:
  struct Decorators;
  std::unique_ptr<Decorators> decorators_;
};

}  // namespace brimwork

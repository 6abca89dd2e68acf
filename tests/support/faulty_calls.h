// Counts the calls to an environment and lets those fail that a test chose.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "environment/run_time_error.h"
#include "support/faulty_environment.h"

namespace brimwork {

/// Counts the calls and lets those fail that the fault hits.
class FaultyCalls {
 public:
  explicit FaultyCalls(Fault fault) : fault_(std::move(fault)) {}

  /// The result of forward, which hands the call on.
  template <class Forward>
  auto Through(std::string_view operation, Forward forward) {
    RaiseOrNote(operation, forward);
    return forward();
  }

  /// The same for a call whose object may be missing.
  template <class Forward>
  auto ObjectThrough(std::string_view operation, Forward forward) {
    return RaiseOrNote(operation, forward) ? nullptr : forward();
  }

  /// The same for a call that answers with a status.
  template <class Forward>
  int StatusThrough(std::string_view operation, Forward forward) {
    return RaiseOrNote(operation, forward) ? kAccessDenied : forward();
  }

  bool RanAway() const { return operations_.size() > kMostCalls; }
  const std::vector<std::string_view>& Operations() const { return operations_; }

 private:
  static constexpr std::size_t kMostCalls = 200'000;
  static constexpr int kAccessDenied = 5;

  /// Notes a call; raises when it is to fail so. Returns whether it is to answer nothing.
  template <class Forward>
  bool RaiseOrNote(std::string_view operation, Forward& forward) {
    operations_.push_back(operation);
    const int call = static_cast<int>(operations_.size());
    const bool hit = RanAway() || (fault_.hits && fault_.hits(call, operation));
    if (!hit) return false;
    if (!RanAway() && fault_.kind == Fault::Kind::kAnswersNothing) {
      return FaultyEnvironment::CanAnswerNothing(operation);
    }
    if (!RanAway() && fault_.kind == Fault::Kind::kRaisesBehind) forward();
    throw RunTimeError(error_number::kInvalidProcedureCall,
                       std::string(operation) + " failed as planned");
  }

  Fault fault_;
  std::vector<std::string_view> operations_;
};

}  // namespace brimwork

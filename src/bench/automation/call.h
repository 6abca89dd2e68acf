// One call of a member from outside: its arguments by their places, and what it is about.
#pragma once

#include <windows.h>

#include <oaidl.h>

#include <any>
#include <array>
#include <memory>
#include <string>

#include "bench/automation/member.h"
#include "win32/variant.h"

namespace brimwork::bench {

class AutomationObject;
class Session;

/// An argument that a member cannot take. It is told to the caller as automation tells it.
struct ArgumentFault {
  HRESULT code;
  UINT argument;  // its place among the arguments as they were passed
};

class Call {
 public:
  /// Puts the arguments in their places: named ones where their names stand, places without one
  /// stay empty. The arguments outlive the call. Throws ArgumentFault for one too many, and for one
  /// that is missing and may not be.
  Call(Session& session, AutomationObject& self, const Member& member, DISPPARAMS& arguments);

  Session& TheSession() const { return session_; }
  AutomationObject& Self() const { return self_; }

  /// What the object stands for.
  template <typename Target>
  Target& The() const {
    return *Shared<Target>();
  }
  template <typename Target>
  const std::shared_ptr<Target>& Shared() const {
    return std::any_cast<const std::shared_ptr<Target>&>(TargetOfSelf());
  }

  // The arguments, from 0; the value of an assignment is behind the last one. Each conversion
  // throws ArgumentFault for what cannot be converted.

  bool Has(std::size_t index) const;
  long Long(std::size_t index) const;
  long LongOr(std::size_t index, long fallback) const {
    return Has(index) ? Long(index) : fallback;
  }
  bool Bool(std::size_t index) const;
  bool BoolOr(std::size_t index, bool fallback) const {
    return Has(index) ? Bool(index) : fallback;
  }
  std::string Text(std::size_t index) const;
  std::string TextOr(std::size_t index, std::string fallback) const {
    return Has(index) ? Text(index) : fallback;
  }
  /// Null for "nothing".
  win32::ComPointer<IDispatch> Object(std::size_t index) const;
  bool IsText(std::size_t index) const;
  bool IsObject(std::size_t index) const;

  /// Writes to an argument that was passed by reference; another keeps what it is.
  void Return(std::size_t index, long number) const;

 private:
  const std::any& TargetOfSelf() const;
  VARIANTARG* Value(std::size_t index) const;
  void Place(const Member& member, DISPPARAMS& arguments);
  void RequireAll(const Member& member) const;
  template <typename Convert>
  auto Converted(std::size_t index, Convert convert) const;

  Session& session_;
  AutomationObject& self_;
  const DISPPARAMS& passed_;
  std::array<VARIANTARG*, Parameters::kMost + 1> values_{};
};

}  // namespace brimwork::bench

// What every object that a session hands out has: its count of references, by which the session
// can tell what a client still holds.
#pragma once

#include <windows.h>

#include <unknwn.h>

#include <memory>
#include <string>

namespace brimwork::bench {

class Session;

class CountedObject {
 public:
  /// name: what a report calls it.
  CountedObject(std::shared_ptr<Session> session, std::string name);
  CountedObject(const CountedObject&) = delete;
  CountedObject& operator=(const CountedObject&) = delete;
  virtual ~CountedObject();

  ULONG Count() { return ++references_; }
  /// The object is gone when this gives 0. The caller must not touch it then.
  ULONG Uncount();

  ULONG References() const { return references_; }
  const std::string& Name() const { return name_; }

 protected:
  Session& TheSession() const { return *session_; }

 private:
  std::shared_ptr<Session> session_;
  std::string name_;
  ULONG references_ = 0;
};

}  // namespace brimwork::bench

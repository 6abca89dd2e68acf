// A variable of the process for the life of a test, put back afterwards.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>

#include "memory/utf8_path.h"

namespace brimwork {

class ScopedVariable {
 public:
  /// nullopt: the variable is not set.
  ScopedVariable(const char* name, const std::optional<std::string>& value) : name_(name) {
    if (const char* old = std::getenv(name)) old_ = old;
    Set(value);
  }
  ~ScopedVariable() { Set(old_); }
  ScopedVariable(const ScopedVariable&) = delete;
  ScopedVariable& operator=(const ScopedVariable&) = delete;

 private:
  void Set(const std::optional<std::string>& value) {
#ifdef _WIN32
    // There no variable is empty.
    ::_wputenv_s(PathOf(name_).c_str(), PathOf(value.value_or("")).c_str());
#else
    if (value)
      ::setenv(name_, value->c_str(), 1);
    else
      ::unsetenv(name_);
#endif
  }

  const char* name_;
  std::optional<std::string> old_;
};

}  // namespace brimwork

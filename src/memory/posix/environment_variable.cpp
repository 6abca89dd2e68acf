#include <cstdlib>

#include "memory/user_folders.h"

namespace brimwork {

std::string EnvironmentVariable(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? "" : value;
}

}  // namespace brimwork

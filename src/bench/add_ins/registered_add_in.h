// The add-ins that are registered for the current user.
#pragma once

#include <string>
#include <vector>

namespace brimwork::bench {

/// What LoadBehavior is made of.
namespace load_behavior {
inline constexpr unsigned long kAtStartup = 1;
inline constexpr unsigned long kConnected = 2;
inline constexpr unsigned long kForCommandLine = 4;
}  // namespace load_behavior

struct RegisteredAddIn {
  std::string progId;
  std::string friendlyName;  // the class name where it has none
  std::string description;
  unsigned long loadBehavior = 0;
  bool isCommandLineSafe = false;
};

/// In the registry's order; none where nothing is registered.
std::vector<RegisteredAddIn> RegisteredAddIns();

/// Writes LoadBehavior. Raises RunTimeError 75 with the system's words when that fails.
void SetLoadBehavior(const std::string& progId, unsigned long behavior);

}  // namespace brimwork::bench

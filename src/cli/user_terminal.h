// The terminal at which a user answers questions.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "cli/console.h"

namespace brimwork {

/// What is shown, and what is typed.
struct UserTerminal {
  std::function<void(const std::string& text)> show;
  std::function<std::optional<std::string>()> readLine;  // nothing at the end of the input
  bool color = false;
};

/// Whether questions would be seen and can be answered.
bool UserIsThere();

/// Shows on standard error and reads standard input; used as long as console lives.
UserTerminal TerminalOf(Console& console);

}  // namespace brimwork

#include "cli/user_terminal.h"

#include <unistd.h>

#include <iostream>

namespace brimwork {
namespace {

std::optional<std::string> ReadAnswer() {
  std::string line;
  if (!std::getline(std::cin, line)) return std::nullopt;
  return line;
}

}  // namespace

bool UserIsThere() { return isatty(STDIN_FILENO) == 1 && isatty(STDERR_FILENO) == 1; }

UserTerminal TerminalOf(Console& console) {
  return {[&console](const std::string& text) { console.Ask(text); }, ReadAnswer,
          console.ColorsError()};
}

}  // namespace brimwork

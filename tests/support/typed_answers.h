// A user who has typed all answers beforehand, and what the terminal showed.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <utility>

#include "cli/user_terminal.h"

namespace brimwork {

struct TypedAnswers {
  std::deque<std::string> lines;
  std::string shown;

  UserTerminal Terminal() {
    return {[this](const std::string& text) { shown += text; },
            [this]() -> std::optional<std::string> {
              if (lines.empty()) return std::nullopt;
              std::string line = std::move(lines.front());
              lines.pop_front();
              return line;
            },
            false};
  }
};

}  // namespace brimwork

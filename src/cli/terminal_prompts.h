// The kinds of questions that forms ask, put to a user at a terminal. Enter alone keeps what there
// is.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/user_terminal.h"

namespace brimwork {

/// The input ended where an answer was to come.
class AnswersEnded : public std::runtime_error {
 public:
  AnswersEnded() : std::runtime_error("the answers ended before the last question") {}
};

// Each asks until there is an answer that it can take, and throws AnswersEnded.
class TerminalPrompts {
 public:
  explicit TerminalPrompts(UserTerminal terminal) : terminal_(std::move(terminal)) {}

  void Show(const std::string& text) const { terminal_.show(text); }

  /// One line without control characters.
  std::string AskLine(std::string_view prompt) const;

  /// present: what Enter alone answers.
  bool AskYesOrNo(std::string_view question, bool present) const;

  /// The number of a choice, counted from 1. present: the one that Enter alone chooses.
  int AskChoice(const std::vector<std::string>& choices, int present) const;

  /// Another text of one line, of several lines joined by LF; nothing when the present one stays. A
  /// dot alone is the empty text, and ends one of several lines.
  std::optional<std::string> AskText(std::string_view present) const;
  std::optional<std::string> AskLines(std::string_view present) const;

 private:
  UserTerminal terminal_;
};

}  // namespace brimwork

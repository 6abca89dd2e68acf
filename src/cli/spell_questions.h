// Asks the user about one misspelled word after the other and keeps what is decided.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "cli/misspelled_word.h"
#include "cli/spell_answers.h"
#include "cli/user_terminal.h"
#include "spelling/spelling_session.h"

namespace brimwork {

class SpellQuestions {
 public:
  SpellQuestions(SpellingSession& session, UserTerminal terminal)
      : session_(session), terminal_(std::move(terminal)) {}

  /// What takes the word's place, nothing when it stays. Asks until there is an answer, and not at
  /// all once the user has stopped.
  std::optional<std::string> Ask(const MisspelledWord& word);

  bool HasStopped() const { return hasStopped_; }

 private:
  SpellAnswer NextAnswer(const std::vector<std::string>& suggestions);
  bool CanBeTaken(const SpellAnswer& answer, const MisspelledWord& word);
  std::optional<std::string> Take(const SpellAnswer& answer, const MisspelledWord& word);
  void AddToUserWords(const std::string& word);

  SpellingSession& session_;
  UserTerminal terminal_;
  bool hasStopped_ = false;
};

}  // namespace brimwork

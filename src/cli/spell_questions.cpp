#include "cli/spell_questions.h"

#include "cli/spell_display.h"
#include "spelling/user_words.h"

namespace brimwork {

using Kind = SpellAnswer::Kind;

std::optional<std::string> SpellQuestions::Ask(const MisspelledWord& word) {
  if (hasStopped_) return std::nullopt;
  const std::vector<std::string>& suggestions = session_.Suggestions(word.word);
  terminal_.show(QuestionText(word, suggestions, terminal_.color));
  while (true) {
    const SpellAnswer answer = NextAnswer(suggestions);
    if (CanBeTaken(answer, word)) return Take(answer, word);
  }
}

SpellAnswer SpellQuestions::NextAnswer(const std::vector<std::string>& suggestions) {
  terminal_.show(AnswerPrompt(suggestions.size()));
  const auto line = terminal_.readLine();
  if (line) return ParseSpellAnswer(*line, suggestions);
  terminal_.show("\n");
  return {Kind::kStop, {}};
}

/// Help is shown and an answer that cannot be taken is explained; both are followed by another
/// question.
bool SpellQuestions::CanBeTaken(const SpellAnswer& answer, const MisspelledWord& word) {
  if (answer.kind == Kind::kHelp) {
    terminal_.show(AnswerHelp());
    return false;
  }
  std::optional<std::string> problem;
  if (answer.kind == Kind::kNone) problem = answer.text;
  if (answer.kind == Kind::kReplace || answer.kind == Kind::kReplaceAll) {
    problem = ProblemOfReplacement(answer.text, word.encoding);
  }
  if (problem) terminal_.show("  " + *problem + " (? for help)\n");
  return !problem;
}

std::optional<std::string> SpellQuestions::Take(const SpellAnswer& answer,
                                                const MisspelledWord& word) {
  if (answer.kind == Kind::kReplaceAll) session_.ReplaceAll(word.word, answer.text);
  if (answer.kind == Kind::kIgnoreAll) session_.IgnoreAll(word.word);
  if (answer.kind == Kind::kAdd) AddToUserWords(word.word);
  if (answer.kind == Kind::kStop) hasStopped_ = true;
  const bool replaces = answer.kind == Kind::kReplace || answer.kind == Kind::kReplaceAll;
  return replaces ? std::optional(answer.text) : std::nullopt;
}

void SpellQuestions::AddToUserWords(const std::string& word) {
  try {
    session_.AddToUserWords(word);
  } catch (const UserWordsError& error) {
    terminal_.show("  " + std::string(error.what()) + "; the word is right for this run only\n");
  }
}

}  // namespace brimwork

// The question for one misspelled word as the terminal shows it, and the line of a list.
#pragma once

#include <string>
#include <vector>

#include "cli/misspelled_word.h"

namespace brimwork {

/// The place, the line of code with the word marked, and the numbered suggestions, in lines that
/// fit into 80 columns.
std::string QuestionText(const MisspelledWord& word, const std::vector<std::string>& suggestions,
                         bool color);

/// What the user can answer, on one line without its end.
std::string AnswerPrompt(std::size_t suggestions);

/// All answers, one a line.
std::string AnswerHelp();

/// "path:line:column: "word": suggestions a, b".
std::string ListLine(const MisspelledWord& word, const std::vector<std::string>& suggestions);

}  // namespace brimwork

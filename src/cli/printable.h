// Texts of the user's files as a terminal can show them.
#pragma once

#include <string>
#include <string_view>

namespace brimwork {

inline constexpr int kTerminalColumns = 80;

/// Each character takes one column and moves nothing on the terminal: a tab is a blank, what cannot
/// be shown a question mark.
std::string Printable(std::string_view text);

/// Lines that fit the terminal, indented and ended, broken between words; a word that is too long
/// for a line is broken within. text is one line.
std::string WordWrapped(std::string_view text, std::string_view indent);

/// The lines of text that fit the terminal and are marked by "  | "; what is too long for a line
/// goes on in the next one without a mark. Empty text gives "  (empty)".
std::string MarkedLines(std::string_view text);

}  // namespace brimwork

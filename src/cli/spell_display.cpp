#include "cli/spell_display.h"

#include <algorithm>
#include <string_view>

#include "cli/printable.h"
#include "environment/text.h"

namespace brimwork {
namespace {

constexpr std::string_view kIndent = "    ";
constexpr std::string_view kCut = "...";
constexpr std::string_view kBold = "\x1b[1m";
constexpr std::string_view kRed = "\x1b[31m";
constexpr std::string_view kReset = "\x1b[m";

std::string FirstCharacters(const std::string& text, int count) {
  return text.substr(0, ByteOffset(text, count));
}

std::string LastCharacters(const std::string& text, int count) {
  return text.substr(ByteOffset(text, CharacterCount(text) - count));
}

/// The line of code, cut around the word where it is too long.
struct ShownLine {
  std::string before;
  std::string word;
  std::string behind;
};

ShownLine FittedLine(const MisspelledWord& word) {
  constexpr int kCutSize = static_cast<int>(kCut.size());
  const int width = kTerminalColumns - 1 - static_cast<int>(kIndent.size());
  ShownLine shown{Printable(TrimLeft(word.before, " \t")), Printable(word.written),
                  Printable(word.behind)};
  if (CharacterCount(shown.word) > width) {
    shown.word = FirstCharacters(shown.word, width - 3 * kCutSize).append(kCut);
  }
  const int room = width - CharacterCount(shown.word);
  const int before = CharacterCount(shown.before);
  const int behind = CharacterCount(shown.behind);
  const int roomBefore = std::max(room / 2, room - behind);
  if (before > roomBefore) {
    shown.before =
        std::string(kCut) + LastCharacters(shown.before, std::max(0, roomBefore - kCutSize));
  }
  const int roomBehind = room - CharacterCount(shown.before);
  if (behind > roomBehind) {
    shown.behind = FirstCharacters(shown.behind, std::max(0, roomBehind - kCutSize)).append(kCut);
  }
  return shown;
}

std::string MarkedLine(const MisspelledWord& word, bool color) {
  const ShownLine shown = FittedLine(word);
  const std::string marked =
      color ? std::string(kRed).append(shown.word).append(kReset) : shown.word;
  const auto underline = static_cast<std::size_t>(CharacterCount(shown.word));
  const auto margin = kIndent.size() + static_cast<std::size_t>(CharacterCount(shown.before));
  return std::string(kIndent) + shown.before + marked + shown.behind + '\n' +
         std::string(margin, ' ') + std::string(underline, '~') + '\n';
}

std::string NumberedSuggestions(const std::vector<std::string>& suggestions) {
  if (suggestions.empty()) return "  no suggestions\n";
  std::string lines;
  std::string line;
  for (std::size_t i = 0; i < suggestions.size(); ++i) {
    const std::string entry = "  " + std::to_string(i + 1) + ' ' + Printable(suggestions[i]);
    if (!line.empty() && CharacterCount(line) + CharacterCount(entry) >= kTerminalColumns) {
      lines += line + '\n';
      line.clear();
    }
    line += entry;
  }
  return lines + line + '\n';
}

}  // namespace

std::string QuestionText(const MisspelledWord& word, const std::vector<std::string>& suggestions,
                         bool color) {
  const std::string place = word.Place() + ": \"" + Printable(word.written) + '"';
  return '\n' + (color ? std::string(kBold).append(place).append(kReset) : place) + '\n' +
         MarkedLine(word, color) + NumberedSuggestions(suggestions);
}

std::string AnswerPrompt(std::size_t suggestions) {
  const std::string numbers = suggestions == 0   ? ""
                              : suggestions == 1 ? "1, "
                                                 : "1-" + std::to_string(suggestions) + ", ";
  return numbers + "r TEXT, R TEXT, i ignore, I ignore all, a add, s stop, ? help: ";
}

std::string AnswerHelp() {
  return "  1 to 9   put the suggestion of that number in the word's place\n"
         "  r TEXT   put TEXT in its place\n"
         "  R TEXT   the same here and wherever the word comes up again; TEXT may also be\n"
         "           the number of a suggestion, as in \"R 1\"\n"
         "  i        leave the word as it is here\n"
         "  I        leave it as it is here and everywhere\n"
         "  a        add it to your own words, for this run and all later ones\n"
         "  s or q   stop asking; what was decided so far is kept\n";
}

std::string ListLine(const MisspelledWord& word, const std::vector<std::string>& suggestions) {
  std::string joined;
  for (const std::string& suggestion : suggestions) {
    joined += (joined.empty() ? "suggestions " : ", ") + suggestion;
  }
  return word.Place() + ": \"" + Printable(word.written) +
         "\": " + (joined.empty() ? "no suggestions" : joined) + '\n';
}

}  // namespace brimwork

#include "cli/terminal_prompts.h"

#include <algorithm>
#include <charconv>

#include "cli/printable.h"
#include "environment/text.h"
#include "environment/utf8.h"

namespace brimwork {
namespace {

constexpr std::string_view kDot = ".";

bool CannotBeTyped(char c) {
  return (static_cast<unsigned char>(c) < ' ' && c != '\t') || c == '\x7F';
}

bool IsUtf8(std::string_view text) {
  while (!text.empty()) {
    const std::size_t size = Utf8Size(text);
    if (size == 0) return false;
    text.remove_prefix(size);
  }
  return true;
}

/// What keeps a line from being an answer; "" when nothing does.
std::string_view ProblemOf(std::string_view line) {
  if (!IsUtf8(line)) return "that is no UTF-8 text; type it again";
  if (std::ranges::any_of(line, CannotBeTyped)) {
    return "that holds control characters; type it again";
  }
  return {};
}

std::string Explained(std::string_view problem) { return "  " + std::string(problem) + '\n'; }

/// 0 for an answer that is no number of a choice.
int ChoiceIn(std::string_view answer, int count) {
  int number = 0;
  const char* const end = answer.data() + answer.size();
  const auto parsed = std::from_chars(answer.data(), end, number);
  return parsed.ec == std::errc() && parsed.ptr == end && number <= count ? number : 0;
}

std::string Numbers(std::size_t count) {
  return count == 2 ? "1 or 2" : "1 to " + std::to_string(count);
}

}  // namespace

std::string TerminalPrompts::AskLine(std::string_view prompt) const {
  while (true) {
    terminal_.show(std::string(prompt));
    const std::optional<std::string> line = terminal_.readLine();
    if (!line) throw AnswersEnded();
    const std::string_view problem = ProblemOf(*line);
    if (problem.empty()) return *line;
    terminal_.show(Explained(problem));
  }
}

bool TerminalPrompts::AskYesOrNo(std::string_view question, bool present) const {
  const std::string prompt =
      std::string(question) + " (y/n, Enter is " + (present ? "y" : "n") + "): ";
  while (true) {
    const std::string line = AskLine(prompt);
    const std::string_view answer = TrimBlanksAndTabs(line);
    if (answer.empty()) return present;
    if (EqualNames(answer, "y") || EqualNames(answer, "yes")) return true;
    if (EqualNames(answer, "n") || EqualNames(answer, "no")) return false;
    terminal_.show(Explained("answer y or n"));
  }
}

int TerminalPrompts::AskChoice(const std::vector<std::string>& choices, int present) const {
  for (std::size_t i = 0; i < choices.size(); ++i) {
    terminal_.show("  " + std::to_string(i + 1) + ' ' + choices[i] + '\n');
  }
  const std::string numbers = Numbers(choices.size());
  const std::string prompt = numbers + " (Enter is " + std::to_string(present) + "): ";
  while (true) {
    const std::string line = AskLine(prompt);
    const std::string_view answer = TrimBlanksAndTabs(line);
    if (answer.empty()) return present;
    const int choice = ChoiceIn(answer, static_cast<int>(choices.size()));
    if (choice > 0) return choice;
    terminal_.show(Explained("answer " + numbers));
  }
}

std::optional<std::string> TerminalPrompts::AskText(std::string_view present) const {
  terminal_.show(MarkedLines(present));
  const std::string line = AskLine("Another text, a dot alone for none, Enter to keep it: ");
  if (line.empty()) return std::nullopt;
  return line == kDot ? std::string() : line;
}

std::optional<std::string> TerminalPrompts::AskLines(std::string_view present) const {
  constexpr std::string_view kLinePrompt = "  | ";
  terminal_.show(MarkedLines(present));
  terminal_.show("Other lines and a dot alone behind the last, or Enter to keep them:\n");
  std::string line = AskLine(kLinePrompt);
  if (line.empty()) return std::nullopt;
  std::string text;
  for (bool isFirst = true; line != kDot; line = AskLine(kLinePrompt)) {
    if (!isFirst) text += '\n';
    text += line;
    isFirst = false;
  }
  return text;
}

}  // namespace brimwork

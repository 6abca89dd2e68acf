#include "cli/keyword_questions.h"

#include <vector>

#include "cli/near_miss.h"
#include "cli/printable.h"
#include "cli/typing.h"
#include "environment/text.h"

namespace brimwork {
namespace {

constexpr std::string_view kPrompt =
    "a WORD add, d WORD delete, l list, r reset, ? help, Enter to go on: ";

constexpr const char* kHelp =
    "  a WORD   add WORD at the end of the list, as it is typed\n"
    "  d WORD   delete WORD, which must have the same letter case; of two equal words\n"
    "           side by side the second one stays\n"
    "  l        show the list\n"
    "  r        put the built-in keywords in the place of the list\n";

constexpr const char* kNoWord = "  write the word behind the letter, as in \"a Dim\"\n";

std::string Told(std::string_view text) { return WordWrapped(text, "  "); }

std::string InQuotes(std::string_view text) { return '"' + std::string(text) + '"'; }

}  // namespace

void KeywordQuestions::AskAll() {
  prompts_.Show(ShownCaption(form_.lblKeyWord.Caption) + '\n');
  ShowList();
  while (true) {
    const std::string answer = prompts_.AskLine(kPrompt);
    if (answer.empty()) break;
    Obey(answer);
  }
  if (form_.lstKeyWord.ListCount() == 0) {
    prompts_.Show(Told("an empty list leaves the stored one as it is"));
  }
}

// The word is all that stands behind the letter and one blank, as it would be in a box.
void KeywordQuestions::Obey(std::string_view answer) {
  if (answer == "l") return ShowList();
  if (answer == "r") return Reset();
  if (answer == "?") return ShowHelp();
  if (answer == "a" || answer == "d") return prompts_.Show(kNoWord);
  if (answer.starts_with("a ")) return Add(answer.substr(2));
  if (answer.starts_with("d ")) return Delete(answer.substr(2));
  prompts_.Show(Told("there is no answer " + InQuotes(answer) + " (? for help)"));
}

void KeywordQuestions::ShowHelp() { prompts_.Show(kHelp); }

void KeywordQuestions::ShowList() {
  std::string joined;
  for (const std::string& word : form_.lstKeyWord.Items()) joined += word + ' ';
  prompts_.Show(Told(joined) + Told(Count()));
}

std::string KeywordQuestions::Count() const {
  const int count = form_.lstKeyWord.ListCount();
  return std::to_string(count) + (count == 1 ? " keyword" : " keywords");
}

void KeywordQuestions::Add(std::string_view word) {
  Retype(form_.txtAdd, word);
  if (!form_.cmdAdd.Enabled) return prompts_.Show(kNoWord);
  form_.cmdAdd.Click();
  prompts_.Show(Told("added " + InQuotes(word) + ", " + Count()));
}

void KeywordQuestions::Delete(std::string_view word) {
  const std::vector<std::string> before = form_.lstKeyWord.Items();
  Retype(form_.txtDelete, word);
  if (!form_.cmdDelete.Enabled) return prompts_.Show(kNoWord);
  form_.cmdDelete.Click();
  const std::size_t deleted = before.size() - form_.lstKeyWord.Items().size();
  if (deleted > 0) {
    return prompts_.Show(
        Told("deleted " + InQuotes(word) + (deleted == 1 ? "" : " each time") + ", " + Count()));
  }
  const std::vector<std::string_view> known(before.begin(), before.end());
  prompts_.Show(Told("there is no keyword " + InQuotes(word) + NearMissHint(word, known)));
}

// The button works only while the safety box is ticked.
void KeywordQuestions::Reset() {
  form_.chkEnable.Click();
  form_.cmdReset.Click();
  form_.chkEnable.Click();
  prompts_.Show(Told(Count()));
}

}  // namespace brimwork

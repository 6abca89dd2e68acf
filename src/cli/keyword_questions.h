// Asks what is to become of the keyword list of the setup dialog.
#pragma once

#include <string>
#include <string_view>

#include "cli/terminal_prompts.h"
#include "settings/frmSetup.h"

namespace brimwork {

class KeywordQuestions {
 public:
  /// The form shows the tab of the keywords. Both are used as long as the questions live.
  KeywordQuestions(frmSetup& form, const TerminalPrompts& prompts)
      : form_(form), prompts_(prompts) {}

  /// Until the user goes on. Throws AnswersEnded.
  void AskAll();

 private:
  void Obey(std::string_view answer);
  void ShowList();
  void ShowHelp();
  void Add(std::string_view word);
  void Delete(std::string_view word);
  void Reset();

  std::string Count() const;

  frmSetup& form_;
  const TerminalPrompts& prompts_;
};

}  // namespace brimwork

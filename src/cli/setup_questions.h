// Asks for each setting of the setup dialog, tab by tab, and types and clicks the answers into it.
#pragma once

#include <string>
#include <string_view>

#include "cli/terminal_prompts.h"
#include "settings/frmSetup.h"

namespace brimwork {

class SetupQuestions {
 public:
  /// form is shown. Both are used as long as the questions live.
  SetupQuestions(frmSetup& form, const TerminalPrompts& prompts) : form_(form), prompts_(prompts) {}

  /// Returns with the form filled in and still open. Throws AnswersEnded.
  void AskAll();

 private:
  void OpenTab(int tab);
  void AskErrorHandling();
  void AskHeaders();
  void AskOtherSettings();

  void AskText(const Label& label, TextBox& box);
  void AskLines(std::string_view label, TextBox& box);
  void AskCheckBox(CheckBox& box);
  void AskAutoLoad();

  frmSetup& form_;
  const TerminalPrompts& prompts_;
};

}  // namespace brimwork

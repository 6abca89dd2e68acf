// The message boxes of the setup dialog at a terminal: a question is asked there, and what the user
// is only told is kept until the end.
#pragma once

#include <string_view>

#include "cli/terminal_prompts.h"
#include "memory/memory_dialogs.h"

namespace brimwork {

class SetupDialogs : public MemoryDialogs {
 public:
  /// prompts is used as long as the dialogs live.
  explicit SetupDialogs(const TerminalPrompts& prompts) : prompts_(prompts) {}

  /// Throws AnswersEnded.
  int MsgBox(std::string_view prompt, int style, std::string_view title) override;

 private:
  const TerminalPrompts& prompts_;
};

}  // namespace brimwork

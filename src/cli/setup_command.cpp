#include "cli/setup_command.h"

#include "cli/app.h"
#include "cli/command_request.h"
#include "cli/setup_dialogs.h"
#include "cli/setup_questions.h"
#include "cli/user_settings.h"
#include "environment/text.h"
#include "settings/frmSetup.h"

namespace brimwork {
namespace {

void CheckTerminal() {
  if (UserIsThere()) return;
  throw UsageError(
      "there is no terminal to ask on: \"brimwork setup --defaults\" asks nothing, \"brimwork "
      "settings set KEY VALUE\" stores one setting");
}

/// What the dialog has told on closing are errors.
int TellOutcome(const MemoryDialogs& dialogs, const UserSettings& user, Console& console) {
  for (const ShownMessage& message : dialogs.Messages()) {
    console.Error(Replace(message.prompt, "\r\n", ": "));
  }
  if (!dialogs.Messages().empty()) return exit_code::kError;
  console.Note("The settings are stored in " + user.area.Path().string());
  return exit_code::kDone;
}

}  // namespace

int AskForSettings(Console& console) {
  CheckTerminal();
  const TerminalPrompts prompts(TerminalOf(console));
  SetupDialogs dialogs(prompts);
  UserSettings user(&dialogs);
  frmSetup form(user.environment);
  form.Show();
  try {
    SetupQuestions(form, prompts).AskAll();
  } catch (const AnswersEnded& ended) {
    console.Ask("\n");
    console.Error(std::string(ended.what()) + ": nothing was stored");
    return exit_code::kError;
  }
  form.cmdExit.Click();
  return TellOutcome(dialogs, user, console);
}

int StoreShownSettings(Console& console) {
  UserSettings user;
  frmSetup form(user.environment);
  form.Load();
  form.Unload();
  return TellOutcome(user.memory.dialogs, user, console);
}

}  // namespace brimwork

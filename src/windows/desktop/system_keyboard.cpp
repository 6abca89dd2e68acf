#include "windows/desktop/system_keyboard.h"

#include "windows/desktop/key_input.h"
#include "windows/desktop/system_error.h"

namespace brimwork::windows {

void SystemKeyboard::SendKeys(std::string_view keys, bool wait) {
  std::vector<INPUT> events = InputOf(ParseSendKeys(keys));
  const auto count = static_cast<UINT>(events.size());
  if (SendInput(count, events.data(), sizeof(INPUT)) != count) RaiseSystemError("SendInput");
  if (wait) messages_.HandleKeys(static_cast<int>(count));
}

}  // namespace brimwork::windows

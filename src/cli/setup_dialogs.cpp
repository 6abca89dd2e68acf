#include "cli/setup_dialogs.h"

#include <string>

#include "environment/message_boxes.h"
#include "environment/text.h"

namespace brimwork {

int SetupDialogs::MsgBox(std::string_view prompt, int style, std::string_view title) {
  constexpr int kButtons = 0xF;  // the bits that say which buttons there are
  constexpr int kOkCancel = 1;
  constexpr int kSecondButtonIsDefault = 256;
  if ((style & kButtons) != kOkCancel) return MemoryDialogs::MsgBox(prompt, style, title);
  const bool isOkDefault = (style & kSecondButtonIsDefault) == 0;
  const std::string question = "  " + Replace(prompt, "\r\n", "\n  ");
  return prompts_.AskYesOrNo(question, isOkDefault) ? message_box_result::kOk
                                                    : message_box_result::kCancel;
}

}  // namespace brimwork

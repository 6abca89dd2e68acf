#include "transform/code_source.h"

namespace brimwork {

std::shared_ptr<CodeModule> ActiveCodeModule(Environment& environment) {
  std::shared_ptr<CodeModule> module;
  ResumeNext([&] {
    if (const auto pane = environment.vbe.ActiveCodePane()) module = pane->Module();
  });
  return module;
}

bool IsValidCodeSource(Environment& environment, const std::shared_ptr<CodeModule>& module) {
  if (module) return true;
  environment.dialogs.MsgBox(
      "Please pick a valid code source to work with\r\n"
      "You need to set the focus on a valid code source to execute this command",
      message_box::kOkOnly + message_box::kInformation, "Need Valid Code Source");
  return false;
}

}  // namespace brimwork

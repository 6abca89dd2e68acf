// The message box designer at work for a user of the command line: the choices are typed and
// clicked into its form, and the code is taken out of the code viewer.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "msgbox/msgbox_styles.h"

namespace brimwork {

struct TypedPosition {
  std::string x;
  std::string y;
};

/// Choices are indexes into the designer's tables (msgbox/msgbox_styles.h). Numbers are texts, as
/// they are typed; a feature that is not there is not switched on.
struct MsgBoxRequest {
  std::string prompt;
  std::string title;
  int buttons = kFirstButtonsSet;
  int icon = 0;
  int defaultButton = 0;
  int modality = 0;
  std::array<bool, kOptionStyles.size()> options = {};

  std::optional<std::string> timeOut;
  std::optional<TypedPosition> position;
  std::optional<std::string> checkBox;
  std::vector<std::string> captions;  // of the first buttons; a blank one keeps the usual caption
};

struct DesignedMsgBox {
  std::string code;            // lines joined by CR LF
  std::string requiredModule;  // text of the module that the code calls; "" when it calls none
};

/// Raises RunTimeError when the designer does.
DesignedMsgBox DesignMsgBox(const MsgBoxRequest& request);

}  // namespace brimwork

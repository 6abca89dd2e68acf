// The options of brimwork msgbox as they are typed, and what they come to.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/msgbox_designer.h"

namespace CLI {
class App;
}

namespace brimwork {

struct MsgBoxOptions {
  std::string text;
  std::string title;
  std::string buttons = "ok-only";
  std::string icon = "none";
  std::string defaultButton = "1";
  std::string modality = "application";
  bool helpButton = false;
  bool rightAligned = false;
  bool rightToLeft = false;
  bool foreground = false;

  std::optional<std::string> timeOut;
  std::optional<std::string> position;  // X,Y
  std::optional<std::string> checkBox;
  std::optional<std::string> captions;  // joined by commas

  std::optional<std::string> project;  // that gets the module that the code needs
  bool quiet = false;
};

void AddMsgBoxOptions(CLI::App& command, MsgBoxOptions& options);

/// Throws UsageError.
MsgBoxRequest MakeMsgBoxRequest(const MsgBoxOptions& options);

/// What the options say in vain, one line each: numbers that count as not set, a check box without
/// a text, texts that would end their literals.
std::vector<std::string> WarningsOf(const MsgBoxRequest& request);

}  // namespace brimwork

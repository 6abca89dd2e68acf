#include "cli/msgbox_options.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "cli/command_request.h"
#include "cli/msgbox_choices.h"
#include "environment/text.h"

namespace brimwork {
namespace {

void AddStyleOptions(CLI::App& command, MsgBoxOptions& options) {
  command.add_option("--buttons", options.buttons, "As yes-no-cancel or vbYesNoCancel (ok-only)")
      ->option_text("SET")
      ->group("Style");
  command.add_option("--icon", options.icon, "As question or vbQuestion (none)")
      ->option_text("ICON")
      ->group("Style");
  command.add_option("--default", options.defaultButton, "Button that Enter presses (1)")
      ->option_text("N")
      ->group("Style");
  command.add_option("--modal", options.modality, "application or system (application)")
      ->option_text("KIND")
      ->group("Style");
  command.add_flag("--help-button", options.helpButton, "With a help button")->group("Style");
  command.add_flag("--right-aligned", options.rightAligned, "With right-aligned text")
      ->group("Style");
  command.add_flag("--right-to-left", options.rightToLeft, "For right-to-left reading")
      ->group("Style");
  command.add_flag("--foreground", options.foreground, "As the foreground window")->group("Style");
}

constexpr const char* kCustomGroup = "Custom features (need the module modCustomMsgBox)";

void AddCustomOptions(CLI::App& command, MsgBoxOptions& options) {
  command.add_option("--timeout", options.timeOut, "Close by itself after 1 to 32 seconds")
      ->option_text("SECONDS")
      ->group(kCustomGroup);
  command.add_option("--position", options.position, "Left and upper edge on the screen, pixels")
      ->option_text("X,Y")
      ->group(kCustomGroup);
  command.add_option("--check-box", options.checkBox, "With a check box of this text")
      ->option_text("TEXT")
      ->group(kCustomGroup);
  command.add_option("--captions", options.captions, "Captions of the buttons, left to right")
      ->option_text("A,B,C")
      ->group(kCustomGroup);
  command.add_option("--add-to", options.project, "Add modCustomMsgBox to it when needed")
      ->option_text("FILE.vbp")
      ->group(kCustomGroup);
}

TypedPosition PositionOf(const std::string& text) {
  const std::vector<std::string_view> parts = Split(text, ",");
  if (parts.size() == 2) return {std::string(parts[0]), std::string(parts[1])};
  throw UsageError("--position " + text + ": write it as X,Y, as in 100,50");
}

std::vector<std::string> CaptionsOf(const std::string& text, int buttonsSet) {
  const std::vector<std::string_view> captions = Split(text, ",");
  const ButtonsSet& set = kButtonsSets.at(static_cast<std::size_t>(buttonsSet));
  const auto most = static_cast<std::size_t>(set.buttonCount);
  if (captions.size() > most) {
    throw UsageError("--captions " + text + ": " + std::string(set.name) + " has " +
                     std::to_string(most) + (most == 1 ? " button" : " buttons"));
  }
  if (std::ranges::all_of(captions, [](std::string_view each) { return Trim(each).empty(); })) {
    throw UsageError("--captions names no caption: write them as A,B,C, as in Save,Discard");
  }
  return {captions.begin(), captions.end()};
}

}  // namespace

void AddMsgBoxOptions(CLI::App& command, MsgBoxOptions& options) {
  command.add_option("--text", options.text, "What the box says, may have several lines")
      ->required()
      ->option_text("TEXT");
  command.add_option("--title", options.title, "What stands in its title bar")->option_text("TEXT");
  AddStyleOptions(command, options);
  AddCustomOptions(command, options);
  command.add_flag("-q,--quiet", options.quiet, "Errors and warnings only");
}

MsgBoxRequest MakeMsgBoxRequest(const MsgBoxOptions& options) {
  if (options.project == "") throw UsageError("--add-to needs the name of a project");
  MsgBoxRequest request;
  request.prompt = options.text;
  request.title = options.title;
  request.buttons = ButtonsSetNamed(options.buttons);
  request.icon = IconNamed(options.icon);
  request.defaultButton = DefaultButtonNamed(options.defaultButton, request.buttons);
  request.modality = ModalityNamed(options.modality);
  request.options = {options.helpButton, options.rightAligned, options.rightToLeft,
                     options.foreground};
  request.timeOut = options.timeOut;
  if (options.position) request.position = PositionOf(*options.position);
  request.checkBox = options.checkBox;
  if (options.captions) request.captions = CaptionsOf(*options.captions, request.buttons);
  return request;
}

}  // namespace brimwork

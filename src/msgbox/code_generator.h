// Turns a designed message box into the Visual Basic code that shows it, and brings the module that
// a custom message box needs into the user's project.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "environment/environment.h"

namespace brimwork {

inline constexpr std::string_view kRequiredModuleName = "modCustomMsgBox";

/// What the user has designed.
struct MsgBoxDesign {
  std::string prompt;  // as typed
  std::string title;   // as typed

  // The parts of the style.
  std::int16_t buttonsSet = 0;
  std::int16_t icon = 0;
  std::int16_t defaultButton = 0;
  std::int16_t modality = 0;
  std::int32_t options = 0;

  // What the custom message box has beyond that.
  std::int16_t timeOut = -1;  // in seconds
  std::int32_t x = -1;        // in pixels
  std::int32_t y = -1;
  bool hasCheckBox = false;
  std::string checkBoxText;
  std::int16_t buttonCount = 0;
  std::vector<std::string> buttonCaptions;  // the new ones, as typed
  std::string standardCaptions;             // of the buttons set, joined by commas
};

/// Whether line ends become vbCrLf terms.
enum class LineEnds { kKept, kConverted };

/// Prepares text for a place between two double quotes in code: blanks around it and control
/// characters behind it go, a double quote becomes a chr(34) term. A lone CR or LF stays.
std::string EscapePrompt(std::string_view text, LineEnds lineEnds);

/// The new captions that are not empty, trimmed and joined by commas.
std::string ButtonCaptionsText(const std::vector<std::string>& captions);

/// The sum of the style's parts. Raises error 6 when it overflows: the 16-bit parts add up within
/// 16 bits, all together within 32.
std::int32_t MsgBoxStyle(const MsgBoxDesign& design);

/// A MsgBox statement. The title is copied as it stands, double quotes included. Raises error 6
/// when the style overflows.
std::string PlainMsgBoxCode(const MsgBoxDesign& design);

/// A call of CreateSpecialMsgbox, with a declaration above it for the check box's value. Raises
/// error 6 when the style overflows.
std::string CustomMsgBoxCode(const MsgBoxDesign& design);

/// Unless the active project has a component of the required module's name, asks the user whether
/// to add it, and on Yes adds a standard module with that name and text and says so. Raises what
/// the environment raises, error 91 when there is no project.
void AddRequiredModule(Environment& environment, std::string_view moduleText);

}  // namespace brimwork

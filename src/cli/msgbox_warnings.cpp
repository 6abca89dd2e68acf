// What the options of a message box say in vain.
#include "cli/msgbox_options.h"
#include "environment/text.h"
#include "msgbox/typed_number.h"

namespace brimwork {
namespace {

constexpr int kLongestTimeOut = 32;  // in seconds: the module counts milliseconds in 16 bits

void AddTimeOutWarning(const std::string& text, std::vector<std::string>& warnings) {
  const int seconds = TypedInteger(text);
  if (seconds == kNotSet) {
    warnings.push_back("--timeout \"" + text + "\" counts as not set: write 1 to 32");
  } else if (seconds < 1 || seconds > kLongestTimeOut) {
    warnings.push_back("--timeout \"" + text +
                       "\" does not close the message box: only 1 to 32 seconds do");
  }
}

void AddPositionWarning(const TypedPosition& position, std::vector<std::string>& warnings) {
  if (TypedLong(position.x) != kNotSet && TypedLong(position.y) != kNotSet) return;
  warnings.push_back("--position \"" + position.x + ',' + position.y +
                     "\" counts as not set: write two whole numbers, as in 100,50");
}

void AddQuoteWarning(std::string_view option, std::string_view text,
                     std::vector<std::string>& warnings) {
  if (!Contains(text, "\"")) return;
  warnings.push_back(std::string(option) +
                     " holds a double quote, which ends the literal: correct the code by hand");
}

}  // namespace

std::vector<std::string> WarningsOf(const MsgBoxRequest& request) {
  std::vector<std::string> warnings;
  AddQuoteWarning("--title", request.title, warnings);
  if (request.timeOut) AddTimeOutWarning(*request.timeOut, warnings);
  if (request.position) AddPositionWarning(*request.position, warnings);
  if (request.checkBox && Trim(*request.checkBox).empty()) {
    warnings.push_back("--check-box without a text counts as not set");
  }
  if (request.checkBox) AddQuoteWarning("--check-box", *request.checkBox, warnings);
  for (const std::string& caption : request.captions) {
    AddQuoteWarning("--captions", caption, warnings);
  }
  return warnings;
}

}  // namespace brimwork

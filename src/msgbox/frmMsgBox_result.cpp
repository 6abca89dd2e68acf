// What comes out of the designer: the message box to look at, and the code that shows it.
#include <algorithm>

#include "environment/text.h"
#include "msgbox/frmMsgBox.h"
#include "msgbox/msgbox_styles.h"
#include "msgbox/typed_number.h"

namespace brimwork {
namespace {

/// The prompt as the code will show it: without line ends and tabs behind it.
std::string_view ShownPrompt(const MsgBoxDesign& design) {
  return TrimRight(Trim(design.prompt), "\r\n\t");
}

/// "" for no result, as from a box that could not be shown.
std::string_view ResultName(int result) {
  const bool isResult = result > 0 && result <= static_cast<int>(kResultNames.size());
  return isResult ? kResultNames.at(static_cast<std::size_t>(result - 1)) : "";
}

}  // namespace

bool frmMsgBox::IsSwitchedOn(int feature) const {
  return viewsSpecial_ && chkSpecial(feature).Value;
}

bool frmMsgBox::HasNewCaptions() const {
  return std::ranges::any_of(chkButtonCaption, [](const CheckBox& box) { return box.Value.Get(); });
}

// A position takes both of its numbers.
bool frmMsgBox::ReadDesign() {
  design_.prompt = txtMsgBoxText.Text;
  design_.title = txtMsgBoxTitle.Text;
  ReadCustomValues();
  const bool hasTimeOut = design_.timeOut != kNotSet;
  const bool hasPosition = design_.x != kNotSet && design_.y != kNotSet;
  const bool hasNewCaptions = viewsSpecial_ && HasNewCaptions();
  return hasTimeOut || hasPosition || design_.hasCheckBox || hasNewCaptions;
}

// A check box that says nothing is no check box.
void frmMsgBox::ReadCustomValues() {
  const bool hasTimeOut = IsSwitchedOn(kTimeOutFeature);
  const bool hasPosition = IsSwitchedOn(kPositionFeature);
  design_.timeOut = hasTimeOut ? TypedInteger(txtTimeOut.Text) : std::int16_t{kNotSet};
  design_.x = hasPosition ? TypedLong(txtPosition(0).Text) : kNotSet;
  design_.y = hasPosition ? TypedLong(txtPosition(1).Text) : kNotSet;
  const std::string_view text = Trim(txtCheckBoxText.Text);
  if (text.empty()) chkSpecial(kCheckBoxFeature).Value = false;
  design_.hasCheckBox = IsSwitchedOn(kCheckBoxFeature);
  design_.checkBoxText = design_.hasCheckBox ? text : "";
  design_.buttonCaptions.clear();
  for (const TextBox& box : txtButtonCaption) design_.buttonCaptions.push_back(box.Text);
}

void frmMsgBox::cmdView_Click() {
  bool checkBoxValue = false;
  const int result = ReadDesign() ? ShowSpecialBox(checkBoxValue) : ShowPlainBox();
  std::string outcome = "Button Clicked: " + std::string(ResultName(result));
  if (design_.hasCheckBox)
    outcome += checkBoxValue ? " CheckBox Value: True" : " CheckBox Value: False";
  sbStatus.SimpleText = outcome;
}

int frmMsgBox::ShowPlainBox() {
  return environment_.dialogs.MsgBox(ShownPrompt(design_), MsgBoxStyle(design_),
                                     Trim(design_.title));
}

int frmMsgBox::ShowSpecialBox(bool& checkBoxValue) {
  return customMsgBox_.CreateSpecialMsgbox(
      ShownPrompt(design_), MsgBoxStyle(design_), Trim(design_.title), design_.timeOut, design_.x,
      design_.y, design_.checkBoxText, &checkBoxValue, design_.buttonCount,
      ButtonCaptionsText(design_.buttonCaptions), design_.standardCaptions);
}

void frmMsgBox::cmdCode_Click() {
  const bool isCustom = ReadDesign();
  const std::string code = isCustom ? CustomMsgBoxCode(design_) : PlainMsgBoxCode(design_);
  viewer_.Load();
  if (isCustom) AddRequiredModule(environment_, viewer_.txtModule.Text);
  viewer_.txtCode.Text = code;
  viewer_.Show();
}

}  // namespace brimwork

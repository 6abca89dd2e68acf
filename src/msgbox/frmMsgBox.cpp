#include "msgbox/frmMsgBox.h"

#include <algorithm>

#include "environment/text.h"
#include "msgbox/frmMsgBox_layout.h"
#include "msgbox/msgbox_styles.h"
#include "msgbox/typed_number.h"

namespace brimwork {
namespace {

/// The entry of a table for a control's index.
template <class Table>
const auto& At(const Table& table, int index) {
  return table.at(static_cast<std::size_t>(index));
}

/// The frame with a border marks the choice.
template <int kCount>
void MarkChoice(ControlArray<PictureBox, kCount>& frames, int chosen) {
  for (PictureBox& frame : frames) {
    frame.BorderStyle = frame.Index() == chosen ? border_style::kFixedSingle : border_style::kNone;
  }
}

/// Lets the user type over the whole text of a box that can be used.
void FocusOnWholeText(TextBox& box) {
  if (!box.CanBeUsed()) return;
  box.SetFocus();
  box.SetSelStart(0);
  box.SetSelLength(CharacterCount(box.Text));
}

}  // namespace

frmMsgBox::frmMsgBox(const Environment& environment, frmCode& viewer)
    : Form(environment.formHost, MsgBoxLayout()),
      environment_(environment),
      viewer_(viewer),
      customMsgBox_(environment) {
  HandleStyleEvents();
  HandleCustomFeatureEvents();
  cmdView.OnClick = [this] { cmdView_Click(); };
  cmdCode.OnClick = [this] { cmdCode_Click(); };
  cmdExit.OnClick = [this] { cmdExit_Click(); };
}

void frmMsgBox::HandleStyleEvents() {
  cmbButtons.OnClick = [this] { cmbButtons_Click(); };
  MsgBoxButtons.Handle(&CommandButton::OnClick, [this](int index) { MsgBoxButtons_Click(index); });
  cmdIcons.Handle(&CommandButton::OnClick, [this](int index) { cmdIcons_Click(index); });
  optMsgBox.Handle(&OptionButton::OnClick, [this](int index) { optMsgBox_Click(index); });
  chkMsgBox.Handle(&CheckBox::OnClick, [this](int) { chkMsgBox_Click(); });
}

void frmMsgBox::HandleCustomFeatureEvents() {
  chkViewSpecial.OnClick = [this] { chkViewSpecial_Click(); };
  chkSpecial.Handle(&CheckBox::OnClick, [this](int index) { chkSpecial_Click(index); });
  chkButtonCaption.Handle(&CheckBox::OnClick, [this](int index) { chkButtonCaption_Click(index); });
  txtButtonCaption.Handle(&TextBox::OnChange,
                          [this](int index) { txtButtonCaption_Change(index); });
  for (TextBox& box : txtButtonCaption) {
    box.OnValidate = [this, index = box.Index()](bool& cancel) {
      txtButtonCaption_Validate(index, cancel);
    };
  }
}

void frmMsgBox::Form_Load() {
  design_ = {};
  viewsSpecial_ = false;
  cmbButtons.ListIndex = kFirstButtonsSet;
}

void frmMsgBox::cmbButtons_Click() {
  const ButtonsSet& set = At(kButtonsSets, cmbButtons.ListIndex);
  design_.buttonsSet = set.style;
  design_.buttonCount = set.buttonCount;
  design_.standardCaptions = set.standardCaptions;
  for (CommandButton& button : MsgBoxButtons) {
    const std::string caption = StandardCaption(button.Index());
    button.Caption = caption;
    button.Visible = !caption.empty();
    if (HasNewCaptions()) txtButtonCaption(button.Index()).Text = caption;
  }
}

/// The caption that the chosen set gives a button, "" for a button that it does not use.
std::string frmMsgBox::StandardCaption(int button) const {
  const ButtonsSet& set = At(kButtonsSets, cmbButtons.ListIndex);
  return std::string(At(Split(set.previewCaptions, ","), button));
}

void frmMsgBox::MsgBoxButtons_Click(int index) {
  MarkChoice(picButtonFrame, index);
  design_.defaultButton = At(kDefaultButtonStyles, index);
}

void frmMsgBox::cmdIcons_Click(int index) {
  MarkChoice(picIconFrame, index);
  design_.icon = At(kIconStyles, index);
}

void frmMsgBox::optMsgBox_Click(int index) { design_.modality = At(kModalityStyles, index); }

void frmMsgBox::chkMsgBox_Click() {
  design_.options = 0;
  for (const CheckBox& box : chkMsgBox) {
    if (box.Value) design_.options += At(kOptionStyles, box.Index());
  }
}

void frmMsgBox::chkViewSpecial_Click() {
  viewsSpecial_ = chkViewSpecial.Value;
  for (int frame = kFirstCustomFrame; frame < kFrameCount; ++frame) {
    fraMsgBox(frame).Enabled = viewsSpecial_;
  }
}

// The third feature has no position box of its number. Of the boxes that can be used the last one
// keeps the focus.
void frmMsgBox::chkSpecial_Click(int index) {
  for (TextBox& box : txtPosition) box.Enabled = chkSpecial(kPositionFeature).Value;
  txtTimeOut.Enabled = chkSpecial(kTimeOutFeature).Value;
  txtCheckBoxText.Enabled = chkSpecial(kCheckBoxFeature).Value;
  if (index < txtPosition.Count()) FocusOnWholeText(txtPosition(index));
  FocusOnWholeText(txtTimeOut);
  FocusOnWholeText(txtCheckBoxText);
}

// New captions go to the buttons in their order. So as soon as one button has a new caption the
// boxes of the others hold the standard ones; without any new caption all boxes are empty.
void frmMsgBox::chkButtonCaption_Click(int index) {
  TextBox& clicked = txtButtonCaption(index);
  clicked.Enabled = !clicked.Enabled;
  for (TextBox& box : txtButtonCaption) {
    const int button = box.Index();
    if (button != index && chkButtonCaption(button).Value) continue;
    box.Text = HasNewCaptions() ? StandardCaption(button) : "";
    MsgBoxButtons(button).Caption = StandardCaption(button);
  }
  FocusOnWholeText(clicked);
}

void frmMsgBox::txtButtonCaption_Change(int index) {
  MsgBoxButtons(index).Caption = txtButtonCaption(index).Text;
}

void frmMsgBox::txtButtonCaption_Validate(int index, bool& cancel) {
  const bool isUsed = !StandardCaption(index).empty();
  if (!isUsed || !Trim(txtButtonCaption(index).Text).empty()) return;
  environment_.dialogs.MsgBox("You need to have a caption for this button",
                              message_box::kInformation, "Need Caption");
  cancel = true;
}

void frmMsgBox::cmdExit_Click() {
  viewer_.Unload();
  Unload();
}

}  // namespace brimwork

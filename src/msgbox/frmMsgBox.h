// The message box designer: the user puts a message box together, looks at it, and gets the code
// that shows it.
#pragma once

#include <string>
#include <string_view>

#include "environment/controls.h"
#include "environment/environment.h"
#include "msgbox/code_generator.h"
#include "msgbox/frmCode.h"
#include "msgbox/modCustomMsgBox.h"

namespace brimwork {

class frmMsgBox : public Form {
 public:
  static constexpr int kButtonCount = 3;  // as many as a message box can have
  static constexpr int kIconCount = 5;
  static constexpr int kFrameCount = 8;
  static constexpr int kFirstCustomFrame = 5;  // this one and those behind it: the custom features

  // The features that chkSpecial switches on.
  static constexpr int kPositionFeature = 0;
  static constexpr int kTimeOutFeature = 1;
  static constexpr int kCheckBoxFeature = 2;

  /// viewer shows the code; it is used as long as the designer lives.
  frmMsgBox(const Environment& environment, frmCode& viewer);

  ControlArray<Frame, kFrameCount> fraMsgBox{*this, "fraMsgBox"};

  Label lblMsgBoxText{*this, "lblMsgBoxText"};
  TextBox txtMsgBoxText{*this, "txtMsgBoxText"};
  Label lblMsgBoxTitle{*this, "lblMsgBoxTitle"};
  TextBox txtMsgBoxTitle{*this, "txtMsgBoxTitle"};

  Label lblButtons{*this, "lblButtons"};
  ComboBox cmbButtons{*this, "cmbButtons"};
  ControlArray<PictureBox, kButtonCount> picButtonFrame{*this, "picButtonFrame"};
  ControlArray<CommandButton, kButtonCount> MsgBoxButtons{*this, "MsgBoxButtons"};

  ControlArray<PictureBox, kIconCount> picIconFrame{*this, "picIconFrame"};
  ControlArray<CommandButton, kIconCount> cmdIcons{*this, "cmdIcons"};

  ControlArray<OptionButton, 2> optMsgBox{*this, "optMsgBox"};
  ControlArray<CheckBox, 4> chkMsgBox{*this, "chkMsgBox"};

  CheckBox chkViewSpecial{*this, "chkViewSpecial"};
  ControlArray<CheckBox, 3> chkSpecial{*this, "chkSpecial"};
  ControlArray<Label, 2> lblPositionID{*this, "lblPositionID"};
  ControlArray<TextBox, 2> txtPosition{*this, "txtPosition"};  // X and Y
  TextBox txtTimeOut{*this, "txtTimeOut"};
  Label lblTimeOutID{*this, "lblTimeOutID"};
  TextBox txtCheckBoxText{*this, "txtCheckBoxText"};
  ControlArray<CheckBox, kButtonCount> chkButtonCaption{*this, "chkButtonCaption"};
  ControlArray<TextBox, kButtonCount> txtButtonCaption{*this, "txtButtonCaption"};

  CommandButton cmdView{*this, "cmdView"};
  CommandButton cmdCode{*this, "cmdCode"};
  CommandButton cmdExit{*this, "cmdExit"};
  StatusBar sbStatus{*this, "sbStatus"};

 protected:
  void Form_Load() override;

 private:
  void HandleStyleEvents();
  void HandleCustomFeatureEvents();

  void cmbButtons_Click();
  void MsgBoxButtons_Click(int index);
  void cmdIcons_Click(int index);
  void optMsgBox_Click(int index);
  void chkMsgBox_Click();
  void chkViewSpecial_Click();
  void chkSpecial_Click(int index);
  void chkButtonCaption_Click(int index);
  void txtButtonCaption_Change(int index);
  void txtButtonCaption_Validate(int index, bool& cancel);
  void cmdView_Click();
  void cmdCode_Click();
  void cmdExit_Click();

  bool IsSwitchedOn(int feature) const;
  bool HasNewCaptions() const;
  std::string StandardCaption(int button) const;

  /// Takes over what is typed and ticked; true when a custom feature is in use.
  bool ReadDesign();
  void ReadCustomValues();

  /// Shows the designed message box; returns what the user chose.
  int ShowPlainBox();
  int ShowSpecialBox(bool& checkBoxValue);

  Environment environment_;
  frmCode& viewer_;
  CustomMsgBox customMsgBox_;
  MsgBoxDesign design_;
  bool viewsSpecial_ = false;  // whether the custom features are on at all
};

}  // namespace brimwork

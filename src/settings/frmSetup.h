// The setup dialog: shows the stored settings on four tabs and stores all of them when it closes.
#pragma once

#include <string>
#include <string_view>

#include "environment/controls.h"
#include "environment/environment.h"

namespace brimwork {

/// Load raises RunTimeError when the settings cannot be read; the dialog is then not shown, so it
/// overwrites nothing. What cannot be stored on closing is told in a message box.
class frmSetup : public Form {
 public:
  static constexpr int kTabCount = 4;
  static constexpr int kHeaderCount = 2;  // the standard header and the one for adapted code
  static constexpr int kAutoLoadOn = 0;   // of the two optAutoLoad
  static constexpr int kAutoLoadOff = 1;
  static constexpr int kCleanUpCount = 5;

  explicit frmSetup(const Environment& environment);

  TabStrip tabOptions{*this, "tabOptions"};
  ControlArray<Frame, kTabCount> fraTabFrames{*this, "fraTabFrames"};

  Label lblErrorHandling{*this, "lblErrorHandling"};
  TextBox txtErrorHandling{*this, "txtErrorHandling"};
  Label lblPlaceholder{*this, "lblPlaceholder"};

  ControlArray<OptionButton, kHeaderCount> optHeader{*this, "optHeader"};
  ControlArray<TextBox, kHeaderCount> txtHeader{*this, "txtHeader"};

  Label lblKeyWord{*this, "lblKeyWord"};
  ListBox lstKeyWord{*this, "lstKeyWord"};
  Label lblAdd{*this, "lblAdd"};
  TextBox txtAdd{*this, "txtAdd"};
  CommandButton cmdAdd{*this, "cmdAdd"};
  Label lblDelete{*this, "lblDelete"};
  TextBox txtDelete{*this, "txtDelete"};
  CommandButton cmdDelete{*this, "cmdDelete"};
  Frame fraReset{*this, "fraReset"};
  Label lblReset{*this, "lblReset"};
  CheckBox chkEnable{*this, "chkEnable"};
  CommandButton cmdReset{*this, "cmdReset"};

  Label lblSeparator{*this, "lblSeparator"};
  TextBox txtSeparator{*this, "txtSeparator"};
  Label lblQuickExportPath{*this, "lblQuickExportPath"};
  TextBox txtQuickExportPath{*this, "txtQuickExportPath"};
  CommandButton cmdBrowse{*this, "cmdBrowse"};
  Frame fraAutoLoad{*this, "fraAutoLoad"};
  ControlArray<OptionButton, 2> optAutoLoad{*this, "optAutoLoad"};
  CheckBox chkSplashScreen{*this, "chkSplashScreen"};
  Frame fraCleanUp{*this, "fraCleanUp"};
  ControlArray<CheckBox, kCleanUpCount> chkCleanUp{*this, "chkCleanUp"};

  CommandButton cmdExit{*this, "cmdExit"};

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  void tabOptions_Click();
  void optHeader_Click(int index);
  void txtAdd_Change();
  void cmdAdd_Click();
  void txtDelete_Change();
  void cmdDelete_Click();
  void chkEnable_Click();
  void cmdReset_Click();
  void cmdBrowse_Click();
  void cmdExit_Click();

  void AddKeyWords(std::string_view list);
  void TickCleanUpOptions(std::string_view options);
  std::string KeyWordList() const;
  std::string CleanUpCodeOptions() const;
  void TellError(const std::string& message);

  Environment environment_;
};

}  // namespace brimwork

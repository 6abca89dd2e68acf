// The message box designer, shown to a user of plain data.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "memory/memory_environment.h"
#include "msgbox/frmCode.h"
#include "msgbox/frmMsgBox.h"

namespace brimwork {

struct DesignerFixture {
  DesignerFixture() { form.Show(); }

  void ChooseButtons(std::string_view name) {
    for (int item = 0; item < form.cmbButtons.ListCount(); ++item) {
      if (form.cmbButtons.List(item) == name) form.cmbButtons.Choose(item);
    }
  }

  void SwitchOn(int feature) {
    if (!form.chkViewSpecial.Value) form.chkViewSpecial.Click();
    form.chkSpecial(feature).Click();
  }
  void SetTimeOut(std::string_view seconds) {
    SwitchOn(frmMsgBox::kTimeOutFeature);
    form.txtTimeOut.Type(seconds);
  }
  void SetPosition(std::string_view x, std::string_view y) {
    SwitchOn(frmMsgBox::kPositionFeature);
    form.txtPosition(0).Type(x);
    form.txtPosition(1).Type(y);
  }
  void SetCheckBox(std::string_view text) {
    SwitchOn(frmMsgBox::kCheckBoxFeature);
    form.txtCheckBoxText.Type(text);
  }
  void SetCaption(int button, std::string_view caption) {
    if (!form.chkViewSpecial.Value) form.chkViewSpecial.Click();
    form.chkButtonCaption(button).Click();
    form.txtButtonCaption(button).Type(caption);
  }

  /// The code as the viewer shows it after a click on the code button.
  std::string Code() {
    form.cmdCode.Click();
    return viewer.txtCode.Text;
  }

  /// Clicks the preview button; returns what the status bar says then.
  std::string Preview() {
    form.cmdView.Click();
    return form.sbStatus.SimpleText;
  }

  /// The plain message box of the last preview.
  const ShownMessage& PlainBox() const { return memory.dialogs.Messages().back(); }

  /// The custom message box of the last preview.
  const ShownMessageBox& SpecialBox() const { return memory.messageBoxes.Shown().back(); }

  MemoryProject& UseProject() {
    auto project = std::make_shared<MemoryProject>([] { return std::string("Project1"); });
    memory.vbe.SetProject(project);
    return *project;
  }

  MemoryEnvironment memory;
  frmCode viewer{memory.formHost};
  frmMsgBox form{memory.Parts(), viewer};
};

}  // namespace brimwork

#include "cli/msgbox_designer.h"

#include <memory>

#include "environment/message_boxes.h"
#include "environment/text.h"
#include "memory/memory_environment.h"
#include "msgbox/frmCode.h"
#include "msgbox/frmMsgBox.h"

namespace brimwork {
namespace {

class Designer {
 public:
  Designer() {
    memory_.vbe.SetProject(project_);
    form_.Show();
  }

  void Design(const MsgBoxRequest& request) {
    form_.txtMsgBoxText.Type(request.prompt);
    form_.txtMsgBoxTitle.Type(request.title);
    ChooseStyle(request);
    if (request.timeOut) SetTimeOut(*request.timeOut);
    if (request.position) SetPosition(*request.position);
    if (request.checkBox) SetCheckBox(*request.checkBox);
    for (std::size_t i = 0; i < request.captions.size(); ++i) {
      if (!Trim(request.captions[i]).empty()) SetCaption(static_cast<int>(i), request.captions[i]);
    }
  }

  /// The project is empty and the user wants the module, so it is added where the code needs it.
  DesignedMsgBox Result() {
    memory_.dialogs.AnswerMessage(message_box_result::kYes);
    form_.cmdCode.Click();
    return {viewer_.txtCode.Text, TextOf(project_->ComponentOfName(kRequiredModuleName))};
  }

 private:
  void ChooseStyle(const MsgBoxRequest& request) {
    form_.cmbButtons.Choose(request.buttons);
    form_.cmdIcons(request.icon).Click();
    form_.MsgBoxButtons(request.defaultButton).Click();
    form_.optMsgBox(request.modality).Click();
    for (CheckBox& box : form_.chkMsgBox) {
      if (request.options.at(static_cast<std::size_t>(box.Index()))) box.Click();
    }
  }

  void SwitchOn(CheckBox& feature) {
    if (!form_.chkViewSpecial.Value) form_.chkViewSpecial.Click();
    feature.Click();
  }

  void SetTimeOut(const std::string& seconds) {
    SwitchOn(form_.chkSpecial(frmMsgBox::kTimeOutFeature));
    form_.txtTimeOut.Type(seconds);
  }

  void SetPosition(const TypedPosition& position) {
    SwitchOn(form_.chkSpecial(frmMsgBox::kPositionFeature));
    form_.txtPosition(0).Type(position.x);
    form_.txtPosition(1).Type(position.y);
  }

  void SetCheckBox(const std::string& text) {
    SwitchOn(form_.chkSpecial(frmMsgBox::kCheckBoxFeature));
    form_.txtCheckBoxText.Type(text);
  }

  void SetCaption(int button, const std::string& caption) {
    SwitchOn(form_.chkButtonCaption(button));
    form_.txtButtonCaption(button).Type(caption);
  }

  static std::string TextOf(const std::shared_ptr<MemoryComponent>& component) {
    if (component == nullptr) return {};
    const auto module = component->Module();
    return module->Lines(1, module->CountOfLines());
  }

  std::shared_ptr<MemoryProject> project_ =
      std::make_shared<MemoryProject>([] { return std::string(); });
  MemoryEnvironment memory_;
  frmCode viewer_{memory_.formHost};
  frmMsgBox form_{memory_.Parts(), viewer_};
};

}  // namespace

DesignedMsgBox DesignMsgBox(const MsgBoxRequest& request) {
  Designer designer;
  designer.Design(request);
  return designer.Result();
}

}  // namespace brimwork

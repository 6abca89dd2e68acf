// The progress window: a message, a bar with its percentage, and the two rich text controls that
// the exporters work in. It is data; a host that shows it asks to be told of each repaint.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "export/progress_form.h"

namespace brimwork {

class frmInfo : public ProgressForm {
 public:
  struct Label {
    std::string Caption;
  };
  struct PictureBox {
    std::string Tag;   // the last percentage drawn
    std::string Text;  // the text written on the bar
  };

  /// controls: where the rich text controls come from, when they are first asked for.
  explicit frmInfo(RichTextBoxes& controls) : controls_(controls) {}

  /// Sets the message; a title other than "" becomes the window's caption.
  void ProgressMessage(std::string_view message, std::string_view formCaption = {}) override;

  /// Draws the bar for current of total. The percentage is rounded up and a finished run stays one
  /// step below 100. A bar that shows that percentage already is left as it is.
  void UpdateProgressBar(int current, int total) override;

  void ResetProgressBar();

  void Show() override;
  void Hide() override;

  RichTextBox& rtf() override { return Control(rtf_); }
  RichTextBox& rtfTemp() override { return Control(rtfTemp_); }

  std::string Caption;
  Label lblInfo;
  PictureBox picProgress;
  bool Visible = false;

  /// Called after each change that the user is to see at once; may be empty.
  std::function<void(const frmInfo&)> OnRepaint;

 private:
  void Repaint() const {
    if (OnRepaint) OnRepaint(*this);
  }
  RichTextBox& Control(std::unique_ptr<RichTextBox>& control) {
    if (!control) control = controls_.Create();
    return *control;
  }

  /// The calls, of those with the same total, that would draw the bar once more as it is. Exporters
  /// make one call for each character.
  struct DrawnSpan {
    int first = 0;
    int last = -1;
    int total = 0;

    bool Holds(int current, int ofTotal) const {
      return ofTotal == total && first <= current && current <= last;
    }
  };

  DrawnSpan drawn_;
  RichTextBoxes& controls_;
  std::unique_ptr<RichTextBox> rtf_;
  std::unique_ptr<RichTextBox> rtfTemp_;
};

}  // namespace brimwork

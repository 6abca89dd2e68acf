// The progress window: a message, a bar with its percentage, the two rich text controls that the
// exporters work in, and the pictures of the button faces.
#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "environment/controls.h"
#include "environment/environment.h"
#include "export/progress_form.h"

namespace brimwork {

/// Using it loads it. Commands go on without a window that cannot be made or shown.
class frmInfo : public ProgressForm, public Form {
 public:
  explicit frmInfo(const Environment& environment);

  /// Sets the message; a title other than "" becomes the window's caption.
  void ProgressMessage(std::string_view message, std::string_view formCaption = {}) override;

  /// Draws the bar for current of total. The percentage is rounded up and a finished run stays one
  /// step below 100. A bar that shows that percentage already is left as it is.
  void UpdateProgressBar(int current, int total) override {
    if (!drawn_.Holds(current, total)) [[unlikely]]
      RedrawBar(current, total);
  }

  void ResetProgressBar();

  void Show() override;
  void Hide() override;

  RichTextBox& rtf() override { return Made(rtf_); }
  RichTextBox& rtfTemp() override { return Made(rtfTemp_); }

  Label lblInfo{*this, "lblInfo"};
  PictureBox picProgress{*this, "picProgress"};  // its tag: the last percentage drawn
  ImageList imlFaces{*this, "imlFaces"};         // the button faces, by face key
  PictureBox picToolbar{*this, "picToolbar"};    // through it faces are pasted onto buttons

  /// Called after each change that the user is to see at once; may be empty.
  std::function<void(const frmInfo&)> OnRepaint;

 protected:
  void Form_Load() override;

 private:
  void LoadIfPossible();
  void RedrawBar(int current, int total);
  void DrawBar(int percentage);
  void TakeOffBorder();
  void Repaint(Control& control);
  void TellOfRepaint() const {
    if (OnRepaint) OnRepaint(*this);
  }
  RichTextBox& Made(std::unique_ptr<RichTextBox>& control) {
    if (!control) control = environment_.richTextBoxes.Create();
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

  Environment environment_;
  DrawnSpan drawn_;
  std::unique_ptr<RichTextBox> rtf_;
  std::unique_ptr<RichTextBox> rtfTemp_;
};

}  // namespace brimwork

// The progress window: a message and a bar with its percentage. It is data; a host that shows it
// asks to be told of each repaint.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace brimwork {

class frmInfo {
 public:
  struct Label {
    std::string Caption;
  };
  struct PictureBox {
    std::string Tag;   // the last percentage drawn
    std::string Text;  // the text written on the bar
  };

  /// Sets the message; a title other than "" becomes the window's caption.
  void ProgressMessage(std::string_view message, std::string_view formCaption = {});

  /// Draws the bar for current of total. The percentage is rounded up and a finished run stays one
  /// step below 100.
  void UpdateProgressBar(int current, int total);

  void ResetProgressBar();

  void Show();
  void Hide();

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
};

}  // namespace brimwork

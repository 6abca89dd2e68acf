// The progress window as the exporters use it: a message, a bar, and two rich text controls that
// work as an off-screen text engine.
#pragma once

#include <string_view>

#include "environment/rich_text_box.h"

namespace brimwork {

class ProgressForm {
 public:
  virtual ~ProgressForm() = default;

  virtual void ProgressMessage(std::string_view message, std::string_view formCaption) = 0;
  virtual void UpdateProgressBar(int current, int total) = 0;
  virtual void Show() = 0;
  virtual void Hide() = 0;

  /// The control that holds the code. Raises RunTimeError when it cannot be made.
  virtual RichTextBox& rtf() = 0;
  /// The working copy.
  virtual RichTextBox& rtfTemp() = 0;
};

}  // namespace brimwork

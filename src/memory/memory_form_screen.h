// The screen as forms see it, as plain data.
#pragma once

#include <algorithm>
#include <memory>

#include "environment/form_screen.h"
#include "environment/text.h"
#include "memory/memory_form_host.h"

namespace brimwork {

class MemoryScreenForm : public ScreenForm {
 public:
  explicit MemoryScreenForm(WindowHandle window) : window_(window) {}
  WindowHandle hWnd() override { return window_; }
  double TextHeight(std::string_view text) override {
    return textHeight * static_cast<double>(SplitLines(text).size());
  }
  double TextWidth(std::string_view text) override {
    int longest = 0;
    for (const auto line : SplitLines(text)) longest = std::max(longest, CharacterCount(line));
    return characterWidth * longest;
  }

  // In twips.
  double textHeight = 195;
  double characterWidth = 90;

 private:
  WindowHandle window_;
};

class MemoryFormScreen : public FormScreen {
 public:
  explicit MemoryFormScreen(const MemoryFormHost& forms) : forms_(forms) {}
  std::shared_ptr<ScreenForm> ActiveForm() override {
    return activeForm != nullptr ? activeForm : LatestVisibleForm();
  }
  double Width() override { return width; }
  double Height() override { return height; }
  double TwipsPerPixelX() override { return twipsPerPixelX; }
  double TwipsPerPixelY() override { return twipsPerPixelY; }

  /// Stands in for the host's forms where a test sets it.
  std::shared_ptr<ScreenForm> activeForm;

  // At 1024 by 768 pixels of 96 dots per inch.
  double width = 15360;
  double height = 11520;
  double twipsPerPixelX = 15;
  double twipsPerPixelY = 15;

 private:
  std::shared_ptr<ScreenForm> LatestVisibleForm() const {
    std::shared_ptr<ScreenForm> latest;
    for (const Form* form : forms_.LoadedForms()) {
      if (forms_.IsVisible(*form)) latest = std::make_shared<MemoryScreenForm>(form->hWnd());
    }
    return latest;
  }

  const MemoryFormHost& forms_;
};

}  // namespace brimwork

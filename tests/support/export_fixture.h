// A desktop for tests of the exporters: what the progress window, the pointer and the drawing lock
// were told is noted in one list, in the order in which it came.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "export/export_tools.h"
#include "memory/memory_environment.h"
#include "support/faulty_environment.h"

namespace brimwork {

using Events = std::vector<std::string>;

/// Notes "pointer 11" and "lock 256".
class NotingScreen : public MemoryScreen {
 public:
  explicit NotingScreen(Events& events) : events_(events) {}

  void SetMousePointer(int pointer) override {
    events_.push_back("pointer " + std::to_string(pointer));
    MemoryScreen::SetMousePointer(pointer);
  }
  void LockWindowUpdate(WindowHandle window) override {
    events_.push_back("lock " + std::to_string(window));
    MemoryScreen::LockWindowUpdate(window);
  }

 private:
  Events& events_;
};

/// Notes "heading|message", "show", "hide" and "1/3".
class NotingForm : public ProgressForm {
 public:
  NotingForm(RichTextBoxes& controls, Events& events) : controls_(controls), events_(events) {}

  void ProgressMessage(std::string_view message, std::string_view formCaption) override {
    events_.push_back(std::string(formCaption) + '|' + std::string(message));
  }
  void UpdateProgressBar(int current, int total) override {
    events_.push_back(std::to_string(current) + '/' + std::to_string(total));
  }
  void Show() override {
    events_.push_back("show");
    isVisible_ = true;
  }
  void Hide() override {
    events_.push_back("hide");
    isVisible_ = false;
  }
  RichTextBox& rtf() override { return Made(rtf_); }
  RichTextBox& rtfTemp() override { return Made(rtfTemp_); }

  bool IsVisible() const { return isVisible_; }

 private:
  RichTextBox& Made(std::unique_ptr<RichTextBox>& control) {
    if (!control) control = controls_.Create();
    return *control;
  }

  RichTextBoxes& controls_;
  Events& events_;
  std::unique_ptr<RichTextBox> rtf_;
  std::unique_ptr<RichTextBox> rtfTemp_;
  bool isVisible_ = false;
};

struct ExportFixture : MemoryEnvironment {
  explicit ExportFixture(Fault fault = {}) : faulty(Noting(), std::move(fault)) {}

  Environment Noting() { return Parts({.screen = &notingScreen}); }

  Events events;
  NotingScreen notingScreen{events};
  FaultyEnvironment faulty;
  Environment environment = faulty.Parts();
  NotingForm form{environment.richTextBoxes, events};
  std::vector<RunTimeError> errors;  // that the writers were silent about
  ExportTools tools{environment, form,
                    [this](const RunTimeError& error) { errors.push_back(error); }};
};

/// Every call to the operation raises an error.
inline Fault Failing(std::string_view failing) {
  return {Fault::Kind::kRaises,
          [failing](int, std::string_view operation) { return operation == failing; }};
}

/// The call with that number (from 1) to the operation raises an error.
inline Fault FailingOnce(std::string_view failing, int time) {
  return {Fault::Kind::kRaises, [failing, time, seen = 0](int, std::string_view operation) mutable {
            return operation == failing && ++seen == time;
          }};
}

}  // namespace brimwork

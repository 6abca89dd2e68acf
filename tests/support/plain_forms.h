// The add-in's forms without anything on them: what connection and commands do with them is noted.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/add_in_forms.h"

namespace brimwork {

class PlainForms : public AddInForms {
 public:
  explicit PlainForms(FormHost& host) : host_(host) {}

  Form& Splash() override { return splash_; }
  void StartSplashTimer() override { notes.push_back("start the splash timer"); }
  Form& SetupDialog() override { return setup_; }
  Form& CodeViewer() override { return viewer_; }
  Form& MessageBoxDesigner() override { return designer_; }

  /// In the order of events.
  std::vector<std::string> notes;

  /// What unloading a form does besides; may be empty.
  std::function<void()> onUnload;

 private:
  class NotedForm : public Form {
   public:
    NotedForm(PlainForms& forms, const FormLayout& layout)
        : Form(forms.host_, layout), forms_(forms) {}

   protected:
    void Form_Load() override { Note("load "); }
    void Form_Resize() override { Note("show "); }
    void Form_Unload() override {
      Note("unload ");
      if (forms_.onUnload) forms_.onUnload();
    }

   private:
    void Note(std::string_view event) {
      forms_.notes.push_back(std::string(event).append(Layout().name));
    }

    PlainForms& forms_;
  };

  static constexpr FormLayout kSplash = {.name = "frmSplash"};
  static constexpr FormLayout kSetup = {.name = "frmSetup"};
  static constexpr FormLayout kViewer = {.name = "frmCode"};
  static constexpr FormLayout kDesigner = {.name = "frmMsgBox"};

  FormHost& host_;
  NotedForm splash_{*this, kSplash};
  NotedForm setup_{*this, kSetup};
  NotedForm viewer_{*this, kViewer};
  NotedForm designer_{*this, kDesigner};
};

}  // namespace brimwork

// Forms without a screen: which are loaded and shown is recorded, and time passes when a test says
// so. What the user does, a test does to the form itself.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "environment/form.h"
#include "environment/form_host.h"
#include "environment/timer.h"
#include "memory/memory_native_windows.h"

namespace brimwork {

class MemoryFormHost : public FormHost {
 public:
  static constexpr std::int32_t kCloseCommand = 0xF060;
  static constexpr int kCharacterWidth = 6;
  static constexpr int kLineHeight = 13;

  /// windows: gets a window for each loaded form.
  explicit MemoryFormHost(MemoryNativeWindows& windows) : windows_(windows) {}

  WindowHandle Load(Form& form) override;
  void Show(Form& form, ShowMode mode) override;
  void Hide(Form& form) override;
  void Unload(Form& form) override;
  void Changed(Form& form, Control* control, PropertyId property) override;
  void Refresh(Form& form, Control& control) override;
  TextExtent Measure(std::string_view text, const ControlFont& font) override;

  /// Lets time pass, in milliseconds: each running timer ticks as often as its interval passes.
  void Elapse(int milliseconds);

  /// In the order in which they were loaded.
  std::vector<Form*> LoadedForms() const;
  bool IsLoaded(const Form& form) const;
  /// Whether its window is on the screen.
  bool IsVisible(const Form& form) const;
  bool IsModal(const Form& form) const;

  /// Plays the user of a form that is shown modal. Show returns behind it, whether the form has
  /// been closed or not. May be empty.
  std::function<void(Form&)> playModalUser;

  /// Told of each change and each painting at once; may be empty.
  std::function<void(Form&, Control*, PropertyId)> onChange;
  std::function<void(Form&, Control&)> onRefresh;

  /// What has happened to forms, in order: "load frmInfo", "show frmInfo", "hide frmInfo", "unload
  /// frmInfo". May be emptied.
  std::vector<std::string> events;

  /// Called when a form has been unloaded; may be empty.
  std::function<void()> onUnload;

 private:
  struct FormWindow {
    Form* form = nullptr;
    WindowHandle handle = 0;
    std::string_view name = {};
    std::optional<ShowMode> shown = {};  // nothing while it is hidden
  };

  FormWindow* WindowOf(const Form& form);
  const FormWindow* WindowOf(const Form& form) const;
  void PassMillisecond(Form& form);
  void Note(std::string_view event, const FormWindow& window);

  MemoryNativeWindows& windows_;
  WindowHandle nextHandle_ = 0x10000;
  std::vector<FormWindow> loaded_;
  std::map<const Control*, int> waited_;  // milliseconds since a timer last ticked
};

}  // namespace brimwork

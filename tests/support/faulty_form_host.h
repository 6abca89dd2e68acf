// The form host with calls that fail. Those that raise nothing are handed on without being counted.
#pragma once

#include "environment/form_host.h"
#include "support/faulty_calls.h"

namespace brimwork {

class FaultyFormHost : public FormHost {
 public:
  FaultyFormHost(FormHost& inner, FaultyCalls& calls) : inner_(inner), calls_(calls) {}
  WindowHandle Load(Form& form) override {
    return calls_.Through("FormHost.Load", [&] { return inner_.Load(form); });
  }
  void Show(Form& form, ShowMode mode) override {
    calls_.Through("FormHost.Show", [&] { inner_.Show(form, mode); });
  }
  void Hide(Form& form) override { inner_.Hide(form); }
  void Unload(Form& form) override { inner_.Unload(form); }
  void Changed(Form& form, Control* control, PropertyId property) override {
    inner_.Changed(form, control, property);
  }
  void Refresh(Form& form, Control& control) override { inner_.Refresh(form, control); }
  TextExtent Measure(std::string_view text, const ControlFont& font) override {
    return inner_.Measure(text, font);
  }

 private:
  FormHost& inner_;
  FaultyCalls& calls_;
};

}  // namespace brimwork

// The environment's windows with calls that fail: each operation is counted, then handed on.
#pragma once

#include <memory>
#include <string>
#include <utility>

#include "environment/window.h"
#include "support/faulty_calls.h"

namespace brimwork {

class FaultyWindow : public Window {
 public:
  FaultyWindow(std::shared_ptr<Window> inner, FaultyCalls& calls)
      : inner_(std::move(inner)), calls_(calls) {}
  std::uintptr_t Identity() override {
    return calls_.Through("Window.Identity", [&] { return inner_->Identity(); });
  }
  std::string Caption() override {
    return calls_.Through("Window.Caption", [&] { return inner_->Caption(); });
  }
  int Type() override {
    return calls_.Through("Window.Type", [&] { return inner_->Type(); });
  }
  bool Visible() override {
    return calls_.Through("Window.Visible", [&] { return inner_->Visible(); });
  }
  void SetVisible(bool visible) override {
    calls_.Through("Window.SetVisible", [&] { inner_->SetVisible(visible); });
  }
  void SetFocus() override {
    calls_.Through("Window.SetFocus", [&] { inner_->SetFocus(); });
  }
  void Close() override {
    calls_.Through("Window.Close", [&] { inner_->Close(); });
  }

 private:
  std::shared_ptr<Window> inner_;
  FaultyCalls& calls_;
};

inline std::shared_ptr<Window> MakeFaulty(std::shared_ptr<Window> window, FaultyCalls& calls) {
  return window ? std::make_shared<FaultyWindow>(std::move(window), calls) : nullptr;
}

}  // namespace brimwork

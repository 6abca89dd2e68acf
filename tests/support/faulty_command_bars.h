// The environment's command bars with calls that fail: each operation is counted, then handed on.
#pragma once

#include <memory>
#include <string>
#include <utility>

#include "environment/command_bar.h"
#include "support/faulty_calls.h"

namespace brimwork {

class FaultyCommandBarControl : public CommandBarControl {
 public:
  FaultyCommandBarControl(std::shared_ptr<CommandBarControl> inner, FaultyCalls& calls)
      : inner_(std::move(inner)), calls_(calls) {}

  int Type() override {
    return calls_.Through("CommandBarControl.Type", [&] { return inner_->Type(); });
  }
  int Id() override {
    return calls_.Through("CommandBarControl.Id", [&] { return inner_->Id(); });
  }
  int Index() override {
    return calls_.Through("CommandBarControl.Index", [&] { return inner_->Index(); });
  }
  std::string Caption() override {
    return calls_.Through("CommandBarControl.Caption", [&] { return inner_->Caption(); });
  }
  void SetCaption(std::string_view caption) override {
    calls_.Through("CommandBarControl.SetCaption", [&] { inner_->SetCaption(caption); });
  }
  std::string Tag() override {
    return calls_.Through("CommandBarControl.Tag", [&] { return inner_->Tag(); });
  }
  void SetTag(std::string_view tag) override {
    calls_.Through("CommandBarControl.SetTag", [&] { inner_->SetTag(tag); });
  }
  bool BeginGroup() override {
    return calls_.Through("CommandBarControl.BeginGroup", [&] { return inner_->BeginGroup(); });
  }
  void SetBeginGroup(bool begins) override {
    calls_.Through("CommandBarControl.SetBeginGroup", [&] { inner_->SetBeginGroup(begins); });
  }
  void Execute() override {
    calls_.Through("CommandBarControl.Execute", [&] { inner_->Execute(); });
  }
  void Delete() override {
    calls_.Through("CommandBarControl.Delete", [&] { inner_->Delete(); });
  }
  int Style() override {
    return calls_.Through("CommandBarControl.Style", [&] { return inner_->Style(); });
  }
  void SetStyle(int style) override {
    calls_.Through("CommandBarControl.SetStyle", [&] { inner_->SetStyle(style); });
  }
  void PasteFace() override {
    calls_.Through("CommandBarControl.PasteFace", [&] { inner_->PasteFace(); });
  }
  std::shared_ptr<CommandBarControls> Controls() override;

  /// The control that calls are handed on to.
  const std::shared_ptr<CommandBarControl>& Inner() const { return inner_; }

 private:
  std::shared_ptr<CommandBarControl> inner_;
  FaultyCalls& calls_;
};

inline std::shared_ptr<CommandBarControl> MakeFaulty(std::shared_ptr<CommandBarControl> control,
                                                     FaultyCalls& calls) {
  return control ? std::make_shared<FaultyCommandBarControl>(std::move(control), calls) : nullptr;
}

class FaultyCommandBarControls : public CommandBarControls {
 public:
  FaultyCommandBarControls(std::shared_ptr<CommandBarControls> inner, FaultyCalls& calls)
      : inner_(std::move(inner)), calls_(calls) {}

  int Count() override {
    return calls_.Through("CommandBarControls.Count", [&] { return inner_->Count(); });
  }
  std::shared_ptr<CommandBarControl> Item(int index) override {
    return calls_.Through("CommandBarControls.Item",
                          [&] { return MakeFaulty(inner_->Item(index), calls_); });
  }
  std::shared_ptr<CommandBarControl> Item(std::string_view caption) override {
    return calls_.Through("CommandBarControls.Item",
                          [&] { return MakeFaulty(inner_->Item(caption), calls_); });
  }
  std::shared_ptr<CommandBarControl> Add(const NewControl& control) override {
    return calls_.Through("CommandBarControls.Add",
                          [&] { return MakeFaulty(inner_->Add(control), calls_); });
  }

 private:
  std::shared_ptr<CommandBarControls> inner_;
  FaultyCalls& calls_;
};

inline std::shared_ptr<CommandBarControls> FaultyCommandBarControl::Controls() {
  return calls_.Through("CommandBarControl.Controls", [&] {
    return std::make_shared<FaultyCommandBarControls>(inner_->Controls(), calls_);
  });
}

class FaultyCommandBar : public CommandBar {
 public:
  FaultyCommandBar(std::shared_ptr<CommandBar> inner, FaultyCalls& calls)
      : inner_(std::move(inner)), calls_(calls) {}

  std::string Name() override {
    return calls_.Through("CommandBar.Name", [&] { return inner_->Name(); });
  }
  bool Visible() override {
    return calls_.Through("CommandBar.Visible", [&] { return inner_->Visible(); });
  }
  void SetVisible(bool visible) override {
    calls_.Through("CommandBar.SetVisible", [&] { inner_->SetVisible(visible); });
  }
  int Position() override {
    return calls_.Through("CommandBar.Position", [&] { return inner_->Position(); });
  }
  void SetPosition(int position) override {
    calls_.Through("CommandBar.SetPosition", [&] { inner_->SetPosition(position); });
  }
  int RowIndex() override {
    return calls_.Through("CommandBar.RowIndex", [&] { return inner_->RowIndex(); });
  }
  void SetRowIndex(int row) override {
    calls_.Through("CommandBar.SetRowIndex", [&] { inner_->SetRowIndex(row); });
  }
  int Left() override {
    return calls_.Through("CommandBar.Left", [&] { return inner_->Left(); });
  }
  void SetLeft(int left) override {
    calls_.Through("CommandBar.SetLeft", [&] { inner_->SetLeft(left); });
  }
  int Top() override {
    return calls_.Through("CommandBar.Top", [&] { return inner_->Top(); });
  }
  void SetTop(int top) override {
    calls_.Through("CommandBar.SetTop", [&] { inner_->SetTop(top); });
  }
  std::shared_ptr<CommandBarControls> Controls() override {
    return calls_.Through("CommandBar.Controls", [&] {
      return std::make_shared<FaultyCommandBarControls>(inner_->Controls(), calls_);
    });
  }
  void Delete() override {
    calls_.Through("CommandBar.Delete", [&] { inner_->Delete(); });
  }

 private:
  std::shared_ptr<CommandBar> inner_;
  FaultyCalls& calls_;
};

inline std::shared_ptr<CommandBar> MakeFaulty(std::shared_ptr<CommandBar> bar, FaultyCalls& calls) {
  return bar ? std::make_shared<FaultyCommandBar>(std::move(bar), calls) : nullptr;
}

}  // namespace brimwork

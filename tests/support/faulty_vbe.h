// The object model with calls that fail: each operation is counted, then handed on.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "environment/vbe.h"
#include "support/faulty_calls.h"
#include "support/faulty_command_bars.h"
#include "support/faulty_windows.h"

namespace brimwork {

class FaultyCodeModule : public CodeModule {
 public:
  FaultyCodeModule(std::shared_ptr<CodeModule> inner, FaultyCalls& calls)
      : inner_(std::move(inner)), calls_(calls) {}

  std::string Name() override {
    return calls_.Through("CodeModule.Name", [&] { return inner_->Name(); });
  }
  std::uintptr_t Identity() override {
    return calls_.Through("CodeModule.Identity", [&] { return inner_->Identity(); });
  }
  int CountOfLines() override {
    return calls_.Through("CodeModule.CountOfLines", [&] { return inner_->CountOfLines(); });
  }
  int CountOfDeclarationLines() override {
    return calls_.Through("CodeModule.CountOfDeclarationLines",
                          [&] { return inner_->CountOfDeclarationLines(); });
  }
  std::string Lines(int startLine, int count) override {
    return calls_.Through("CodeModule.Lines", [&] { return inner_->Lines(startLine, count); });
  }
  void InsertLines(int line, std::string_view text) override {
    calls_.Through("CodeModule.InsertLines", [&] { inner_->InsertLines(line, text); });
  }
  void DeleteLines(int startLine, int count) override {
    calls_.Through("CodeModule.DeleteLines", [&] { inner_->DeleteLines(startLine, count); });
  }
  void ReplaceLine(int line, std::string_view text) override {
    calls_.Through("CodeModule.ReplaceLine", [&] { inner_->ReplaceLine(line, text); });
  }
  ProcedureName ProcOfLine(int line) override {
    return calls_.Through("CodeModule.ProcOfLine", [&] { return inner_->ProcOfLine(line); });
  }
  int ProcStartLine(std::string_view name, ProcKind kind) override {
    return calls_.Through("CodeModule.ProcStartLine",
                          [&] { return inner_->ProcStartLine(name, kind); });
  }
  int ProcCountLines(std::string_view name, ProcKind kind) override {
    return calls_.Through("CodeModule.ProcCountLines",
                          [&] { return inner_->ProcCountLines(name, kind); });
  }
  int ProcBodyLine(std::string_view name, ProcKind kind) override {
    return calls_.Through("CodeModule.ProcBodyLine",
                          [&] { return inner_->ProcBodyLine(name, kind); });
  }
  bool Find(std::string_view target, Selection& range) override {
    return calls_.Through("CodeModule.Find", [&] { return inner_->Find(target, range); });
  }

 private:
  std::shared_ptr<CodeModule> inner_;
  FaultyCalls& calls_;
};

class FaultyCodePane : public CodePane {
 public:
  FaultyCodePane(std::shared_ptr<CodePane> inner, FaultyCalls& calls)
      : inner_(std::move(inner)), calls_(calls) {}

  std::shared_ptr<CodeModule> Module() override {
    return calls_.ObjectThrough("CodePane.Module", [&]() -> std::shared_ptr<CodeModule> {
      auto module = inner_->Module();
      return module ? std::make_shared<FaultyCodeModule>(std::move(module), calls_) : nullptr;
    });
  }
  std::shared_ptr<Window> ContainingWindow() override {
    return calls_.ObjectThrough("CodePane.ContainingWindow",
                                [&] { return MakeFaulty(inner_->ContainingWindow(), calls_); });
  }
  Selection GetSelection() override {
    return calls_.Through("CodePane.GetSelection", [&] { return inner_->GetSelection(); });
  }
  void SetSelection(const Selection& selection) override {
    calls_.Through("CodePane.SetSelection", [&] { inner_->SetSelection(selection); });
  }

 private:
  std::shared_ptr<CodePane> inner_;
  FaultyCalls& calls_;
};

class FaultyComponent : public VBComponent {
 public:
  FaultyComponent(std::shared_ptr<VBComponent> inner, FaultyCalls& calls)
      : inner_(std::move(inner)), calls_(calls) {}
  std::string Name() override {
    return calls_.Through("VBComponent.Name", [&] { return inner_->Name(); });
  }
  void SetName(std::string_view name) override {
    calls_.Through("VBComponent.SetName", [&] { inner_->SetName(name); });
  }
  int Type() override {
    return calls_.Through("VBComponent.Type", [&] { return inner_->Type(); });
  }
  std::shared_ptr<CodeModule> Module() override {
    return calls_.ObjectThrough("VBComponent.Module", [&]() -> std::shared_ptr<CodeModule> {
      auto module = inner_->Module();
      return module ? std::make_shared<FaultyCodeModule>(std::move(module), calls_) : nullptr;
    });
  }

 private:
  std::shared_ptr<VBComponent> inner_;
  FaultyCalls& calls_;
};

class FaultyProject : public VBProject {
 public:
  FaultyProject(std::shared_ptr<VBProject> inner, FaultyCalls& calls)
      : inner_(std::move(inner)), calls_(calls) {}
  std::string Name() override {
    return calls_.Through("VBProject.Name", [&] { return inner_->Name(); });
  }
  std::vector<std::shared_ptr<VBComponent>> VBComponents() override {
    return calls_.Through("VBProject.VBComponents", [&] {
      std::vector<std::shared_ptr<VBComponent>> components;
      for (auto& component : inner_->VBComponents()) {
        components.push_back(std::make_shared<FaultyComponent>(std::move(component), calls_));
      }
      return components;
    });
  }
  std::shared_ptr<VBComponent> AddVBComponent(int type) override {
    return calls_.Through("VBProject.AddVBComponent", [&] {
      return std::make_shared<FaultyComponent>(inner_->AddVBComponent(type), calls_);
    });
  }

 private:
  std::shared_ptr<VBProject> inner_;
  FaultyCalls& calls_;
};

class FaultyVbe : public VBE {
 public:
  FaultyVbe(VBE& inner, FaultyCalls& calls) : inner_(inner), calls_(calls) {}

  std::string FullName() override {
    return calls_.Through("VBE.FullName", [&] { return inner_.FullName(); });
  }
  std::shared_ptr<CodePane> ActiveCodePane() override {
    return calls_.ObjectThrough("VBE.ActiveCodePane", [&]() -> std::shared_ptr<CodePane> {
      auto pane = inner_.ActiveCodePane();
      return pane ? std::make_shared<FaultyCodePane>(std::move(pane), calls_) : nullptr;
    });
  }
  std::shared_ptr<VBProject> ActiveVBProject() override {
    return calls_.ObjectThrough("VBE.ActiveVBProject", [&]() -> std::shared_ptr<VBProject> {
      auto project = inner_.ActiveVBProject();
      return project ? std::make_shared<FaultyProject>(std::move(project), calls_) : nullptr;
    });
  }
  std::shared_ptr<Window> MainWindow() override {
    return calls_.ObjectThrough("VBE.MainWindow",
                                [&] { return MakeFaulty(inner_.MainWindow(), calls_); });
  }
  std::shared_ptr<Window> ActiveWindow() override {
    return calls_.ObjectThrough("VBE.ActiveWindow",
                                [&] { return MakeFaulty(inner_.ActiveWindow(), calls_); });
  }
  std::vector<std::shared_ptr<Window>> Windows() override {
    return calls_.Through("VBE.Windows", [&] {
      std::vector<std::shared_ptr<Window>> windows;
      for (auto& window : inner_.Windows())
        windows.push_back(MakeFaulty(std::move(window), calls_));
      return windows;
    });
  }
  std::shared_ptr<Window> WindowOfCaption(std::string_view caption) override {
    return calls_.ObjectThrough(
        "VBE.WindowOfCaption", [&] { return MakeFaulty(inner_.WindowOfCaption(caption), calls_); });
  }
  std::vector<std::shared_ptr<CommandBar>> CommandBars() override {
    return calls_.Through("VBE.CommandBars", [&] {
      std::vector<std::shared_ptr<CommandBar>> bars;
      for (auto& bar : inner_.CommandBars()) bars.push_back(MakeFaulty(std::move(bar), calls_));
      return bars;
    });
  }
  std::shared_ptr<CommandBar> CommandBarOfName(std::string_view name) override {
    return calls_.ObjectThrough("VBE.CommandBarOfName",
                                [&] { return MakeFaulty(inner_.CommandBarOfName(name), calls_); });
  }
  std::shared_ptr<CommandBar> AddCommandBar(const NewCommandBar& bar) override {
    return calls_.Through("VBE.AddCommandBar",
                          [&] { return MakeFaulty(inner_.AddCommandBar(bar), calls_); });
  }
  std::shared_ptr<CommandBarControl> FindControl(int id) override {
    return calls_.ObjectThrough("VBE.FindControl",
                                [&] { return MakeFaulty(inner_.FindControl(id), calls_); });
  }
  std::unique_ptr<CommandBarEvents> CommandBarEventsOf(
      const std::shared_ptr<CommandBarControl>& control, ClickHandler onClick) override {
    return calls_.Through("VBE.CommandBarEventsOf", [&] {
      const auto faulty = std::dynamic_pointer_cast<FaultyCommandBarControl>(control);
      return inner_.CommandBarEventsOf(faulty->Inner(), WithFaultyControl(onClick));
    });
  }

 private:
  /// The clicked control comes to the handler with calls that fail, too.
  ClickHandler WithFaultyControl(ClickHandler onClick) {
    return [this, onClick](CommandBarControl& clicked) {
      // Not owned: it lives as long as the click.
      const std::shared_ptr<CommandBarControl> control(std::shared_ptr<void>(), &clicked);
      FaultyCommandBarControl faulty(control, calls_);
      onClick(faulty);
    };
  }

  VBE& inner_;
  FaultyCalls& calls_;
};

}  // namespace brimwork

// What writes, formats and checks text, windows by handle, and what opens outside of the add-in,
// with calls that fail: each operation is counted, then handed on.
#pragma once

#include <memory>
#include <string>
#include <utility>

#include "environment/environment.h"
#include "support/faulty_calls.h"

namespace brimwork {

class FaultyApp : public App {
 public:
  FaultyApp(App& inner, FaultyCalls& calls) : inner_(inner), calls_(calls) {}
  std::string Path() override {
    return calls_.Through("App.Path", [&] { return inner_.Path(); });
  }
  InstanceHandle Instance() override {
    return calls_.Through("App.Instance", [&] { return inner_.Instance(); });
  }

 private:
  App& inner_;
  FaultyCalls& calls_;
};

class FaultyNativeWindows : public NativeWindows {
 public:
  FaultyNativeWindows(NativeWindows& inner, FaultyCalls& calls) : inner_(inner), calls_(calls) {}
  bool IsWindow(WindowHandle window) override {
    return calls_.Through("NativeWindows.IsWindow", [&] { return inner_.IsWindow(window); });
  }
  void SetWindowPos(WindowHandle window, const WindowPosition& position) override {
    calls_.Through("NativeWindows.SetWindowPos", [&] { inner_.SetWindowPos(window, position); });
  }
  MenuHandle GetSystemMenu(WindowHandle window, bool revert) override {
    return calls_.Through("NativeWindows.GetSystemMenu",
                          [&] { return inner_.GetSystemMenu(window, revert); });
  }
  bool GetMenuItemInfo(MenuHandle menu, std::int32_t item, MenuItemInfo& info) override {
    return calls_.Through("NativeWindows.GetMenuItemInfo",
                          [&] { return inner_.GetMenuItemInfo(menu, item, info); });
  }
  bool SetMenuItemInfo(MenuHandle menu, std::int32_t item, const MenuItemInfo& info) override {
    return calls_.Through("NativeWindows.SetMenuItemInfo",
                          [&] { return inner_.SetMenuItemInfo(menu, item, info); });
  }
  std::intptr_t SendMessage(WindowHandle window, std::uint32_t message, std::intptr_t wParam,
                            std::intptr_t lParam) override {
    return calls_.Through("NativeWindows.SendMessage",
                          [&] { return inner_.SendMessage(window, message, wParam, lParam); });
  }

 private:
  NativeWindows& inner_;
  FaultyCalls& calls_;
};

class FaultyOutputFile : public OutputFile {
 public:
  FaultyOutputFile(std::unique_ptr<OutputFile> inner, FaultyCalls& calls)
      : inner_(std::move(inner)), calls_(calls) {}
  void PrintLine(std::string_view line) override {
    calls_.Through("OutputFile.PrintLine", [&] { inner_->PrintLine(line); });
  }
  void Close() override {
    calls_.Through("OutputFile.Close", [&] { inner_->Close(); });
  }

 private:
  std::unique_ptr<OutputFile> inner_;
  FaultyCalls& calls_;
};

class FaultyTextFiles : public TextFiles {
 public:
  FaultyTextFiles(TextFiles& inner, FaultyCalls& calls) : inner_(inner), calls_(calls) {}
  std::unique_ptr<OutputFile> OpenForOutput(std::string_view path,
                                            UnencodableText unencodable) override {
    return calls_.Through("TextFiles.OpenForOutput", [&] {
      return std::make_unique<FaultyOutputFile>(inner_.OpenForOutput(path, unencodable), calls_);
    });
  }

 private:
  TextFiles& inner_;
  FaultyCalls& calls_;
};

class FaultyWordProcessor : public WordProcessor {
 public:
  FaultyWordProcessor(std::shared_ptr<WordProcessor> inner, FaultyCalls& calls)
      : inner_(std::move(inner)), calls_(calls) {}
  void AddDocument() override {
    calls_.Through("WordProcessor.AddDocument", [&] { inner_->AddDocument(); });
  }
  void SetActiveWindowState(int state) override {
    calls_.Through("WordProcessor.SetActiveWindowState",
                   [&] { inner_->SetActiveWindowState(state); });
  }
  void PasteIntoSelection() override {
    calls_.Through("WordProcessor.PasteIntoSelection", [&] { inner_->PasteIntoSelection(); });
  }
  void CheckSpellingOfDocument() override {
    calls_.Through("WordProcessor.CheckSpellingOfDocument",
                   [&] { inner_->CheckSpellingOfDocument(); });
  }
  void SelectDocument() override {
    calls_.Through("WordProcessor.SelectDocument", [&] { inner_->SelectDocument(); });
  }
  void CutSelection() override {
    calls_.Through("WordProcessor.CutSelection", [&] { inner_->CutSelection(); });
  }
  void CloseDocument(bool saveChanges) override {
    calls_.Through("WordProcessor.CloseDocument", [&] { inner_->CloseDocument(saveChanges); });
  }
  void Quit() override {
    calls_.Through("WordProcessor.Quit", [&] { inner_->Quit(); });
  }

 private:
  std::shared_ptr<WordProcessor> inner_;
  FaultyCalls& calls_;
};

class FaultyWordProcessors : public WordProcessors {
 public:
  FaultyWordProcessors(WordProcessors& inner, FaultyCalls& calls) : inner_(inner), calls_(calls) {}
  std::shared_ptr<WordProcessor> CreateObject(std::string_view programId) override {
    return calls_.ObjectThrough(
        "WordProcessors.CreateObject", [&]() -> std::shared_ptr<WordProcessor> {
          auto program = inner_.CreateObject(programId);
          return program ? std::make_shared<FaultyWordProcessor>(std::move(program), calls_)
                         : nullptr;
        });
  }

 private:
  WordProcessors& inner_;
  FaultyCalls& calls_;
};

class FaultyShell : public Shell {
 public:
  FaultyShell(Shell& inner, FaultyCalls& calls) : inner_(inner), calls_(calls) {}
  void ShellExecute(std::string_view verb, std::string_view file, std::string_view parameters,
                    std::string_view directory) override {
    calls_.Through("Shell.ShellExecute",
                   [&] { inner_.ShellExecute(verb, file, parameters, directory); });
  }

 private:
  Shell& inner_;
  FaultyCalls& calls_;
};

class FaultyHelpViewer : public HelpViewer {
 public:
  FaultyHelpViewer(HelpViewer& inner, FaultyCalls& calls) : inner_(inner), calls_(calls) {}
  void HtmlHelp(std::string_view path, std::uint32_t command, std::uint32_t data) override {
    calls_.Through("HelpViewer.HtmlHelp", [&] { inner_.HtmlHelp(path, command, data); });
  }

 private:
  HelpViewer& inner_;
  FaultyCalls& calls_;
};

}  // namespace brimwork

// A word processor for the spell check, under the name of the one that it looks for: with one
// document, whose text comes and goes through the clipboard.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "support/windows/fake_dispatch.h"
#include "support/windows/registered_program.h"
#include "support/windows/users_clipboard.h"

namespace brimwork {

class TestWord {
 public:
  static constexpr const char* kName = "Word.Application";

  /// Whether the system has such a program without this.
  static bool IsInstalled() {
    CLSID id;
    return SUCCEEDED(CLSIDFromProgID(win32::Wide(kName).c_str(), &id));
  }

  /// correct: what the user's decisions in the spelling dialog make of a text; nothing raises an
  /// error instead.
  explicit TestWord(std::function<std::string(std::string)> correct)
      : correct_(std::move(correct)) {
    application_->Gives("Documents", win32::Variant(documents_));
    application_->Gives("ActiveDocument", win32::Variant(document_));
    application_->Gives("ActiveWindow", win32::Variant(window_));
    application_->Gives("Selection", win32::Variant(selection_));
    Does(application_, "Quit", [] {});
    Does(documents_, "Add", [] {});
    Does(window_, "WindowState", [] {});
    Does(selection_, "Paste", [this] { text_ = TextOnClipboard(); });
    Does(selection_, "Cut", [this] { PutOnClipboard(std::exchange(text_, "") + "\r\n"); });
    Does(document_, "Select", [] {});
    Does(document_, "Close", [] {});
    document_->On("CheckSpelling", [this](FakeDispatch::Invocation& invocation) {
      calls_.emplace_back("CheckSpelling");
      if (!correct_) return invocation.Raise(E_FAIL, "the dictionary is not installed");
      text_ = correct_(text_);
      return S_OK;
    });
    for (const auto& object : Objects()) own_.push_back(object->References());
  }

  /// The methods and settable properties that were called.
  const std::vector<std::string>& Calls() const { return calls_; }
  bool HasQuit() const { return !calls_.empty() && calls_.back() == "Quit"; }

  /// Whether other programs hold objects of this.
  bool IsHeld() const {
    std::vector<ULONG> references;
    for (const auto& object : Objects()) references.push_back(object->References());
    return references != own_;
  }

 private:
  using Object = win32::ComPointer<FakeDispatch>;

  void Does(const Object& object, const std::string& member, std::function<void()> act) {
    object->arguments["SaveChanges"] = 0;
    object->On(member, [this, member, act = std::move(act)](FakeDispatch::Invocation&) {
      calls_.push_back(member);
      act();
      return S_OK;
    });
  }
  std::vector<FakeDispatch*> Objects() const {
    return {application_.get(), documents_.get(), window_.get(), selection_.get(), document_.get()};
  }

  std::function<std::string(std::string)> correct_;
  std::string text_;
  std::vector<std::string> calls_;
  std::vector<ULONG> own_;  // references that are this object's own
  Object application_ = FakeDispatch::Make();
  Object documents_ = FakeDispatch::Make();
  Object window_ = FakeDispatch::Make();
  Object selection_ = FakeDispatch::Make();
  Object document_ = FakeDispatch::Make();
  RegisteredProgram program_{kName, application_.get()};
};

}  // namespace brimwork

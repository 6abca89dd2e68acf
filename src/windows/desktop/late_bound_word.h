// The word processor, driven by the names of its members: whichever version the user has.
#pragma once

#include <windows.h>

#include "environment/word_processor.h"
#include "windows/object_model/dispatch_object.h"

namespace brimwork::windows {

/// It runs as a program of its own and turns calls away while it is starting or at work: they are
/// made again for a few seconds.
class LateBoundWord : public WordProcessor {
 public:
  /// application: not null.
  explicit LateBoundWord(win32::ComPointer<IDispatch> application);
  LateBoundWord(win32::ComPointer<IDispatch> application, std::shared_ptr<Connection> connection);

  void AddDocument() override;
  void SetActiveWindowState(int state) override;
  void PasteIntoSelection() override;
  void CheckSpellingOfDocument() override;
  void SelectDocument() override;
  void CutSelection() override;
  void CloseDocument(bool saveChanges) override;
  /// What documents are left is not saved: a question about them would stay behind the editor.
  void Quit() override;

 private:
  DispatchObject ActiveDocument() const;
  DispatchObject Selection() const;

  DispatchObject application_;
};

class LateBoundWords : public WordProcessors {
 public:
  std::shared_ptr<WordProcessor> CreateObject(std::string_view programId) override;
};

}  // namespace brimwork::windows

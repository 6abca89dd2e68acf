// A word processor as a spell check drives it: text travels to and from it through the clipboard.
// Every operation may raise RunTimeError.
#pragma once

#include <memory>
#include <string_view>

namespace brimwork {

namespace document_window_state {
inline constexpr int kMinimized = 2;
}  // namespace document_window_state

class WordProcessor {
 public:
  virtual ~WordProcessor() = default;

  /// Documents.Add: an empty document, which becomes the active one.
  virtual void AddDocument() = 0;
  /// ActiveWindow.WindowState
  virtual void SetActiveWindowState(int state) = 0;
  /// Selection.Paste
  virtual void PasteIntoSelection() = 0;
  /// ActiveDocument.CheckSpelling: returns after the user has decided on each word.
  virtual void CheckSpellingOfDocument() = 0;
  /// ActiveDocument.Select
  virtual void SelectDocument() = 0;
  /// Selection.Cut
  virtual void CutSelection() = 0;
  /// ActiveDocument.Close SaveChanges:=saveChanges
  virtual void CloseDocument(bool saveChanges) = 0;
  virtual void Quit() = 0;
};

class WordProcessors {
 public:
  virtual ~WordProcessors() = default;

  /// Starts the program of that programmatic identifier ("Word.Application"). Raises error 429 when
  /// there is none.
  virtual std::shared_ptr<WordProcessor> CreateObject(std::string_view programId) = 0;
};

}  // namespace brimwork

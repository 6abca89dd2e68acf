// An edit control that shows a text of the workbench. The workbench's text is the true one: what
// the user types goes into it when it is next looked at, and what changes in it is drawn when there
// is time, at the latest before the user's next key.
#pragma once

#include <functional>
#include <memory>

#include "bench/screen/edit_control.h"
#include "bench/screen/screen_host.h"
#include "bench/screen/shown_text.h"
#include "bench/screen/subclass.h"
#include "bench/screen/text_search.h"

namespace brimwork::bench {

class TextView : public SubclassedControl {
 public:
  /// menu: what a click with the right button opens, at a place of the screen.
  TextView(const ScreenParts& parts, HWND parent, std::unique_ptr<ShownText> text,
           std::shared_ptr<MemoryWindow> window, std::function<void(POINT)> menu);

  /// Brings what the user typed and selected into the workbench.
  void TakeInput();

  /// Draws what changed in the workbench.
  void Refresh();

  bool CanUndo() const { return history_.CanUndo(); }
  bool CanRedo() const { return history_.CanRedo(); }

  /// The selection when it lies within a line.
  std::wstring SelectedWord();

  /// Selects what is found next behind the selection; false when nothing is.
  bool Find(const SearchQuery& query);

  // The user's commands.

  void Cut();
  void Copy();
  void Paste();
  void Delete();
  void SelectAll();
  void Undo();
  void Redo();

  int TopLine();  // from 1
  void SetTopLine(int line);
  int VisibleLines();

 protected:
  LRESULT OnMessage(UINT message, WPARAM wide, LPARAM longer) override;

 private:
  bool IsStale();
  void PrepareForInput();
  LRESULT SetTextFromOutside(WPARAM wide, LPARAM longer);
  bool AnswerKey(WPARAM character);
  void TypeTab();
  void OpenMenu(LPARAM place);
  void TakeText();
  void TakeSelection();
  void ShowText();
  void ShowSelection();
  void TakeBack(const std::optional<TextChange>& change);

  ScreenHost& host_;
  std::unique_ptr<ShownText> text_;
  std::shared_ptr<MemoryWindow> window_;
  std::function<void(POINT)> menu_;

  // What control and workbench had in common when they were last compared.
  std::wstring shown_;
  std::uint64_t revision_ = 0;
  Selection selection_;
  UnitRange units_;

  bool isTouched_ = false;   // the user may have changed the control since
  bool isOwnDoing_ = false;  // a message that this program sends itself
  UndoHistory history_;
};

}  // namespace brimwork::bench

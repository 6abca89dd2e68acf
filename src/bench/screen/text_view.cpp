#include "bench/screen/text_view.h"

#include <windowsx.h>

#include <string>
#include <utility>

#include "bench/screen/edit_messages.h"
#include "bench/screen/flag_scope.h"
#include "memory/usual_commands.h"

namespace brimwork::bench {
namespace {

constexpr int kTabColumns = 4;

/// Characters that the keyboard gives for letters with Ctrl.
namespace control_key {
constexpr WPARAM kA = 1;
constexpr WPARAM kTab = 9;
constexpr WPARAM kY = 25;
constexpr WPARAM kZ = 26;
}  // namespace control_key

}  // namespace

TextView::TextView(const ScreenParts& parts, HWND parent, std::unique_ptr<ShownText> text,
                   std::shared_ptr<MemoryWindow> window, std::function<void(POINT)> menu)
    : host_(parts.host),
      text_(std::move(text)),
      window_(std::move(window)),
      menu_(std::move(menu)),
      revision_(text_->Revision()) {
  constexpr DWORD kStyle = WS_VISIBLE | WS_VSCROLL | WS_HSCROLL | ES_MULTILINE | ES_AUTOVSCROLL |
                           ES_AUTOHSCROLL | ES_NOHIDESEL | ES_WANTRETURN;
  const FlagScope own(isOwnDoing_);
  Create(parent, L"EDIT", kStyle, 0, parts.fonts.Code());
  SendMessageW(Handle(), EM_SETLIMITTEXT, 0, 0);
  const int tabUnits = kTabColumns * 4;  // a column is four units wide
  SendMessageW(Handle(), EM_SETTABSTOPS, 1, reinterpret_cast<LPARAM>(&tabUnits));
  shown_ = ForControl(text_->Text());
  SetWindowTextW(Handle(), shown_.c_str());
  ShowSelection();
}

void TextView::TakeInput() {
  if (!isTouched_) return;
  const FlagScope own(isOwnDoing_);
  isTouched_ = false;
  if (SendMessageW(Handle(), EM_GETMODIFY, 0, 0) != 0) TakeText();
  if (!IsStale()) TakeSelection();
}

void TextView::TakeText() {
  SendMessageW(Handle(), EM_SETMODIFY, FALSE, 0);
  std::wstring typed = TextOfControl(Handle());
  if (typed == shown_) return;
  history_.Note(ChangeBetween(shown_, typed));
  shown_ = std::move(typed);
  text_->SetText(FromControl(shown_));
  revision_ = text_->Revision();
  selection_ = text_->GetSelection();
  units_ = {shown_.size() + 1, 0};  // none, so that the caret is looked at
}

void TextView::TakeSelection() {
  const UnitRange units = SelectedUnits(Handle());
  if (units == units_) return;
  units_ = units;
  text_->SetSelection(PositionsOf(Handle(), shown_, units));
  selection_ = text_->GetSelection();
}

bool TextView::IsStale() {
  return text_->Revision() != revision_ || text_->GetSelection() != selection_;
}

void TextView::Refresh() {
  if (!IsStale()) return;
  const FlagScope own(isOwnDoing_);
  if (text_->Revision() != revision_) ShowText();
  ShowSelection();
}

void TextView::ShowText() {
  std::wstring text = ForControl(text_->Text());
  const TextChange change = ChangeBetween(shown_, text);
  if (!change.IsNone()) ApplyChange(Handle(), change);
  history_.Note(change);
  SendMessageW(Handle(), EM_SETMODIFY, FALSE, 0);
  shown_ = std::move(text);
  revision_ = text_->Revision();
}

// What is on the screen moves only when the caret does; some systems scroll to every selection.
void TextView::ShowSelection() {
  const int top = FirstVisibleLine(Handle());
  const bool hasMoved = text_->GetSelection() != selection_;
  selection_ = text_->GetSelection();
  units_ = UnitsOf(Handle(), shown_, selection_);
  SelectUnits(Handle(), units_);
  SetFirstVisibleLine(Handle(), top);
  if (hasMoved) SendMessageW(Handle(), EM_SCROLLCARET, 0, 0);
}

std::wstring TextView::SelectedWord() {
  TakeInput();
  const UnitRange units = SelectedUnits(Handle());
  const std::wstring selected = shown_.substr(units.start, units.end - units.start);
  return selected.find(L'\r') == std::wstring::npos ? selected : std::wstring();
}

bool TextView::Find(const SearchQuery& query) {
  TakeInput();
  const auto found = FindNext(shown_, query, SelectedUnits(Handle()).end);
  if (!found) return false;
  SelectUnits(Handle(), {*found, *found + query.wanted.size()});
  SendMessageW(Handle(), EM_SCROLLCARET, 0, 0);
  return true;
}

void TextView::Cut() { SendMessageW(Handle(), WM_CUT, 0, 0); }
void TextView::Copy() { SendMessageW(Handle(), WM_COPY, 0, 0); }
void TextView::Paste() { SendMessageW(Handle(), WM_PASTE, 0, 0); }

void TextView::Delete() {
  SendMessageW(Handle(), WM_KEYDOWN, VK_DELETE, 0);
  SendMessageW(Handle(), WM_KEYUP, VK_DELETE, 0);
}

void TextView::SelectAll() { SendMessageW(Handle(), EM_SETSEL, 0, -1); }

void TextView::Undo() {
  TakeInput();
  TakeBack(history_.Undo());
}

void TextView::Redo() {
  TakeInput();
  TakeBack(history_.Redo());
}

void TextView::TakeBack(const std::optional<TextChange>& change) {
  if (!change) {
    MessageBeep(MB_OK);
    return;
  }
  const FlagScope own(isOwnDoing_);
  ApplyChange(Handle(), *change);
  SendMessageW(Handle(), EM_SETMODIFY, FALSE, 0);
  const std::size_t caret = change->start + change->inserted.size();
  SelectUnits(Handle(), {caret, caret});
  SendMessageW(Handle(), EM_SCROLLCARET, 0, 0);
  shown_.replace(change->start, change->removed.size(), change->inserted);
  text_->SetText(FromControl(shown_));
  revision_ = text_->Revision();
  TakeSelection();
}

int TextView::TopLine() {
  Refresh();
  return FirstVisibleLine(Handle()) + 1;
}

void TextView::SetTopLine(int line) {
  Refresh();
  SetFirstVisibleLine(Handle(), line - 1);
}

int TextView::VisibleLines() {
  const WindowContext context(Handle());
  const SelectedObject font(context.get(),
                            reinterpret_cast<HFONT>(SendMessageW(Handle(), WM_GETFONT, 0, 0)));
  TEXTMETRICW metric{};
  GetTextMetricsW(context.get(), &metric);
  RECT room{};
  SendMessageW(Handle(), EM_GETRECT, 0, reinterpret_cast<LPARAM>(&room));
  return metric.tmHeight > 0 ? static_cast<int>((room.bottom - room.top) / metric.tmHeight) : 0;
}

LRESULT TextView::OnMessage(UINT message, WPARAM wide, LPARAM longer) {
  if (!isOwnDoing_) {
    if (IsInput(message, wide)) {
      PrepareForInput();
    } else if (IsLook(message)) {
      Refresh();
    }
  }
  switch (message) {
    case WM_CHAR:
      if (AnswerKey(wide)) return 0;
      break;
    case WM_UNDO:
    case EM_UNDO:
      Undo();
      return TRUE;
    case EM_CANUNDO:
      return CanUndo();
    case WM_RBUTTONDOWN:
      SetFocus(Handle());
      break;
    case WM_CONTEXTMENU:
      OpenMenu(longer);
      return 0;
    case WM_SETFOCUS:
      host_.NoteFocus(window_);
      break;
    case WM_SETTEXT:
      return SetTextFromOutside(wide, longer);
    default:
      break;
  }
  return Default(message, wide, longer);
}

/// To the control, a text that is set is no change of the user's.
LRESULT TextView::SetTextFromOutside(WPARAM wide, LPARAM longer) {
  const LRESULT result = Default(WM_SETTEXT, wide, longer);
  if (!isOwnDoing_) SendMessageW(Handle(), EM_SETMODIFY, TRUE, 0);
  return result;
}

void TextView::PrepareForInput() {
  Refresh();
  isTouched_ = true;
  host_.NoteInput();
}

/// True when the character is a command.
bool TextView::AnswerKey(WPARAM character) {
  switch (character) {
    case control_key::kA:
      SelectAll();
      return true;
    case control_key::kTab:
      TypeTab();
      return true;
    case control_key::kY:
      Redo();
      return true;
    case control_key::kZ:
      Undo();
      return true;
    default:
      return false;
  }
}

// Over several lines, and backwards, Tab is the command that indents them.
void TextView::TypeTab() {
  TakeInput();
  isTouched_ = true;
  const Selection selection = text_->GetSelection();
  const bool isBackwards = GetKeyState(VK_SHIFT) < 0;
  if (isBackwards || selection.startLine != selection.endLine) {
    host_.RunCommand(isBackwards ? command::kOutdent : command::kIndent);
    return;
  }
  const int column = selection.startColumn - 1;
  const std::wstring typed(static_cast<std::size_t>(kTabColumns - column % kTabColumns), L' ');
  SendMessageW(Handle(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(typed.c_str()));
}

// The keyboard's key for the menu gives no place: it opens at the caret.
void TextView::OpenMenu(LPARAM place) {
  POINT point{GET_X_LPARAM(place), GET_Y_LPARAM(place)};
  if (place == -1) {
    GetCaretPos(&point);
    ClientToScreen(Handle(), &point);
  }
  menu_(point);
}

}  // namespace brimwork::bench

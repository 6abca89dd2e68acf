#include "windows/forms/text_box_window.h"

#include <algorithm>
#include <utility>

#include "environment/text.h"
#include "win32/wide_text.h"
#include "windows/forms/form_window.h"

namespace brimwork::windows {
namespace {

constexpr WPARAM kSelectAllCharacter = 1;  // Ctrl+A

DWORD MultiLineStyle(ScrollBars bars) {
  DWORD style = ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN;
  const bool isBoth = bars == ScrollBars::kBoth;
  if (isBoth || bars == ScrollBars::kVertical) style |= WS_VSCROLL;
  if (isBoth || bars == ScrollBars::kHorizontal) style |= WS_HSCROLL | ES_AUTOHSCROLL;
  return style;
}

DWORD AlignmentStyle(TextAlignment alignment) {
  switch (alignment) {
    case TextAlignment::kRight:
      return ES_RIGHT;
    case TextAlignment::kCenter:
      return ES_CENTER;
    case TextAlignment::kLeft:
      return ES_LEFT;
  }
  return ES_LEFT;
}

bool MovesTheCaret(UINT message) {
  return message == WM_KEYDOWN || message == WM_CHAR || message == WM_LBUTTONDOWN ||
         message == WM_LBUTTONUP || message == WM_LBUTTONDBLCLK;
}

DWORD UnitsOf(std::string_view text, int characters) {
  return static_cast<DWORD>(win32::Wide(text.substr(0, ByteOffset(text, characters))).size());
}

int CharactersOf(const std::wstring& text, DWORD units) {
  return CharacterCount(win32::Narrow(std::wstring_view(text).substr(0, units)));
}

bool IsBetween(const std::wstring& text, std::size_t place) {
  if (place == 0 || place >= text.size()) return true;
  const bool isInLineEnd = text[place - 1] == L'\r' && text[place] == L'\n';
  return !isInLineEnd && !IS_SURROGATE_PAIR(text[place - 1], text[place]);
}

}  // namespace

ControlWindow::Design TextBoxWindow::WindowDesign() const {
  const ControlLayout& layout = box_.Layout();
  DWORD style = AlignmentStyle(layout.alignment);
  style |= box_.MultiLine() ? MultiLineStyle(layout.scrollBars) : ES_AUTOHSCROLL;
  if (layout.passwordCharacter != '\0') style |= ES_PASSWORD;
  return {L"EDIT", style, WS_EX_CLIENTEDGE};
}

void TextBoxWindow::ShowAll() {
  ControlWindow::ShowAll();
  const ControlLayout& layout = box_.Layout();
  Send(EM_SETLIMITTEXT, static_cast<WPARAM>(layout.maxLength));
  if (layout.passwordCharacter != '\0') {
    Send(EM_SETPASSWORDCHAR, static_cast<WPARAM>(layout.passwordCharacter));
  }
  for (const PropertyId property :
       {PropertyId::kLocked, PropertyId::kText, PropertyId::kSelection}) {
    Show(property);
  }
}

void TextBoxWindow::Show(PropertyId property) {
  ControlWindow::Show(property);
  if (property == PropertyId::kText) ShowBoxText();
  if (property == PropertyId::kSelection) ShowSelection();
  if (property == PropertyId::kLocked) Send(EM_SETREADONLY, box_.Locked);
}

// A box that cannot be used looks so, unless the form has a colour of its own for it.
LRESULT TextBoxWindow::OnColors(HDC context) {
  const LRESULT brush = ControlWindow::OnColors(context);
  if (IsEnabled() || box_.BackColor != Color{system_color::kWindow}) return brush;
  SetBkColor(context, ShownColor(system_color::kButtonFace));
  return reinterpret_cast<LRESULT>(Kit().brushes.Brush(system_color::kButtonFace));
}

std::wstring TextBoxWindow::WindowText() const {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(Handle())) + 1, L'\0');
  const int length = GetWindowTextW(Handle(), text.data(), static_cast<int>(text.size()));
  text.resize(static_cast<std::size_t>(length));
  return text;
}

TextBoxWindow::Units TextBoxWindow::WindowSelection() const {
  Units units;
  Send(EM_GETSEL, reinterpret_cast<WPARAM>(&units.start), reinterpret_cast<LPARAM>(&units.end));
  return units;
}

TextBoxWindow::Units TextBoxWindow::DataSelection() const {
  return {UnitsOf(box_.Text, box_.SelStart()),
          UnitsOf(box_.Text, box_.SelStart() + box_.SelLength())};
}

void TextBoxWindow::ShowBoxText() {
  const std::wstring before = WindowText();
  const std::wstring after = win32::Wide(box_.Text.Get());
  if (before == after) return;
  const bool wasShowingText = std::exchange(isShowingText_, true);
  if (box_.MultiLine()) ReplaceChangedPart(before, after);
  if (WindowText() != after) SetWindowTextW(Handle(), after.c_str());
  isShowingText_ = wasShowingText;
}

// What stays is not set anew, so that the user still sees the same lines and can undo.
void TextBoxWindow::ReplaceChangedPart(const std::wstring& before, const std::wstring& after) {
  const std::size_t most = std::min(before.size(), after.size());
  std::size_t start = 0;
  while (start < most && before[start] == after[start]) ++start;
  while (!IsBetween(before, start) || !IsBetween(after, start)) --start;
  std::size_t kept = 0;  // at the end
  const auto isKept = [&](std::size_t count) {
    return before[before.size() - count] == after[after.size() - count];
  };
  while (kept < most - start && isKept(kept + 1)) ++kept;
  while (!IsBetween(before, before.size() - kept) || !IsBetween(after, after.size() - kept)) --kept;
  Send(EM_SETSEL, start, static_cast<LPARAM>(before.size() - kept));
  const std::wstring part = after.substr(start, after.size() - kept - start);
  Send(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(part.c_str()));
}

void TextBoxWindow::ShowSelection() {
  const Units units = DataSelection();
  if (units == WindowSelection()) return;
  Send(EM_SETSEL, units.start, static_cast<LPARAM>(units.end));
  Send(EM_SCROLLCARET);
}

void TextBoxWindow::OnCommand(WORD notification) {
  if (notification == EN_CHANGE && !isShowingText_) TakeText();
}

void TextBoxWindow::TakeText() {
  const std::wstring text = WindowText();
  const Units units = WindowSelection();
  const int start = CharactersOf(text, units.start);
  const int length = CharactersOf(text, units.end) - start;
  const bool isLoaded = form_.Tell([&] { box_.Edit(win32::Narrow(text), start, length); });
  if (!isLoaded) return;
  ShowBoxText();
  ShowSelection();
}

void TextBoxWindow::TakeSelection() {
  const Units units = WindowSelection();
  if (!form_.IsLoaded() || units == DataSelection()) return;
  const std::wstring text = WindowText();
  const int start = CharactersOf(text, units.start);
  const int length = CharactersOf(text, units.end) - start;
  form_.Tell([&] { box_.Select(start, length); });
}

LRESULT TextBoxWindow::Receive(UINT message, WPARAM wide, LPARAM longer) {
  const LRESULT result = ControlWindow::Receive(message, wide, longer);
  if (MovesTheCaret(message)) TakeSelection();
  return result;
}

bool TextBoxWindow::TakeKey(UINT message, WPARAM key) {
  if (message != WM_CHAR) return false;
  if (key == kSelectAllCharacter) return form_.Tell([this] { box_.SelectAll(); }), true;
  if (key != '\n') return false;
  return form_.Tell([this] { box_.Type("\n"); }), true;
}

}  // namespace brimwork::windows

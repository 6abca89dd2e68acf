#include "windows/forms/list_windows.h"

#include <algorithm>

#include "win32/wide_text.h"
#include "windows/forms/form_window.h"

namespace brimwork::windows {
namespace {

constexpr ListWindow::Messages kListBoxMessages = {LB_INSERTSTRING, LB_DELETESTRING, LB_SETCURSEL,
                                                   LB_GETCURSEL, LBN_SELCHANGE};
constexpr ListWindow::Messages kComboBoxMessages = {CB_INSERTSTRING, CB_DELETESTRING, CB_SETCURSEL,
                                                    CB_GETCURSEL, CBN_SELCHANGE};
constexpr int kMostLinesDropped = 8;
constexpr WPARAM kClosedPart = static_cast<WPARAM>(-1);

}  // namespace

void ListWindow::ShowAll() {
  ControlWindow::ShowAll();
  Show(PropertyId::kList);
}

void ListWindow::Show(PropertyId property) {
  ControlWindow::Show(property);
  if (property == PropertyId::kList) ShowItems();
  if (property == PropertyId::kList || property == PropertyId::kListIndex) ShowChoice();
}

// Items that stay are not set anew: the user still sees the same ones.
void ListWindow::ShowItems() {
  const std::vector<std::string>& items = list_.Items();
  const auto [oldStart, newStart] = std::ranges::mismatch(shown_, items);
  const auto start = oldStart - shown_.begin();
  auto oldEnd = shown_.end();
  auto newEnd = items.end();
  while (oldEnd != oldStart && newEnd != newStart && *(oldEnd - 1) == *(newEnd - 1)) {
    --oldEnd;
    --newEnd;
  }
  for (auto removed = oldStart; removed != oldEnd; ++removed) {
    Send(messages_.remove, static_cast<WPARAM>(start));
  }
  for (auto added = newStart; added != newEnd; ++added) {
    Send(messages_.insert, static_cast<WPARAM>(added - items.begin()),
         reinterpret_cast<LPARAM>(win32::Wide(*added).c_str()));
  }
  shown_ = items;
}

void ListWindow::ShowChoice() {
  const int index = list_.ListIndex;
  if (Send(messages_.chosen) != index) {
    Send(messages_.choose, static_cast<WPARAM>(static_cast<INT_PTR>(index)));
  }
}

void ListWindow::OnCommand(WORD notification) {
  if (notification != messages_.isChosen) return;
  const auto index = static_cast<int>(Send(messages_.chosen));
  if (form_.Tell([&] { list_.Choose(index); })) ShowChoice();
}

ListBoxWindow::ListBoxWindow(FormWindow& form, ListBox& list)
    : ListWindow(form, list, kListBoxMessages) {}

ControlWindow::Design ListBoxWindow::WindowDesign() const {
  return {L"LISTBOX", LBS_NOTIFY | LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT | WS_VSCROLL,
          WS_EX_CLIENTEDGE};
}

ComboBoxWindow::ComboBoxWindow(FormWindow& form, ComboBox& list)
    : ListWindow(form, list, kComboBoxMessages) {}

ControlWindow::Design ComboBoxWindow::WindowDesign() const {
  return {L"COMBOBOX", CBS_DROPDOWNLIST | CBS_HASSTRINGS | CBS_NOINTEGRALHEIGHT | WS_VSCROLL, 0};
}

void ComboBoxWindow::ShowPlace() {
  RECT place = Kit().scale.ToPixels(Place{list_.Left, list_.Top, list_.Width, list_.Height});
  const auto lineHeight = static_cast<LONG>(Send(CB_GETITEMHEIGHT, 0));
  const auto lines = static_cast<LONG>(std::clamp(list_.ListCount(), 1, kMostLinesDropped));
  constexpr LONG kBorders = 2;
  MoveWindow(Handle(), place.left, place.top, place.right - place.left,
             place.bottom - place.top + lines * lineHeight + kBorders, TRUE);
}

void ComboBoxWindow::Show(PropertyId property) {
  ListWindow::Show(property);
  if (property == PropertyId::kFont) ShowPlace();
}

void ComboBoxWindow::ShowItems() {
  ListWindow::ShowItems();
  constexpr LONG kFrame = 6;  // above and below the text of the closed list
  const RECT place = Kit().scale.ToPixels(Place{list_.Left, list_.Top, list_.Width, list_.Height});
  Send(CB_SETITEMHEIGHT, kClosedPart, place.bottom - place.top - kFrame);
  ShowPlace();
}

bool ComboBoxWindow::TakeKey(UINT message, WPARAM key) {
  const bool closes = message == WM_KEYDOWN && (key == VK_RETURN || key == VK_ESCAPE);
  if (!closes || Send(CB_GETDROPPEDSTATE) == 0) return false;
  Default(message, key, 0);
  return true;
}

}  // namespace brimwork::windows

#include "bench/screen/properties_list.h"

#include <commctrl.h>

#include <algorithm>

#include "bench/screen/edit_control.h"
#include "bench/screen/faults.h"
#include "environment/vbe.h"
#include "win32/wide_text.h"

namespace brimwork::bench {
namespace {

constexpr int kTitleColumn = 22;  // the line above the list

std::string ClassOf(int componentType) {
  switch (componentType) {
    case component_type::kStandardModule:
      return "Module";
    case component_type::kClassModule:
      return "ClassModule";
    case component_type::kForm:
      return "Form";
    case component_type::kMdiForm:
      return "MDIForm";
    case component_type::kPropertyPage:
      return "PropertyPage";
    case component_type::kUserControl:
      return "UserControl";
    case component_type::kUserDocument:
      return "UserDocument";
    default:
      return "Document";
  }
}

void SetCell(HWND list, int row, int column, const std::string& text) {
  std::wstring wide = win32::Wide(text);
  LVITEMW item{};
  item.mask = LVIF_TEXT;
  item.iItem = row;
  item.iSubItem = column;
  item.pszText = wide.data();
  SendMessageW(list, column == 0 ? LVM_INSERTITEMW : LVM_SETITEMW, 0,
               reinterpret_cast<LPARAM>(&item));
}

void AddColumn(HWND list, const wchar_t* title, int place) {
  LVCOLUMNW column{};
  column.mask = LVCF_TEXT | LVCF_WIDTH;
  column.pszText = const_cast<wchar_t*>(title);
  column.cx = 100;
  SendMessageW(list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(place),
               reinterpret_cast<LPARAM>(&column));
}

}  // namespace

ValueField::ValueField(HWND parent, HFONT font, std::function<void(const std::string&)> take)
    : take_(std::move(take)) {
  Create(parent, L"EDIT", WS_BORDER | ES_AUTOHSCROLL, 0, font);
}

void ValueField::Open(const std::string& value, const RECT& area) {
  SetWindowTextW(Handle(), win32::Wide(value).c_str());
  SetWindowPos(Handle(), HWND_TOP, static_cast<int>(area.left), static_cast<int>(area.top),
               static_cast<int>(area.right - area.left), static_cast<int>(area.bottom - area.top),
               SWP_SHOWWINDOW);
  SetFocus(Handle());
  SendMessageW(Handle(), EM_SETSEL, 0, -1);
}

LRESULT ValueField::OnMessage(UINT message, WPARAM wide, LPARAM longer) {
  switch (message) {
    case WM_KEYDOWN:
      if (wide == VK_RETURN || wide == VK_ESCAPE) {
        Leave(wide == VK_RETURN);
        SetFocus(GetParent(Handle()));
        return 0;
      }
      break;
    case WM_CHAR:
      if (wide == VK_RETURN || wide == VK_ESCAPE) return 0;  // the control would beep
      break;
    case WM_KILLFOCUS:
      Leave(true);
      break;
    default:
      break;
  }
  return Default(message, wide, longer);
}

void ValueField::Leave(bool takesValue) {
  if (!IsOpen()) return;
  const std::string value = win32::Narrow(TextOfControl(Handle()));
  ShowWindow(Handle(), SW_HIDE);
  if (takesValue) take_(value);
}

PropertiesList::PropertiesList(const ScreenParts& parts, const ToolWindow& owner)
    : parts_(parts), window_(owner.Model()) {
  Create({.className = L"BrimworkBenchProperties",
          .style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN,
          .parent = owner.Handle(),
          .bounds = {0, 0, 0, 0},
          .background = COLOR_WINDOW});
  list_ = CreateWindowExW(0, WC_LISTVIEWW, L"",
                          WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_CLIPSIBLINGS | LVS_REPORT |
                              LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_NOCOLUMNHEADER,
                          0, 0, 0, 0, Handle(), nullptr, GetModuleHandleW(nullptr), nullptr);
  CheckSystem(list_ != nullptr, "a list could not be made");
  SendMessageW(list_, WM_SETFONT, reinterpret_cast<WPARAM>(parts.fonts.Plain()), FALSE);
  SendMessageW(list_, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_GRIDLINES | LVS_EX_FULLROWSELECT);
  AddColumn(list_, L"Property", 0);
  AddColumn(list_, L"Value", 1);
  field_ = std::make_unique<ValueField>(Handle(), parts.fonts.Plain(),
                                        [this](const std::string& name) { Rename(name); });
}

PropertiesList::Properties PropertiesList::CurrentProperties() const {
  const auto component = parts_.bench.SelectedComponent();
  if (component == nullptr) return {};
  const auto path = component->Path().filename().u8string();
  return {{"(Name)", component->LastName()},
          {"Kind", ClassOf(component->Kind())},
          {"File", std::string(path.begin(), path.end())}};
}

void PropertiesList::Refresh() {
  const Properties current = CurrentProperties();
  if (isFilled_ && current == shown_) return;
  Fill(current);
  isFilled_ = true;
}

void PropertiesList::Fill(const Properties& properties) {
  shown_ = properties;
  SendMessageW(list_, LVM_DELETEALLITEMS, 0, 0);
  int row = 0;
  for (const auto& [name, value] : properties) {
    SetCell(list_, row, 0, name);
    SetCell(list_, row, 1, value);
    ++row;
  }
  InvalidateRect(Handle(), nullptr, TRUE);
}

LRESULT PropertiesList::OnMessage(UINT message, WPARAM wide, LPARAM longer) {
  switch (message) {
    case WM_SIZE:
      Arrange();
      return 0;
    case WM_PAINT:
      PaintTitle();
      return 0;
    case WM_SETFOCUS:
      SetFocus(list_);
      return 0;
    case WM_NOTIFY:
      return OnNote(*reinterpret_cast<const NMHDR*>(longer), wide, longer);
    default:
      return Default(message, wide, longer);
  }
}

void PropertiesList::Arrange() {
  if (list_ == nullptr) return;
  RECT room{};
  GetClientRect(Handle(), &room);
  const auto width = static_cast<int>(room.right);
  MoveWindow(list_, 0, kTitleColumn, width, std::max<int>(room.bottom - kTitleColumn, 0), TRUE);
  SendMessageW(list_, LVM_SETCOLUMNWIDTH, 0, MAKELPARAM(width * 2 / 5, 0));
  SendMessageW(list_, LVM_SETCOLUMNWIDTH, 1, MAKELPARAM(width - width * 2 / 5, 0));
}

/// The component's name and what it is, above the list.
void PropertiesList::PaintTitle() {
  const Painting painting(Handle());
  RECT title{};
  GetClientRect(Handle(), &title);
  title.bottom = kTitleColumn;
  FillRect(painting.Context(), &title, GetSysColorBrush(COLOR_BTNFACE));
  const auto component = parts_.bench.SelectedComponent();
  if (component == nullptr) return;
  title.left += 4;
  SetBkMode(painting.Context(), TRANSPARENT);
  SetTextColor(painting.Context(), GetSysColor(COLOR_BTNTEXT));
  const SelectedObject bold(painting.Context(), parts_.fonts.Bold());
  const std::wstring name = win32::Wide(component->LastName());
  DrawTextW(painting.Context(), name.c_str(), -1, &title, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
  title.left += WidthOf(parts_.fonts.Bold(), name.c_str()) + 6;
  const SelectedObject plain(painting.Context(), parts_.fonts.Plain());
  DrawTextW(painting.Context(), win32::Wide(ClassOf(component->Kind())).c_str(), -1, &title,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

LRESULT PropertiesList::OnNote(const NMHDR& note, WPARAM wide, LPARAM longer) {
  if (note.code == static_cast<UINT>(NM_SETFOCUS)) parts_.host.NoteFocus(window_);
  const bool isOpening = note.code == static_cast<UINT>(NM_DBLCLK) ||
                         note.code == static_cast<UINT>(NM_RETURN) ||
                         note.code == static_cast<UINT>(NM_CLICK);
  if (isOpening &&
      SendMessageW(list_, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED) == 0) {
    EditName();
  }
  return Default(WM_NOTIFY, wide, longer);
}

void PropertiesList::EditName() {
  const auto component = parts_.bench.SelectedComponent();
  if (component == nullptr) return;
  RECT cell{};
  cell.left = LVIR_BOUNDS;
  cell.top = 1;  // the column
  SendMessageW(list_, LVM_GETSUBITEMRECT, 0, reinterpret_cast<LPARAM>(&cell));
  OffsetRect(&cell, 0, kTitleColumn);
  cell.bottom += 2;
  field_->Open(component->LastName(), cell);
}

void PropertiesList::Rename(const std::string& name) {
  const auto component = parts_.bench.SelectedComponent();
  if (component == nullptr || component->LastName() == name) return;
  parts_.host.Do([component, name] { component->SetName(name); });
}

}  // namespace brimwork::bench

#include "windows/forms/tab_strip_window.h"

#include <commctrl.h>

#include "win32/system_library.h"
#include "win32/wide_text.h"
#include "windows/forms/form_window.h"

namespace brimwork::windows {
namespace {

// A theme's pages have a colour of their own, which what lies on them has not. No theme has a blank
// for its name; an empty name is not refused everywhere.
void TakeOffTheme(HWND window) {
  const win32::SystemLibrary themes(L"uxtheme.dll");
  const auto setTheme = themes.Find<HRESULT WINAPI(HWND, LPCWSTR, LPCWSTR)>("SetWindowTheme");
  if (setTheme != nullptr) setTheme(window, L" ", L" ");
}

}  // namespace

ControlWindow::Design TabStripWindow::WindowDesign() const {
  return {WC_TABCONTROLW, TCS_TABS | TCS_SINGLELINE, 0};
}

void TabStripWindow::ShowAll() {
  ControlWindow::ShowAll();
  TakeOffTheme(Handle());
  ShowTabs();
  ShowChoice();
}

void TabStripWindow::Show(PropertyId property) {
  ControlWindow::Show(property);
  if (property == PropertyId::kValue) ShowChoice();
  if (property == PropertyId::kFont) ShowToolTip();
}

void TabStripWindow::ShowTabs() {
  WPARAM index = 0;
  for (const TabLayout& tab : strip_.Tabs()) {
    std::wstring caption = win32::Wide(tab.caption);
    TCITEMW item = {};
    item.mask = TCIF_TEXT;
    item.pszText = caption.data();
    Send(TCM_INSERTITEMW, index++, reinterpret_cast<LPARAM>(&item));
  }
  ShowToolTip();
}

void TabStripWindow::ShowToolTip() {
  ControlWindow::ShowToolTip();
  const auto tabs = strip_.Tabs();
  for (std::size_t i = 0; i < tabs.size(); ++i) {
    RECT area;
    if (!Send(TCM_GETITEMRECT, i, reinterpret_cast<LPARAM>(&area))) return;
    form_.Tips().Set(Handle(), i + 1, area, tabs[i].toolTip);
  }
}

void TabStripWindow::ShowChoice() {
  const int index = strip_.SelectedItem - 1;
  if (Send(TCM_GETCURSEL) != index) Send(TCM_SETCURSEL, static_cast<WPARAM>(index));
}

void TabStripWindow::OnNotification(UINT notification) {
  if (notification != TCN_SELCHANGE) return;
  const auto index = static_cast<int>(Send(TCM_GETCURSEL));
  if (form_.Tell([&] { strip_.Choose(index + 1); })) ShowChoice();
}

}  // namespace brimwork::windows

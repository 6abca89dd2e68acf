#include "bench/screen/find_dialog.h"

#include <utility>

#include "bench/screen/edit_control.h"

namespace brimwork::bench {
namespace {

constexpr int kWanted = 100;
constexpr int kMatchCase = 101;
constexpr int kWholeWord = 102;

struct Field {
  const wchar_t* className;
  const wchar_t* text;
  DWORD style;
  int id;
  Bounds bounds;
};

constexpr Field kFields[] = {
    {L"STATIC", L"Fi&nd What:", SS_LEFT, 0, {10, 13, 64, 16}},
    {L"EDIT", L"", WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL, kWanted, {78, 10, 220, 21}},
    {L"BUTTON",
     L"Find Whole Word &Only",
     WS_TABSTOP | BS_AUTOCHECKBOX,
     kWholeWord,
     {78, 40, 220, 18}},
    {L"BUTTON", L"Match Ca&se", WS_TABSTOP | BS_AUTOCHECKBOX, kMatchCase, {78, 62, 220, 18}},
    {L"BUTTON", L"&Find Next", WS_TABSTOP | BS_DEFPUSHBUTTON, IDOK, {310, 9, 84, 23}},
    {L"BUTTON", L"Cancel", WS_TABSTOP | BS_PUSHBUTTON, IDCANCEL, {310, 37, 84, 23}}};

constexpr int kDialogWidth = 404;
constexpr int kDialogHeight = 92;

}  // namespace

FindDialog::FindDialog(HWND owner, const Fonts& fonts, std::function<void(const SearchQuery&)> find)
    : find_(std::move(find)) {
  constexpr DWORD kStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU;
  RECT whole = {0, 0, kDialogWidth, kDialogHeight};
  AdjustWindowRect(&whole, kStyle, FALSE);
  Create({.className = L"BrimworkBenchFind",
          .title = L"Find",
          .style = kStyle,
          .extendedStyle = WS_EX_DLGMODALFRAME,
          .parent = owner,
          .bounds = {200, 200, static_cast<int>(whole.right - whole.left),
                     static_cast<int>(whole.bottom - whole.top)}});
  AddFields(fonts);
}

void FindDialog::AddFields(const Fonts& fonts) {
  for (const Field& field : kFields) {
    const HWND made = CreateWindowExW(
        0, field.className, field.text, WS_CHILD | WS_VISIBLE | field.style, field.bounds.left,
        field.bounds.top, field.bounds.width, field.bounds.height, Handle(),
        reinterpret_cast<HMENU>(static_cast<INT_PTR>(field.id)), GetModuleHandleW(nullptr),
        nullptr);
    SendMessageW(made, WM_SETFONT, reinterpret_cast<WPARAM>(fonts.Plain()), FALSE);
  }
}

void FindDialog::Open(const std::wstring& wanted) {
  const HWND field = GetDlgItem(Handle(), kWanted);
  if (!wanted.empty()) SetWindowTextW(field, wanted.c_str());
  ShowWindow(Handle(), SW_SHOW);
  SetFocus(field);
  SendMessageW(field, EM_SETSEL, 0, -1);
}

bool FindDialog::TakesKey(MSG& message) const {
  return IsWindowVisible(Handle()) && IsDialogMessageW(Handle(), &message);
}

LRESULT FindDialog::OnMessage(UINT message, WPARAM wide, LPARAM longer) {
  switch (message) {
    case WM_COMMAND:
      if (LOWORD(wide) == IDOK) Look();
      if (LOWORD(wide) == IDCANCEL) ShowWindow(Handle(), SW_HIDE);
      return 0;
    case WM_CLOSE:
      ShowWindow(Handle(), SW_HIDE);
      return 0;
    case DM_GETDEFID:
      return MAKELRESULT(IDOK, DC_HASDEFID);
    default:
      return Default(message, wide, longer);
  }
}

void FindDialog::Look() {
  query_ = {TextOfControl(GetDlgItem(Handle(), kWanted)),
            IsDlgButtonChecked(Handle(), kMatchCase) == BST_CHECKED,
            IsDlgButtonChecked(Handle(), kWholeWord) == BST_CHECKED};
  find_(query_);
}

}  // namespace brimwork::bench

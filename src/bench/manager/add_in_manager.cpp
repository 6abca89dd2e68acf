#include "bench/manager/add_in_manager.h"

#include <commctrl.h>

#include <string>

#include "bench/screen/faults.h"
#include "win32/wide_text.h"

namespace brimwork::bench {
namespace {

constexpr int kWidth = 540;
constexpr int kHeight = 372;

enum ControlId {
  kList = 100,
  kDetail = 101,
  kLoaded = 102,
  kAtStartup = 103,
  kForCommandLine = 104,
};

// Places within the window, in pixels.
constexpr Bounds kListPlace{10, 10, 416, 190};
constexpr Bounds kOkPlace{436, 10, 88, 24};
constexpr Bounds kCancelPlace{436, 40, 88, 24};
constexpr Bounds kDetailFrame{10, 208, 340, 124};
constexpr Bounds kDetailPlace{20, 226, 320, 98};
constexpr Bounds kBehaviorFrame{360, 208, 164, 124};
constexpr Bounds kLoadedPlace{372, 230, 144, 20};
constexpr Bounds kAtStartupPlace{372, 262, 144, 20};
constexpr Bounds kForCommandLinePlace{372, 294, 144, 20};
constexpr int kTitleWidth = 236;
constexpr int kBehaviorWidth = 158;

void AddColumn(HWND list, int index, const wchar_t* title, int width) {
  std::wstring text = title;
  LVCOLUMNW column{};
  column.mask = LVCF_TEXT | LVCF_WIDTH;
  column.pszText = text.data();
  column.cx = width;
  SendMessageW(list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(index),
               reinterpret_cast<LPARAM>(&column));
}

void SetCell(HWND list, int row, int column, const std::string& text, bool isNew) {
  std::wstring wide = win32::Wide(text);
  LVITEMW item{};
  item.mask = LVIF_TEXT;
  item.iItem = row;
  item.iSubItem = column;
  item.pszText = wide.data();
  SendMessageW(list, isNew ? LVM_INSERTITEMW : LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
}

Bounds InTheMiddleOf(HWND owner) {
  RECT rectangle{};
  GetWindowRect(owner, &rectangle);
  return {(rectangle.left + rectangle.right - kWidth) / 2,
          (rectangle.top + rectangle.bottom - kHeight) / 2, kWidth, kHeight};
}

}  // namespace

AddInManager::AddInManager(HWND owner, AddIns& addIns, const Fonts& fonts)
    : owner_(owner), addIns_(addIns), fonts_(fonts), choices_(ChoicesOf(addIns)) {
  Create({.className = L"BrimworkBenchAddInManager",
          .title = L"Add-In Manager",
          .style = WS_POPUP | WS_CAPTION | WS_SYSMENU,
          .extendedStyle = WS_EX_DLGMODALFRAME | WS_EX_CONTROLPARENT,
          .parent = owner,
          .bounds = InTheMiddleOf(owner)});
  MakeControls();
  FillList();
}

AddInManager::~AddInManager() { Destroy(); }

HWND AddInManager::MakeControl(const wchar_t* className, const wchar_t* text, DWORD style,
                               const Bounds& place, int id) {
  const HWND control = CreateWindowExW(0, className, text, WS_CHILD | WS_VISIBLE | style,
                                       place.left, place.top, place.width, place.height, Handle(),
                                       reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                                       GetModuleHandleW(nullptr), nullptr);
  CheckSystem(control != nullptr, "a control of the Add-In Manager");
  SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(fonts_.Plain()), FALSE);
  return control;
}

// The order is that of the Tab key.
void AddInManager::MakeControls() {
  list_ = MakeControl(WC_LISTVIEWW, L"",
                      WS_BORDER | WS_TABSTOP | LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS,
                      kListPlace, kList);
  SendMessageW(list_, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
  AddColumn(list_, 0, L"Available Add-Ins", kTitleWidth);
  AddColumn(list_, 1, L"Load Behavior", kBehaviorWidth);
  MakeControl(L"BUTTON", L"OK", WS_TABSTOP | BS_DEFPUSHBUTTON, kOkPlace, IDOK);
  MakeControl(L"BUTTON", L"Cancel", WS_TABSTOP, kCancelPlace, IDCANCEL);
  MakeControl(L"BUTTON", L"Description", BS_GROUPBOX, kDetailFrame, -1);
  MakeControl(L"EDIT", L"", ES_MULTILINE | ES_READONLY | WS_VSCROLL, kDetailPlace, kDetail);
  MakeControl(L"BUTTON", L"Load Behavior", BS_GROUPBOX, kBehaviorFrame, -1);
  MakeControl(L"BUTTON", L"&Loaded/Unloaded", WS_TABSTOP | BS_AUTOCHECKBOX, kLoadedPlace, kLoaded);
  MakeControl(L"BUTTON", L"Load on &Startup", WS_TABSTOP | BS_AUTOCHECKBOX, kAtStartupPlace,
              kAtStartup);
  MakeControl(L"BUTTON", L"&Command Line", WS_TABSTOP | BS_AUTOCHECKBOX, kForCommandLinePlace,
              kForCommandLine);
}

void AddInManager::FillList() {
  for (std::size_t row = 0; row < choices_.size(); ++row) {
    SetCell(list_, static_cast<int>(row), 0, choices_[row].title, true);
    ShowRow(row);
  }
  LVITEMW first{};
  first.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
  first.state = first.stateMask;
  SendMessageW(list_, LVM_SETITEMSTATE, 0, reinterpret_cast<LPARAM>(&first));
  ShowChoice();
}

void AddInManager::ShowRow(std::size_t row) {
  SetCell(list_, static_cast<int>(row), 1, BehaviorText(choices_[row]), false);
}

void AddInManager::ShowTick(int id, bool isTicked) {
  const HWND box = GetDlgItem(Handle(), id);
  EnableWindow(box, chosen_ >= 0);
  SendMessageW(box, BM_SETCHECK, isTicked ? BST_CHECKED : BST_UNCHECKED, 0);
}

bool AddInManager::IsTicked(int id) const {
  return SendMessageW(GetDlgItem(Handle(), id), BM_GETCHECK, 0, 0) == BST_CHECKED;
}

void AddInManager::ShowChoice() {
  chosen_ = static_cast<int>(
      SendMessageW(list_, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), MAKELPARAM(LVNI_SELECTED, 0)));
  const AddInChoice none;
  const AddInChoice& choice = chosen_ < 0 ? none : choices_[static_cast<std::size_t>(chosen_)];
  SetWindowTextW(GetDlgItem(Handle(), kDetail), win32::Wide(DetailText(choice)).c_str());
  ShowTick(kLoaded, choice.isLoaded);
  ShowTick(kAtStartup, choice.atStartup);
  ShowTick(kForCommandLine, choice.forCommandLine);
}

void AddInManager::TakeChoice() {
  if (chosen_ < 0) return;
  const auto row = static_cast<std::size_t>(chosen_);
  choices_[row].isLoaded = IsTicked(kLoaded);
  choices_[row].atStartup = IsTicked(kAtStartup);
  choices_[row].forCommandLine = IsTicked(kForCommandLine);
  ShowRow(row);
}

void AddInManager::Run() {
  isOpen_ = true;
  EnableWindow(owner_, FALSE);
  ShowWindow(Handle(), SW_SHOW);
  SetFocus(list_);
  MSG message;
  while (isOpen_ && GetMessageW(&message, nullptr, 0, 0) > 0) {
    if (IsDialogMessageW(Handle(), &message)) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  if (message.message == WM_QUIT) PostQuitMessage(static_cast<int>(message.wParam));
  EnableWindow(owner_, TRUE);  // before the window goes, so that the owner is the active one then
  ShowWindow(Handle(), SW_HIDE);
  SetActiveWindow(owner_);
}

LRESULT AddInManager::OnMessage(UINT message, WPARAM wide, LPARAM longer) {
  switch (message) {
    case WM_COMMAND:
      OnCommand(LOWORD(wide));
      return 0;
    case WM_NOTIFY:
      OnNotify(*reinterpret_cast<const NMHDR*>(longer));
      return 0;
    case WM_CLOSE:
      isOpen_ = false;
      return 0;
    default:
      return Default(message, wide, longer);
  }
}

void AddInManager::OnCommand(int id) {
  switch (id) {
    case IDOK:
      Accept();
      break;
    case IDCANCEL:
      isOpen_ = false;
      break;
    case kLoaded:
    case kAtStartup:
    case kForCommandLine:
      TakeChoice();
      break;
    default:
      break;
  }
}

// A double click loads or unloads, as one on the box does.
void AddInManager::OnNotify(const NMHDR& notice) {
  if (notice.idFrom != kList) return;
  if (notice.code == LVN_ITEMCHANGED) ShowChoice();
  if (notice.code == NM_DBLCLK && chosen_ >= 0) {
    ShowTick(kLoaded, !IsTicked(kLoaded));
    TakeChoice();
  }
}

void AddInManager::Accept() {
  const std::vector<std::string> failures = Apply(addIns_, choices_);
  if (failures.empty()) {
    isOpen_ = false;
    return;
  }
  std::string text;
  for (const std::string& failure : failures) text += (text.empty() ? "" : "\r\n\r\n") + failure;
  Warn(Handle(), text);
  choices_ = ChoicesOf(addIns_);
  for (std::size_t row = 0; row < choices_.size(); ++row) ShowRow(row);
  ShowChoice();
}

}  // namespace brimwork::bench

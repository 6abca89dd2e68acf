#include "windows/forms/native_form_host.h"

#include <commctrl.h>

#include <gmock/gmock.h>

#include <optional>

#include "windows/forms/native_forms.h"

namespace brimwork::windows {
namespace native_form_host_test {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

RECT PlaceInside(HWND window) {
  RECT place;
  GetWindowRect(window, &place);
  MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&place), 2);
  return place;
}

TEST(NativeFormHost, ALoadedFormHasAHiddenWindowOfItsSize) {
  NativeForms forms;
  frmSample form(forms.host);
  form.Load();
  const HWND window = forms.WindowOf(form);
  ASSERT_TRUE(IsWindow(window));
  EXPECT_FALSE(IsWindowVisible(window));
  EXPECT_EQ(forms.TextOf(window), "Sample");
  EXPECT_EQ(GetWindow(window, GW_OWNER), forms.owner);
  RECT inside;
  GetClientRect(window, &inside);
  EXPECT_EQ(inside.right, form.ScaleWidth());
  EXPECT_EQ(inside.bottom, form.ScaleHeight());
}

TEST(NativeFormHost, ShownHiddenAndUnloadedTheWindowFollows) {
  NativeSample sample;
  const HWND window = sample.WindowOf(sample.form);
  EXPECT_TRUE(IsWindowVisible(window));
  EXPECT_EQ(GetActiveWindow(), window);
  sample.form.Hide();
  EXPECT_FALSE(IsWindowVisible(window));
  sample.form.Show();
  EXPECT_TRUE(IsWindowVisible(window));
  sample.form.Unload();
  EXPECT_FALSE(IsWindow(window));
}

TEST(NativeFormHost, ControlsAreWhereTheirTableSays) {
  NativeSample sample;
  const RECT box = PlaceInside(sample.WindowOf(sample.form.txtName));
  EXPECT_EQ(box.left, 72);
  EXPECT_EQ(box.top, 6);
  EXPECT_EQ(box.right, 172);
  EXPECT_EQ(box.bottom, 27);
  const HWND option = sample.WindowOf(sample.form.optColor(1));
  EXPECT_EQ(GetParent(option), sample.WindowOf(sample.form.fraColor));
  EXPECT_EQ(PlaceInside(option).top, 36);
  EXPECT_EQ(sample.TextOf(sample.form.txtName), "Anne");
  EXPECT_EQ(sample.TextOf(sample.form.chkReady), "&Ready");
  EXPECT_EQ(sample.TextOf(sample.form.sbStatus), "Ready");
}

TEST(NativeFormHost, ADropDownListIsAsHighAsItsPlace) {
  NativeSample sample;
  const RECT list = PlaceInside(sample.WindowOf(sample.form.cmbWords));
  EXPECT_EQ(list.top, 96);
  EXPECT_EQ(list.bottom, 96 + 21);
}

TEST(NativeFormHost, ADropDownListShowsAllOfItsFewItems) {
  NativeSample sample;
  const HWND window = sample.WindowOf(sample.form.cmbWords);
  SendMessageW(window, CB_SHOWDROPDOWN, TRUE, 0);
  COMBOBOXINFO info = {};
  info.cbSize = sizeof info;
  GetComboBoxInfo(window, &info);
  RECT inside;
  GetClientRect(info.hwndList, &inside);
  EXPECT_GE(inside.bottom, 3 * SendMessageW(window, CB_GETITEMHEIGHT, 0, 0));
}

TEST(NativeFormHost, LengthsGrowWithTheScreensDots) {
  NativeForms forms;
  NativeFormHost host({}, {}, {}, ScreenScale{144});
  frmSample form(host);
  form.Load();
  RECT inside;
  GetClientRect(forms.WindowOf(form), &inside);
  EXPECT_EQ(inside.right, 435);
  const RECT box = PlaceInside(host.HandleOf(form.txtName));
  EXPECT_EQ(box.left, 108);
  EXPECT_EQ(box.right - box.left, 150);
  EXPECT_NEAR(host.Measure("Processing", {}).width, forms.host.Measure("Processing", {}).width, 5);
  EXPECT_GT(host.MeasurePixels("Processing", {}).cx, forms.host.Measure("Processing", {}).width);
}

TEST(NativeFormHost, ChangesOfTheDataAreShown) {
  NativeSample sample;
  frmSample& form = sample.form;
  form.Caption = "Größe";
  form.chkReady.Caption = "Done";
  form.chkReady.Value = true;
  form.lstWords.Visible = false;
  form.cmdOk.Enabled = false;
  form.txtName.Move(80, 8, 50, 20);
  form.sbStatus.SimpleText = "Busy";
  EXPECT_EQ(sample.TextOf(sample.WindowOf(form)), "Größe");
  EXPECT_EQ(sample.TextOf(form.chkReady), "Done");
  EXPECT_EQ(SendMessageW(sample.WindowOf(form.chkReady), BM_GETCHECK, 0, 0), BST_CHECKED);
  EXPECT_FALSE(IsWindowVisible(sample.WindowOf(form.lstWords)));
  EXPECT_FALSE(IsWindowEnabled(sample.WindowOf(form.cmdOk)));
  EXPECT_EQ(PlaceInside(sample.WindowOf(form.txtName)).left, 80);
  EXPECT_EQ(sample.TextOf(form.sbStatus), "Busy");
}

TEST(NativeFormHost, WhatLiesInADisabledFrameLooksSo) {
  NativeSample sample;
  sample.form.fraColor.Enabled = false;
  EXPECT_FALSE(IsWindowEnabled(sample.WindowOf(sample.form.optColor(0))));
  sample.form.fraColor.Enabled = true;
  EXPECT_TRUE(IsWindowEnabled(sample.WindowOf(sample.form.optColor(0))));
}

TEST(NativeFormHost, TheDefaultButtonIsMarkedUnlessAnotherHasTheFocus) {
  NativeSample sample;
  const auto isMarked = [&](const Control& button) {
    return (GetWindowLongW(sample.WindowOf(button), GWL_STYLE) & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
  };
  EXPECT_TRUE(isMarked(sample.form.cmdOk));
  sample.form.cmdLeave.SetFocus();
  EXPECT_FALSE(isMarked(sample.form.cmdOk));
  EXPECT_TRUE(isMarked(sample.form.cmdLeave));
  sample.form.txtName.SetFocus();
  EXPECT_TRUE(isMarked(sample.form.cmdOk));
}

TEST(NativeFormHost, ItsBorderSaysWhatTheWindowCanDo) {
  NativeSample sample;
  const auto style = static_cast<DWORD>(GetWindowLongW(sample.WindowOf(sample.form), GWL_STYLE));
  EXPECT_TRUE(style & WS_THICKFRAME);
  EXPECT_TRUE(style & WS_SYSMENU);
  EXPECT_FALSE(style & WS_MAXIMIZEBOX);
}

TEST(NativeFormHost, AWindowThatIsSizedTellsTheFormItsInside) {
  NativeSample sample;
  SetWindowPos(sample.WindowOf(sample.form), nullptr, 0, 0, 400, 350, SWP_NOMOVE | SWP_NOZORDER);
  RECT inside;
  GetClientRect(sample.WindowOf(sample.form), &inside);
  EXPECT_EQ(sample.form.ScaleWidth(), inside.right);
  EXPECT_EQ(sample.form.ScaleHeight(), inside.bottom);
  EXPECT_THAT(sample.form.events, ElementsAre("Form_Resize"));
}

TEST(NativeFormHost, TheCloseButtonUnloadsTheForm) {
  NativeSample sample;
  const HWND window = sample.WindowOf(sample.form);
  PostMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0);
  sample.messages.DoEvents();
  EXPECT_FALSE(sample.form.IsLoaded());
  EXPECT_FALSE(IsWindow(window));
}

TEST(NativeFormHost, ACloseButtonThatIsSwitchedOffDoesNothing) {
  NativeSample sample;
  EnableMenuItem(GetSystemMenu(sample.WindowOf(sample.form), FALSE), SC_CLOSE,
                 MF_BYCOMMAND | MF_GRAYED);
  PostMessageW(sample.WindowOf(sample.form), WM_SYSCOMMAND, SC_CLOSE, 0);
  sample.messages.DoEvents();
  EXPECT_TRUE(sample.form.IsLoaded());
}

TEST(NativeFormHost, TimersTickUntilTheyAreStopped) {
  NativeSample sample;
  sample.form.tmrClock.Interval = 20;
  sample.Wait(60);
  EXPECT_THAT(sample.form.events, IsEmpty());
  sample.form.onTimer = [&] { sample.form.tmrClock.Enabled = false; };
  sample.form.tmrClock.Enabled = true;
  sample.Wait(150);
  EXPECT_THAT(sample.form.events, ElementsAre("tmrClock Timer"));
}

TEST(NativeFormHost, AnErrorOfAnEventComesToTheHandlerAndTheFormGoesOn) {
  NativeSample sample;
  sample.form.cmdOk.OnClick = [] { throw RunTimeError(5, "no such thing"); };
  SendMessageW(sample.WindowOf(sample.form.cmdOk), BM_CLICK, 0, 0);
  EXPECT_THAT(sample.errors, ElementsAre("no such thing"));
  SendMessageW(sample.WindowOf(sample.form.chkReady), BM_CLICK, 0, 0);
  EXPECT_TRUE(sample.form.chkReady.Value);
}

TEST(NativeFormHost, AHandlerThatFailsItselfIsPassedOver) {
  NativeForms forms;
  NativeFormHost host({}, {}, [](const std::exception&) { throw std::runtime_error("worse"); });
  frmSample form(host);
  form.Show();
  form.cmdOk.OnClick = [] { throw RunTimeError(5, "bad"); };
  SendMessageW(host.HandleOf(form.cmdOk), BM_CLICK, 0, 0);
  EXPECT_TRUE(form.IsLoaded());
}

TEST(NativeFormHost, WhatKeepsTheFormsIsHeldWhileAnEventIsHandled) {
  NativeSample sample;
  const auto kept = std::make_shared<int>();
  sample.host.KeepAliveBy([&] { return kept; });
  long heldMeanwhile = 0;
  sample.form.cmdOk.OnClick = [&] { heldMeanwhile = kept.use_count(); };
  SendMessageW(sample.WindowOf(sample.form.cmdOk), BM_CLICK, 0, 0);
  EXPECT_GT(heldMeanwhile, 1);
  EXPECT_EQ(kept.use_count(), 1);
}

TEST(NativeFormHost, AFormMayUnloadItselfInItsOwnClick) {
  NativeSample sample;
  const HWND window = sample.WindowOf(sample.form);
  bool isThere = false, isSeen = true;
  sample.form.cmdOk.OnClick = [&] {
    sample.form.Unload();
    isThere = IsWindow(window);
    isSeen = IsWindowVisible(window);
  };
  SendMessageW(sample.WindowOf(sample.form.cmdOk), BM_CLICK, 0, 0);
  EXPECT_TRUE(isThere) << "the system is still at work in it";
  EXPECT_FALSE(isSeen);
  EXPECT_FALSE(sample.form.IsLoaded());
  EXPECT_FALSE(IsWindow(window));
}

TEST(NativeFormHost, AFormMayBeLoadedAnewInItsOwnClick) {
  NativeSample sample;
  const HWND window = sample.WindowOf(sample.form);
  sample.form.cmdOk.OnClick = [&] {
    sample.form.Unload();
    sample.form.Show();
  };
  SendMessageW(sample.WindowOf(sample.form.cmdOk), BM_CLICK, 0, 0);
  EXPECT_FALSE(IsWindow(window));
  EXPECT_TRUE(IsWindowVisible(sample.WindowOf(sample.form)));
}

/// A form that an event destroys. The event is not part of what it destroys.
TEST(NativeFormHost, AFormMayBeDestroyedByAnyOfItsEvents) {
  NativeForms forms;
  for (const auto event : {0, 1, 2, 3}) {
    auto form = std::make_unique<frmSample>(forms.host);
    form->Show();
    const HWND window = forms.WindowOf(*form);
    const auto destroy = [&form] { form.reset(); };
    form->lstWords.OnClick = destroy;
    form->txtNotes.OnChange = destroy;
    form->tabPages.OnClick = destroy;
    form->cmbWords.OnGotFocus = destroy;
    const auto click = [&](const Control& control, int x, int y) {
      const HWND clicked = forms.WindowOf(control);
      SendMessageW(clicked, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
      SendMessageW(clicked, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    };
    if (event == 0) click(form->lstWords, 5, 5);
    if (event == 1) SendMessageW(forms.WindowOf(form->txtNotes), WM_CHAR, 'x', 1);
    if (event == 2) click(form->tabPages, 60, 8);
    if (event == 3) click(form->cmbWords, 5, 5);
    ReleaseCapture();
    forms.messages.DoEvents();
    EXPECT_EQ(form, nullptr) << "event " << event;
    EXPECT_FALSE(IsWindow(window)) << "event " << event;
  }
}

TEST(NativeFormHost, AWindowThatGoesWithItsOwnerUnloadsTheForm) {
  NativeSample sample;
  const HWND window = sample.WindowOf(sample.form);
  DestroyWindow(sample.owner);
  EXPECT_FALSE(sample.form.IsLoaded());
  EXPECT_FALSE(IsWindow(window));
  EXPECT_THAT(sample.form.events, Contains("Form_Unload"));
}

bool HasClass(const std::wstring& name) {
  WNDCLASSEXW record = {};
  record.cbSize = sizeof record;
  return GetClassInfoExW(OwnModule(), name.c_str(), &record) != 0;
}

TEST(NativeFormHost, NothingOfItIsLeftWhenItGoes) {
  std::optional<NativeFormHost> host(std::in_place, ProjectPicture, FormOwner());
  wchar_t name[100] = {};
  HWND window = nullptr;
  {
    frmSample form(*host);
    form.Show();
    window = NativeForms::WindowOf(form);
    GetClassNameW(window, name, 100);
    EXPECT_TRUE(HasClass(name));
  }
  EXPECT_FALSE(IsWindow(window));
  host.reset();
  EXPECT_FALSE(HasClass(name));
}

TEST(NativeFormHost, ManyFormsLeaveNoObjectsOfTheSystemsBehind) {
  const auto counts = [] {
    return std::pair(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS),
                     GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS));
  };
  const auto showOne = [] {
    NativeFormHost host(ProjectPicture, {});
    frmSample form(host);
    form.Show();
    ThreadMessages().DoEvents();
  };
  showOne();
  const auto before = counts();
  if (before.first == 0) GTEST_SKIP() << "this system does not count them";
  for (int i = 0; i < 5; ++i) showOne();
  EXPECT_EQ(counts(), before);
}

HWND TipsOf(HWND form) {
  HWND tips = nullptr;
  while ((tips = FindWindowExW(nullptr, tips, TOOLTIPS_CLASSW, nullptr)) != nullptr) {
    if (GetWindow(tips, GW_OWNER) == form) break;
  }
  return tips;
}

TEST(NativeFormHost, AToolTipAppearsWhereThePointerRests) {
  NativeSample sample;
  BRIMWORK_NEEDS_KEYBOARD(sample);
  const HWND tips = TipsOf(sample.WindowOf(sample.form));
  RECT box;
  GetWindowRect(sample.WindowOf(sample.form.txtName), &box);
  SetCursorPos(box.left - 30, box.top + 5);
  sample.Wait(50);
  EXPECT_FALSE(IsWindowVisible(tips));
  SetCursorPos(box.left + 10, box.top + 5);
  sample.Wait(GetDoubleClickTime() + 400);
  EXPECT_TRUE(IsWindowVisible(tips));
  EXPECT_EQ(sample.form.events, std::vector<std::string>());
}

TEST(NativeFormHost, EachControlAndTabHasItsToolTip) {
  NativeSample sample;
  sample.form.txtName.ToolTipText = "Another tip";
  const HWND tips = TipsOf(sample.WindowOf(sample.form));
  ASSERT_NE(tips, nullptr);
  const auto textOf = [&](const Control& control, UINT_PTR part) {
    wchar_t text[200] = {};
    TTTOOLINFOW tool = {};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.hwnd = sample.WindowOf(control);
    tool.uId = part;
    tool.lpszText = text;
    SendMessageW(tips, TTM_GETTEXTW, 0, reinterpret_cast<LPARAM>(&tool));
    return win32::Narrow(text);
  };
  EXPECT_EQ(textOf(sample.form.txtName, 0), "Another tip");
  EXPECT_EQ(textOf(sample.form.tabPages, 1), "The first tab");
  EXPECT_EQ(textOf(sample.form.tabPages, 2), "");
}

}  // namespace native_form_host_test
}  // namespace brimwork::windows

// Menus and toolbars on the screen.
#include "bench/screen/bar_set.h"

#include <gmock/gmock.h>

#include "bench/screen/menu_table.h"
#include "bench/screen/screen_fixture.h"
#include "bench/screen/strokes.h"
#include "memory/usual_commands.h"

namespace brimwork::bench {
namespace bars_test {

using testing::ElementsAre;
using testing::HasSubstr;

struct BarsOnScreen : ScreenFixture {
  std::shared_ptr<MemoryCommandBar> AddBar(std::string_view name, int position) {
    const auto bar = bench.vbe.commandBars.Add({.name = name, .position = position});
    bar->SetVisible(true);
    return bar;
  }

  static std::shared_ptr<MemoryCommandBarControl> AddControl(MemoryCommandBarControls& entries,
                                                             std::string_view caption,
                                                             int type = control_type::kButton) {
    auto control = std::static_pointer_cast<MemoryCommandBarControl>(entries.Add({.type = type}));
    control->SetCaption(caption);
    return control;
  }

  static void Change(MemoryCommandBarControl& control, auto change) {
    ControlDetails details = control.Details();
    change(details);
    control.SetDetails(details);
  }

  /// The toolbar's window, wherever it stands.
  HWND BarAt(const MemoryCommandBarControl& control, POINT& place, bool floats) {
    const Bounds bounds = windows->BoundsOf(control);
    place = {bounds.left + bounds.width / 2, bounds.top + bounds.height / 2};
    if (!floats) ClientToScreen(windows->Frame(), &place);
    const HWND window = WindowFromPoint(place);
    ScreenToClient(window, &place);
    return window;
  }

  void Click(const MemoryCommandBarControl& control, bool floats = false) {
    POINT place{};
    const HWND window = BarAt(control, place, floats);
    const LPARAM where = MAKELPARAM(place.x, place.y);
    SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, where);
    SendMessageW(window, WM_LBUTTONUP, 0, where);
    Pump();
  }
};

TEST_F(BarsOnScreen, StandUnderEachOtherInTheirRows) {
  const auto bar = AddBar("Mine", bar_position::kTop);
  AddControl(*bar->Entries(), "Button");
  bar->SetRowIndex(3);
  Show();
  const Bounds standard = windows->BoundsOf(*bench.bars.standard);
  const Bounds mine = windows->BoundsOf(*bar);
  EXPECT_EQ(standard.top, 0);
  EXPECT_EQ(mine.top, standard.height);
  EXPECT_GT(mine.width, 30);
}

TEST_F(BarsOnScreen, DockAtEveryEdge) {
  const auto bar = AddBar("Mine", bar_position::kLeft);
  AddControl(*bar->Entries(), "Button");
  AddControl(*bar->Entries(), "Other");
  const Bounds left = windows->BoundsOf(*bar);
  EXPECT_EQ(left.left, 0);
  bar->SetPosition(bar_position::kBottom);
  const Bounds bottom = windows->BoundsOf(*bar);
  RECT room{};
  GetClientRect(windows->Frame(), &room);
  EXPECT_EQ(bottom.top + bottom.height, room.bottom);
  EXPECT_GT(bottom.width, bottom.height);
  bar->SetPosition(bar_position::kRight);
  const Bounds right = windows->BoundsOf(*bar);
  EXPECT_EQ(right.left + right.width, room.right);
}

TEST_F(BarsOnScreen, FloatWhereTheModelSays) {
  const auto bar = AddBar("Mine", bar_position::kFloating);
  const auto control = AddControl(*bar->Entries(), "Button");
  bar->SetLeft(300);
  bar->SetTop(200);
  const Bounds bounds = windows->BoundsOf(*bar);
  EXPECT_EQ(bounds.left, 300);
  EXPECT_EQ(bounds.top, 200);
  bool isClicked = false;
  control->action = [&] { isClicked = true; };
  Click(*control, true);
  EXPECT_TRUE(isClicked);
}

TEST_F(BarsOnScreen, GoWhenTheyAreHiddenOrDeleted) {
  const auto bar = AddBar("Mine", bar_position::kTop);
  AddControl(*bar->Entries(), "Button");
  EXPECT_NE(windows->BoundsOf(*bar), Bounds{});
  bar->SetVisible(false);
  EXPECT_EQ(windows->BoundsOf(*bar), Bounds{});
  bar->SetVisible(true);
  EXPECT_NE(windows->BoundsOf(*bar), Bounds{});
  bar->Delete();
  Show();
  EXPECT_EQ(windows->BoundsOf(*bar), Bounds{});
}

TEST_F(BarsOnScreen, ExecuteTheControlThatIsClicked) {
  const auto bar = AddBar("Mine", bar_position::kTop);
  const auto control = AddControl(*bar->Entries(), "Button");
  int clicks = 0;
  control->action = [&] { ++clicks; };
  Click(*control);
  EXPECT_EQ(clicks, 1);
}

TEST_F(BarsOnScreen, TakeTypedTextInBeforeAClick) {
  auto& pane = OpenModule();
  const auto bar = AddBar("Mine", bar_position::kTop);
  const auto control = AddControl(*bar->Entries(), "Button");
  std::string seen;
  control->action = [&] { seen = pane.Code()->Lines(1, 1); };
  const HWND edit = EditIn(pane.ContainingWindow());
  SelectUnits(edit, {0, 0});
  Type(edit, "'");
  Click(*control);
  EXPECT_EQ(seen, "'Sub One()");
  EXPECT_EQ(GetFocus(), edit) << "a toolbar takes no focus";
}

TEST_F(BarsOnScreen, AnswerNoClickOnADisabledControl) {
  const auto bar = AddBar("Mine", bar_position::kTop);
  const auto control = AddControl(*bar->Entries(), "Button");
  bool isClicked = false;
  control->action = [&] { isClicked = true; };
  Change(*control, [](ControlDetails& details) { details.enabled = false; });
  Click(*control);
  EXPECT_FALSE(isClicked);
}

TEST_F(BarsOnScreen, LetAControlDeleteItsOwnBar) {
  const auto bar = AddBar("Mine", bar_position::kTop);
  const auto control = AddControl(*bar->Entries(), "Button");
  control->action = [&] { bar->Delete(); };
  Click(*control);
  windows->Settle();
  EXPECT_EQ(windows->BoundsOf(*bar), Bounds{});
}

TEST_F(BarsOnScreen, HaveNoRoomForHiddenControls) {
  const auto bar = AddBar("Mine", bar_position::kTop);
  const auto first = AddControl(*bar->Entries(), "First");
  const auto second = AddControl(*bar->Entries(), "Second");
  const int before = windows->BoundsOf(*second).left;
  Change(*first, [](ControlDetails& details) { details.visible = false; });
  EXPECT_LT(windows->BoundsOf(*second).left, before);
  EXPECT_EQ(windows->BoundsOf(*first), Bounds{});
}

TEST_F(BarsOnScreen, ShowCaptionsAsTheStyleSays) {
  const auto bar = AddBar("Mine", bar_position::kTop);
  const auto control = AddControl(*bar->Entries(), "A rather long caption");
  Change(*control, [](ControlDetails& details) { details.faceId = command::kCut; });
  EXPECT_EQ(windows->BoundsOf(*control).width, 22) << "a picture needs no caption";
  control->SetStyle(button_style::kIconAndCaption);
  const int both = windows->BoundsOf(*control).width;
  control->SetStyle(button_style::kCaption);
  const int caption = windows->BoundsOf(*control).width;
  EXPECT_GT(caption, 60);
  EXPECT_GT(both, caption);
}

TEST_F(BarsOnScreen, PasteFacesFromTheUsersClipboard) {
  const Stroke strokes[] = {Area(0xFF336699, 4, 4, 11, 11)};
  PutFaceOnClipboard(windows->Frame(), Drawn(strokes));
  const std::string name = windows->FaceFromClipboard();
  EXPECT_NE(name, "");
  EXPECT_EQ(windows->FaceFromClipboard(), name) << "the same picture has one name";
  const auto bar = AddBar("Mine", bar_position::kTop);
  const auto control = AddControl(*bar->Entries(), "A rather long caption");
  bench.clipboard.SetData(name);
  control->PasteFace();
  EXPECT_EQ(windows->BoundsOf(*control).width, 22);
  ASSERT_TRUE(OpenClipboard(windows->Frame()));
  EmptyClipboard();
  CloseClipboard();
  EXPECT_EQ(windows->FaceFromClipboard(), "");
  windows->FaceToClipboard(*control);
  EXPECT_EQ(windows->FaceFromClipboard(), name);
}

TEST_F(BarsOnScreen, DragABarOffItsEdge) {
  const Bounds bounds = windows->BoundsOf(*bench.bars.standard);
  POINT grip = {bounds.left + 3, bounds.top + 10};
  const HWND bar = ChildWindowFromPointEx(windows->Frame(), grip, CWP_ALL);
  SendMessageW(bar, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 10));
  EXPECT_EQ(GetCapture(), windows->Frame());
  SendMessageW(windows->Frame(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(400, 300));
  EXPECT_EQ(bench.bars.standard->Position(), bar_position::kFloating);
  SendMessageW(windows->Frame(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(5, 300));
  EXPECT_EQ(bench.bars.standard->Position(), bar_position::kLeft);
  SendMessageW(windows->Frame(), WM_LBUTTONUP, 0, MAKELPARAM(5, 300));
  EXPECT_EQ(GetCapture(), nullptr);
  EXPECT_EQ(windows->BoundsOf(*bench.bars.standard).left, 0);
}

std::vector<std::string> TextsOf(HMENU menu) {
  std::vector<std::string> texts;
  for (int item = 0; item < GetMenuItemCount(menu); ++item) {
    wchar_t text[200] = L"";
    GetMenuStringW(menu, static_cast<UINT>(item), text, 200, MF_BYPOSITION);
    texts.push_back(win32::Narrow(text));
  }
  return texts;
}

HMENU Opened(HWND frame, HMENU menu) {
  SendMessageW(frame, WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu), 0);
  return menu;
}

struct MenusOnScreen : BarsOnScreen {
  /// The menu of the menu bar with that text, filled as when it opens.
  HMENU Menu(std::string_view caption) {
    const HMENU bar = GetMenu(windows->Frame());
    const auto texts = TextsOf(bar);
    const auto found = std::ranges::find(texts, caption);
    if (found == texts.end()) return nullptr;
    return Opened(windows->Frame(), GetSubMenu(bar, static_cast<int>(found - texts.begin())));
  }

  void Choose(HMENU menu, int item) {
    SendMessageW(windows->Frame(), WM_COMMAND, GetMenuItemID(menu, item), 0);
    Pump();
  }
};

TEST_F(MenusOnScreen, HaveTheEntriesOfTheMenuBar) {
  EXPECT_THAT(TextsOf(GetMenu(windows->Frame())),
              ElementsAre("&File", "&Edit", "&View", "&Project", "F&ormat", "&Debug", "&Run",
                          "&Add-Ins", "&Window", "&Help"));
}

TEST_F(MenusOnScreen, FollowTheMenuBar) {
  const auto added = AddControl(*bench.bars.menuBar->Entries(), "&Mine", control_type::kPopup);
  AddControl(*added->Entries(), "&Entry");
  Show();
  EXPECT_THAT(TextsOf(Menu("&Mine")), ElementsAre("&Entry"));
  added->Delete();
  Show();
  EXPECT_EQ(Menu("&Mine"), nullptr);
}

TEST_F(MenusOnScreen, AreFilledWhenTheyOpen) {
  AddControl(*bench.bars.addIns->Entries(), "&Mine")->SetBeginGroup(true);
  const auto texts = TextsOf(Menu("&Add-Ins"));
  ASSERT_GE(texts.size(), 2U);
  EXPECT_EQ(texts.back(), "&Mine");
  EXPECT_EQ(texts[texts.size() - 2], "") << "a separator";
}

TEST_F(MenusOnScreen, ShowKeysStatesAndWhatIsDisabled) {
  const auto control = AddControl(*bench.bars.addIns->Entries(), "&Mine");
  Change(*control, [](ControlDetails& details) {
    details.shortcutText = "Ctrl+M";
    details.enabled = false;
    details.state = button_state::kDown;
  });
  const HMENU menu = Menu("&Add-Ins");
  const int last = GetMenuItemCount(menu) - 1;
  EXPECT_EQ(TextsOf(menu).back(), "&Mine\tCtrl+M");
  const UINT state = GetMenuState(menu, static_cast<UINT>(last), MF_BYPOSITION);
  EXPECT_TRUE(state & MF_GRAYED);
  EXPECT_TRUE(state & MF_CHECKED);
}

TEST_F(MenusOnScreen, LeaveHiddenEntriesOut) {
  const auto control = AddControl(*bench.bars.addIns->Entries(), "&Mine");
  Change(*control, [](ControlDetails& details) { details.visible = false; });
  EXPECT_THAT(TextsOf(Menu("&Add-Ins")), testing::Not(testing::Contains("&Mine")));
}

TEST_F(MenusOnScreen, ExecuteWhatIsChosen) {
  const auto control = AddControl(*bench.bars.addIns->Entries(), "&Mine");
  int clicks = 0;
  control->action = [&] { ++clicks; };
  const HMENU menu = Menu("&Add-Ins");
  Choose(menu, GetMenuItemCount(menu) - 1);
  EXPECT_EQ(clicks, 1);
}

TEST_F(MenusOnScreen, ExecuteNothingThatIsGone) {
  auto control = AddControl(*bench.bars.addIns->Entries(), "&Mine");
  int clicks = 0;
  control->action = [&] { ++clicks; };
  const HMENU menu = Menu("&Add-Ins");
  control->Delete();
  control.reset();
  Choose(menu, GetMenuItemCount(menu) - 1);
  EXPECT_EQ(clicks, 0);
}

TEST_F(MenusOnScreen, OpenPopupsWithinMenus) {
  const auto popup = AddControl(*bench.bars.addIns->Entries(), "&More", control_type::kPopup);
  AddControl(*popup->Entries(), "&Inner");
  const HMENU menu = Menu("&Add-Ins");
  const HMENU inner = Opened(windows->Frame(), GetSubMenu(menu, GetMenuItemCount(menu) - 1));
  EXPECT_THAT(TextsOf(inner), ElementsAre("&Inner"));
}

TEST_F(MenusOnScreen, ListTheOpenWindows) {
  const auto code = OpenModule().ContainingWindow();
  bench.PaneOf(form);
  Show();
  const HMENU menu = Menu("&Window");
  const auto texts = TextsOf(menu);
  EXPECT_THAT(texts, testing::Contains("&1 " + code->Caption()));
  const auto place = std::ranges::find(texts, "&1 " + code->Caption()) - texts.begin();
  Choose(menu, static_cast<int>(place));
  EXPECT_EQ(bench.vbe.ActiveWindow(), code);
}

TEST_F(MenusOnScreen, ListTheUsersToolbarsUnderView) {
  AddBar("Mine", bar_position::kTop);
  const HMENU view = Menu("&View");
  const auto texts = TextsOf(view);
  const auto place = std::ranges::find(texts, "&Toolbars") - texts.begin();
  const HMENU toolbars = Opened(windows->Frame(), GetSubMenu(view, static_cast<int>(place)));
  EXPECT_EQ(TextsOf(toolbars).back(), "Mine");
  const auto last = static_cast<UINT>(GetMenuItemCount(toolbars) - 1);
  EXPECT_TRUE(GetMenuState(toolbars, last, MF_BYPOSITION) & MF_CHECKED);
}

}  // namespace bars_test
}  // namespace brimwork::bench

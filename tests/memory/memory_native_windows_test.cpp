#include "memory/memory_native_windows.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brimwork {
namespace memory_native_windows_test {

using testing::ElementsAre;
using testing::Pair;

using SentMessage = MemoryNativeWindows::SentMessage;

constexpr WindowHandle kWindow = 7;
constexpr WindowHandle kNoWindow = 8;

struct MemoryNativeWindowsTest : testing::Test {
  MemoryNativeWindowsTest() { native.windows[kWindow].systemMenu = {{1, 0x10}, {2, 0x20}}; }

  MenuHandle Menu() { return native.GetSystemMenu(kWindow, false); }
  MemoryNativeWindows::NativeWindow& Own() { return native.windows.at(kWindow); }

  static MenuItemInfo Item(std::uint32_t mask, std::uint32_t state, std::int32_t id) {
    MenuItemInfo info;
    info.mask = mask;
    info.state = state;
    info.id = id;
    return info;
  }

  MemoryNativeWindows native;
};

TEST_F(MemoryNativeWindowsTest, KnowsItsWindows) {
  EXPECT_TRUE(native.IsWindow(kWindow));
  EXPECT_FALSE(native.IsWindow(kNoWindow));
  EXPECT_FALSE(native.IsWindow(0));
}

TEST_F(MemoryNativeWindowsTest, AnUnknownWindowHasNoMenu) {
  EXPECT_NE(Menu(), 0u);
  EXPECT_EQ(native.GetSystemMenu(kNoWindow, false), 0u);
}

TEST_F(MemoryNativeWindowsTest, ReadsOnlyWhatTheMaskSays) {
  MenuItemInfo info = Item(menu_item_mask::kState, 0, 99);
  EXPECT_TRUE(native.GetMenuItemInfo(Menu(), 2, info));
  EXPECT_EQ(info.state, 0x20u);
  EXPECT_EQ(info.id, 99);
  info = Item(menu_item_mask::kId, 5, 99);
  EXPECT_TRUE(native.GetMenuItemInfo(Menu(), 2, info));
  EXPECT_EQ(info.state, 5u);
  EXPECT_EQ(info.id, 2);
}

TEST_F(MemoryNativeWindowsTest, WritesOnlyWhatTheMaskSays) {
  EXPECT_TRUE(native.SetMenuItemInfo(Menu(), 2, Item(menu_item_mask::kState, 0x30, 9)));
  EXPECT_THAT(Own().systemMenu, ElementsAre(Pair(1, 0x10), Pair(2, 0x30)));
  EXPECT_TRUE(native.SetMenuItemInfo(Menu(), 2, Item(menu_item_mask::kId, 0x40, 9)));
  EXPECT_THAT(Own().systemMenu, ElementsAre(Pair(1, 0x10), Pair(9, 0x30)));
}

TEST_F(MemoryNativeWindowsTest, AnItemIsFoundUnderItsNewNumberOnly) {
  native.SetMenuItemInfo(Menu(), 2, Item(menu_item_mask::kId, 0, -10));
  MenuItemInfo info = Item(menu_item_mask::kState, 0, 0);
  EXPECT_FALSE(native.GetMenuItemInfo(Menu(), 2, info));
  EXPECT_FALSE(native.SetMenuItemInfo(Menu(), 2, info));
  EXPECT_TRUE(native.GetMenuItemInfo(Menu(), -10, info));
  EXPECT_EQ(info.state, 0x20u);
}

TEST_F(MemoryNativeWindowsTest, RefusedMasksChangeNothing) {
  native.refusedMasks = menu_item_mask::kState;
  EXPECT_FALSE(native.SetMenuItemInfo(Menu(), 2,
                                      Item(menu_item_mask::kState | menu_item_mask::kId, 0x30, 9)));
  EXPECT_THAT(Own().systemMenu, ElementsAre(Pair(1, 0x10), Pair(2, 0x20)));
  EXPECT_TRUE(native.SetMenuItemInfo(Menu(), 2, Item(menu_item_mask::kId, 0, 9)));
}

TEST_F(MemoryNativeWindowsTest, NoMenuHasNoItems) {
  MenuItemInfo info = Item(menu_item_mask::kState, 0, 0);
  EXPECT_FALSE(native.GetMenuItemInfo(0, 1, info));
  EXPECT_FALSE(native.SetMenuItemInfo(0, 1, info));
}

TEST_F(MemoryNativeWindowsTest, RecordsPositionsAndMessagesOfItsWindowsOnly) {
  native.SetWindowPos(kWindow, {.insertAfter = window_order::kTopMost, .x = 3});
  native.SendMessage(kWindow, 0x10, 1, 2);
  native.SetWindowPos(kNoWindow, {});
  native.SendMessage(kNoWindow, 0x10, 0, 0);
  ASSERT_EQ(Own().positions.size(), 1u);
  EXPECT_EQ(Own().positions.front().insertAfter, window_order::kTopMost);
  EXPECT_EQ(Own().positions.front().x, 3);
  EXPECT_THAT(Own().messages, ElementsAre(SentMessage{0x10, 1, 2}));
  EXPECT_EQ(native.windows.size(), 1u);
}

}  // namespace memory_native_windows_test
}  // namespace brimwork

// The close button of a window, by way of its system menu, and windows that stay on top.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <string_view>

#include "ide_windows/modTweakWindow.h"
#include "memory/memory_environment.h"
#include "support/faulty_environment.h"

namespace brimwork {
namespace modTweakWindow_close_button_test {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

using SentMessage = MemoryNativeWindows::SentMessage;

constexpr WindowHandle kWindow = 7;
constexpr std::int32_t kRestoreItem = 0xF120;
constexpr std::int32_t kCloseItem = 61536;
constexpr std::int32_t kHiddenItem = -10;
constexpr std::uint32_t kDefaultItem = 0x1000;  // the state of a menu's default item
const SentMessage kDrawCaption{0x86, -1, 0};

struct CloseButton : testing::Test {
  CloseButton() { Own().systemMenu = {{kRestoreItem, 0}, {kCloseItem, kDefaultItem}}; }

  int Enable() { return EnableCloseButton(environment, kWindow, true); }
  int Disable() { return EnableCloseButton(environment, kWindow, false); }

  /// The result of disabling while that call (from 1) to the operation raises an error.
  int DisableWhileFails(std::string_view operation, int call = 1) {
    int count = 0;
    FaultyEnvironment faulty(memory.Parts(), {.hits = [&](int, std::string_view called) {
                               return called == operation && ++count == call;
                             }});
    Environment failing = faulty.Parts();
    return EnableCloseButton(failing, kWindow, false);
  }

  MemoryNativeWindows::NativeWindow& Own() { return memory.nativeWindows.windows[kWindow]; }

  MemoryEnvironment memory;
  Environment environment = memory.Parts();
};

TEST_F(CloseButton, DisablingGraysTheItemUnderANumberOfItsOwn) {
  EXPECT_EQ(Disable(), 0);
  EXPECT_THAT(Own().systemMenu,
              ElementsAre(Pair(kHiddenItem, kDefaultItem | 3), Pair(kRestoreItem, 0)));
  EXPECT_THAT(Own().messages, ElementsAre(kDrawCaption));
}

TEST_F(CloseButton, EnablingPutsNumberAndStateBack) {
  const auto before = Own().systemMenu;
  Disable();
  EXPECT_EQ(Enable(), 0);
  EXPECT_EQ(Own().systemMenu, before);
  EXPECT_THAT(Own().messages, ElementsAre(kDrawCaption, kDrawCaption));
}

TEST_F(CloseButton, EnablingClearsBothBitsOfAGrayedItemAndNoOthers) {
  Own().systemMenu = {{kHiddenItem, kDefaultItem | 0x8 | 1}};
  EXPECT_EQ(Enable(), 0);
  EXPECT_THAT(Own().systemMenu, ElementsAre(Pair(kCloseItem, kDefaultItem | 0x8)));
}

TEST_F(CloseButton, GoesToAndFroAsOftenAsWanted) {
  const auto before = Own().systemMenu;
  for (int round = 0; round < 3; ++round) {
    EXPECT_EQ(Disable(), 0);
    EXPECT_EQ(Enable(), 0);
  }
  EXPECT_EQ(Own().systemMenu, before);
}

TEST_F(CloseButton, DisablingTwiceChangesNothingTheSecondTime) {
  Disable();
  const auto disabled = Own().systemMenu;
  EXPECT_EQ(Disable(), 0);
  EXPECT_EQ(Own().systemMenu, disabled);
  EXPECT_THAT(Own().messages, ElementsAre(kDrawCaption));
}

TEST_F(CloseButton, EnablingAnEnabledOneChangesNothing) {
  const auto before = Own().systemMenu;
  EXPECT_EQ(Enable(), 0);
  EXPECT_EQ(Own().systemMenu, before);
  EXPECT_THAT(Own().messages, IsEmpty());
}

TEST_F(CloseButton, AWindowWithoutACloseItemIsLeftAsItIs) {
  Own().systemMenu = {{kRestoreItem, 0}};
  EXPECT_EQ(Disable(), 0);
  EXPECT_THAT(Own().systemMenu, ElementsAre(Pair(kRestoreItem, 0)));
  EXPECT_THAT(Own().messages, IsEmpty());
}

TEST_F(CloseButton, AHandleOfNoWindowGivesMinusOne) {
  EXPECT_EQ(EnableCloseButton(environment, 8, false), -1);
  EXPECT_EQ(EnableCloseButton(environment, 0, true), -1);
  EXPECT_EQ(memory.nativeWindows.windows.size(), 1u);
}

TEST_F(CloseButton, ANumberThatIsRefusedGivesMinusTwoAndChangesNothing) {
  memory.nativeWindows.refusedMasks = menu_item_mask::kId;
  const auto before = Own().systemMenu;
  EXPECT_EQ(Disable(), -2);
  EXPECT_EQ(Own().systemMenu, before);
  EXPECT_THAT(Own().messages, IsEmpty());
}

TEST_F(CloseButton, AStateThatIsRefusedGivesMinusThreeBehindTheNewNumber) {
  memory.nativeWindows.refusedMasks = menu_item_mask::kState;
  EXPECT_EQ(Disable(), -3);
  EXPECT_THAT(Own().systemMenu,
              ElementsAre(Pair(kHiddenItem, kDefaultItem), Pair(kRestoreItem, 0)));
  EXPECT_THAT(Own().messages, IsEmpty());
}

TEST_F(CloseButton, EnablingFailsWithTheSameNumbers) {
  Disable();
  memory.nativeWindows.refusedMasks = menu_item_mask::kId;
  EXPECT_EQ(Enable(), -2);
  memory.nativeWindows.refusedMasks = menu_item_mask::kState;
  EXPECT_EQ(Enable(), -3);
  EXPECT_EQ(Own().systemMenu.at(kCloseItem), kDefaultItem | 3);
}

TEST_F(CloseButton, EnablingMendsWhatAFailedDisablingLeft) {
  const auto before = Own().systemMenu;
  memory.nativeWindows.refusedMasks = menu_item_mask::kState;
  Disable();
  memory.nativeWindows.refusedMasks = 0;
  EXPECT_EQ(Enable(), 0);
  EXPECT_EQ(Own().systemMenu, before);
}

TEST_F(CloseButton, AStepThatRaisesAnErrorHasFailed) {
  const auto before = Own().systemMenu;
  EXPECT_EQ(DisableWhileFails("NativeWindows.IsWindow"), -1);
  EXPECT_EQ(DisableWhileFails("NativeWindows.GetSystemMenu"), 0);
  EXPECT_EQ(DisableWhileFails("NativeWindows.GetMenuItemInfo"), 0);
  EXPECT_EQ(DisableWhileFails("NativeWindows.SetMenuItemInfo", 1), -2);
  EXPECT_EQ(Own().systemMenu, before);
  EXPECT_EQ(DisableWhileFails("NativeWindows.SetMenuItemInfo", 2), -3);
  EXPECT_THAT(Own().messages, IsEmpty());
}

TEST_F(CloseButton, ACaptionThatCannotBeRedrawnIsPassedOver) {
  EXPECT_EQ(DisableWhileFails("NativeWindows.SendMessage"), 0);
  EXPECT_EQ(Own().systemMenu.at(kHiddenItem), kDefaultItem | 3);
}

TEST_F(CloseButton, OtherWindowsKeepTheirMenu) {
  memory.nativeWindows.windows[8].systemMenu = {{kCloseItem, 0}};
  Disable();
  EXPECT_THAT(memory.nativeWindows.windows[8].systemMenu, ElementsAre(Pair(kCloseItem, 0)));
}

struct TopMost : CloseButton {
  void ExpectPutBehind(std::intptr_t insertAfter) {
    ASSERT_EQ(Own().positions.size(), 1u);
    const WindowPosition& position = Own().positions.front();
    EXPECT_EQ(position.insertAfter, insertAfter);
    EXPECT_EQ(position.flags, 3u);
    EXPECT_THAT((std::array{position.x, position.y, position.width, position.height}),
                ElementsAre(0, 0, 0, 0));
  }
};

TEST_F(TopMost, AWindowIsPutAboveAllOthersWhereItIs) {
  SetTopMost(environment, kWindow, true);
  ExpectPutBehind(-1);
}

TEST_F(TopMost, AWindowIsPutAmongTheOthersAgain) {
  SetTopMost(environment, kWindow, false);
  ExpectPutBehind(-2);
}

TEST_F(TopMost, AFailureIsPassedOver) {
  FaultyEnvironment faulty(memory.Parts(), {.hits = [](int, std::string_view) { return true; }});
  Environment failing = faulty.Parts();
  EXPECT_NO_THROW(SetTopMost(failing, kWindow, true));
  EXPECT_THAT(faulty.Operations(), ElementsAre("NativeWindows.SetWindowPos"));
}

}  // namespace modTweakWindow_close_button_test
}  // namespace brimwork

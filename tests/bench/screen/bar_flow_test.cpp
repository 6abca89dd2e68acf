// Where a toolbar's buttons stand.
#include "bench/screen/bar_flow.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brimwork::bench {
namespace bar_flow_test {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kPlenty = 1000;

std::vector<FlowedButton> Buttons(std::initializer_list<int> widths) {
  std::vector<FlowedButton> buttons;
  for (const int width : widths) buttons.push_back({{width, 22}, false});
  return buttons;
}

TEST(BarFlow, PutsButtonsBesideEachOtherBehindTheGrip) {
  const Flow flow = FlowButtons(Buttons({22, 50}), Direction::kAcross, 9, kPlenty);
  EXPECT_THAT(flow.buttons, ElementsAre(Bounds{11, 2, 22, 22}, Bounds{33, 2, 50, 22}));
  EXPECT_EQ(flow.size, (Size{85, 26}));
  EXPECT_THAT(flow.separators, IsEmpty());
}

TEST(BarFlow, PartsGroupsButNotTheFirstFromTheGrip) {
  auto buttons = Buttons({22, 22});
  buttons[0].beginsGroup = true;
  buttons[1].beginsGroup = true;
  const Flow flow = FlowButtons(buttons, Direction::kAcross, 0, kPlenty);
  EXPECT_THAT(flow.separators, ElementsAre(Bounds{24, 2, 8, 22}));
  EXPECT_THAT(flow.buttons, ElementsAre(Bounds{2, 2, 22, 22}, Bounds{32, 2, 22, 22}));
}

TEST(BarFlow, GoesOnInTheNextRowWhereTheFirstIsFull) {
  const Flow flow = FlowButtons(Buttons({22, 22, 22}), Direction::kAcross, 0, 50);
  EXPECT_THAT(flow.buttons,
              ElementsAre(Bounds{2, 2, 22, 22}, Bounds{24, 2, 22, 22}, Bounds{2, 24, 22, 22}));
  EXPECT_EQ(flow.size, (Size{48, 48}));
}

TEST(BarFlow, BeginsARowWithoutASeparator) {
  auto buttons = Buttons({22, 22});
  buttons[1].beginsGroup = true;
  const Flow flow = FlowButtons(buttons, Direction::kAcross, 0, 40);
  EXPECT_THAT(flow.separators, IsEmpty());
  EXPECT_EQ(flow.buttons[1], (Bounds{2, 24, 22, 22}));
}

TEST(BarFlow, KeepsAButtonThatNoRowHasRoomFor) {
  const Flow flow = FlowButtons(Buttons({90}), Direction::kAcross, 0, 50);
  EXPECT_THAT(flow.buttons, ElementsAre(Bounds{2, 2, 90, 22}));
}

TEST(BarFlow, GoesDownAtTheSides) {
  const Flow flow = FlowButtons(Buttons({22, 40}), Direction::kDown, 9, kPlenty);
  EXPECT_THAT(flow.buttons, ElementsAre(Bounds{2, 11, 22, 22}, Bounds{2, 33, 40, 22}));
  EXPECT_EQ(flow.size, (Size{44, 57}));
}

TEST(BarFlow, GivesAnEmptyBarRoomForAButtonsHeight) {
  const Flow flow = FlowButtons({}, Direction::kAcross, 9, kPlenty);
  EXPECT_EQ(flow.size, (Size{13, 26}));
}

}  // namespace bar_flow_test
}  // namespace brimwork::bench

// Where docked bars stand, and where a dragged one would dock.
#include "bench/screen/bar_docks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "environment/command_bar.h"

namespace brimwork::bench {
namespace bar_docks_test {

using testing::ElementsAre;

constexpr Bounds kOuter = {0, 0, 800, 600};

DockedBar Bar(int position, int row, int offset, Size size) {
  return {position, row, offset, [size](int) { return size; }};
}

TEST(BarDocks, ShareARowInTheOrderOfTheirOffsets) {
  const DockPlan plan = PlanDocks(
      {Bar(bar_position::kTop, 0, 300, {200, 26}), Bar(bar_position::kTop, 0, 0, {100, 26})},
      kOuter);
  EXPECT_THAT(plan.bars, ElementsAre(Bounds{300, 0, 200, 26}, Bounds{0, 0, 100, 26}));
  EXPECT_EQ(plan.inner, (Bounds{0, 26, 800, 574}));
}

TEST(BarDocks, PushBarsAsideThatWouldCoverEachOther) {
  const DockPlan plan = PlanDocks(
      {Bar(bar_position::kTop, 0, 0, {200, 26}), Bar(bar_position::kTop, 0, 0, {100, 26})}, kOuter);
  EXPECT_THAT(plan.bars, ElementsAre(Bounds{0, 0, 200, 26}, Bounds{200, 0, 100, 26}));
}

TEST(BarDocks, DrawABarBackThatWouldPassTheEdge) {
  const DockPlan plan = PlanDocks({Bar(bar_position::kTop, 0, 5000, {200, 26})}, kOuter);
  EXPECT_THAT(plan.bars, ElementsAre(Bounds{600, 0, 200, 26}));
}

TEST(BarDocks, StandLowerRowsNearerToTheirEdge) {
  const DockPlan plan = PlanDocks(
      {Bar(bar_position::kBottom, 5, 0, {100, 30}), Bar(bar_position::kBottom, 2, 0, {100, 26})},
      kOuter);
  EXPECT_THAT(plan.bars, ElementsAre(Bounds{0, 544, 100, 30}, Bounds{0, 574, 100, 26}));
  EXPECT_EQ(plan.inner, (Bounds{0, 0, 800, 544}));
}

TEST(BarDocks, BeginARowWhereOneHasNoRoomForAnotherBar) {
  const DockPlan plan = PlanDocks(
      {Bar(bar_position::kTop, 0, 0, {500, 26}), Bar(bar_position::kTop, 0, 0, {500, 26})}, kOuter);
  EXPECT_THAT(plan.bars, ElementsAre(Bounds{0, 0, 500, 26}, Bounds{0, 26, 500, 26}));
}

TEST(BarDocks, LeaveTheSidesWhatUpperAndLowerEdgesLeave) {
  const DockPlan plan = PlanDocks(
      {Bar(bar_position::kLeft, 0, 0, {28, 200}), Bar(bar_position::kRight, 0, 50, {28, 200}),
       Bar(bar_position::kTop, 0, 0, {300, 26})},
      kOuter);
  EXPECT_THAT(plan.bars,
              ElementsAre(Bounds{0, 26, 28, 200}, Bounds{772, 76, 28, 200}, Bounds{0, 0, 300, 26}));
  EXPECT_EQ(plan.inner, (Bounds{28, 26, 744, 574}));
}

TEST(BarDocks, AreMeasuredWithTheRoomThatTheirEdgeHas) {
  std::vector<int> limits;
  const auto measure = [&](int limit) {
    limits.push_back(limit);
    return Size{26, 26};
  };
  PlanDocks({{bar_position::kTop, 0, 0, measure}, {bar_position::kLeft, 0, 0, measure}}, kOuter);
  EXPECT_THAT(limits, ElementsAre(800, 574));
}

TEST(BarDocks, TakeNothingWhereNoBarIs) { EXPECT_EQ(PlanDocks({}, kOuter).inner, kOuter); }

constexpr Bounds kInner = {28, 52, 744, 548};

TEST(DropPlaceAt, DocksNearTheBarsOfAnEdge) {
  EXPECT_EQ(DropPlaceAt(200, 10, kOuter, kInner), (DropPlace{bar_position::kTop, 200}));
  EXPECT_EQ(DropPlaceAt(200, 60, kOuter, kInner), (DropPlace{bar_position::kTop, 200}));
  EXPECT_EQ(DropPlaceAt(200, 590, kOuter, kInner), (DropPlace{bar_position::kBottom, 200}));
  EXPECT_EQ(DropPlaceAt(10, 300, kOuter, kInner), (DropPlace{bar_position::kLeft, 248}));
  EXPECT_EQ(DropPlaceAt(795, 300, kOuter, kInner), (DropPlace{bar_position::kRight, 248}));
}

TEST(DropPlaceAt, FloatsInTheMiddleAndFarOutside) {
  EXPECT_EQ(DropPlaceAt(400, 300, kOuter, kInner).position, bar_position::kFloating);
  EXPECT_EQ(DropPlaceAt(400, -100, kOuter, kInner).position, bar_position::kFloating);
  EXPECT_EQ(DropPlaceAt(1200, 300, kOuter, kInner).position, bar_position::kFloating);
}

}  // namespace bar_docks_test
}  // namespace brimwork::bench

// How the room around the workspace is shared out.
#include "bench/screen/panel_plan.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace brimwork::bench {
namespace panel_plan_test {

constexpr Bounds kInner = {0, 50, 1000, 600};
constexpr PanelSizes kSizes = {.left = 80, .right = 200, .upperRight = 250, .bottom = 120};

bool Overlap(const Bounds& a, const Bounds& b) {
  return a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height &&
         b.top < a.top + a.height;
}

bool IsWithin(const Bounds& a, const Bounds& b) {
  return a.left >= b.left && a.top >= b.top && a.left + a.width <= b.left + b.width &&
         a.top + a.height <= b.top + b.height;
}

TEST(PanelPlan, GivesTheWorkspaceAllWhileNothingElseIsShown) {
  const PanelPlan plan = PlanPanels({}, kSizes, kInner);
  EXPECT_EQ(plan.workspace, kInner);
  EXPECT_TRUE(plan.gaps.empty());
}

TEST(PanelPlan, StacksProjectAndPropertiesAtTheRight) {
  const PanelPlan plan = PlanPanels({Panel::kProject, Panel::kProperties}, kSizes, kInner);
  EXPECT_EQ(plan.Of(Panel::kProject), (Bounds{800, 50, 200, 250}));
  EXPECT_EQ(plan.Of(Panel::kProperties), (Bounds{800, 304, 200, 346}));
  EXPECT_EQ(plan.workspace, (Bounds{0, 50, 796, 600}));
}

TEST(PanelPlan, GivesOneOfTheTwoTheWholeColumn) {
  EXPECT_EQ(PlanPanels({Panel::kProject}, kSizes, kInner).Of(Panel::kProject),
            (Bounds{800, 50, 200, 600}));
  EXPECT_EQ(PlanPanels({Panel::kProperties}, kSizes, kInner).Of(Panel::kProperties),
            (Bounds{800, 50, 200, 600}));
}

TEST(PanelPlan, PutsWhatStandsAtTheBottomBesideEachOther) {
  const PanelPlan plan = PlanPanels({Panel::kImmediate, Panel::kWatch}, kSizes, kInner);
  EXPECT_EQ(plan.Of(Panel::kImmediate), (Bounds{0, 530, 498, 120}));
  EXPECT_EQ(plan.Of(Panel::kWatch), (Bounds{502, 530, 498, 120}));
  EXPECT_EQ(plan.workspace, (Bounds{0, 50, 1000, 476}));
}

TEST(PanelPlan, CoversNothingTwiceAndLeavesNothingOutside) {
  for (const Bounds& inner : {kInner, Bounds{0, 0, 300, 200}, Bounds{0, 0, 20, 20}}) {
    const PanelPlan plan = PlanPanels({Panel::kToolbox, Panel::kProject, Panel::kProperties,
                                       Panel::kImmediate, Panel::kLocals, Panel::kWatch},
                                      kSizes, inner);
    std::vector<Bounds> all(plan.panels.begin(), plan.panels.end());
    all.push_back(plan.workspace);
    std::erase_if(all, [](const Bounds& each) { return each.width == 0 || each.height == 0; });
    for (std::size_t one = 0; one < all.size(); ++one) {
      EXPECT_TRUE(IsWithin(all[one], inner)) << inner.width << ": " << one;
      for (std::size_t other = one + 1; other < all.size(); ++other) {
        EXPECT_FALSE(Overlap(all[one], all[other])) << inner.width << ": " << one << ' ' << other;
      }
    }
  }
}

TEST(PanelPlan, FollowsTheGapsThatTheUserDrags) {
  EXPECT_EQ(Dragged(kSizes, Gap::kRight, -30, 7).right, 230);
  EXPECT_EQ(Dragged(kSizes, Gap::kUpperRight, 5, 40).upperRight, 290);
  EXPECT_EQ(Dragged(kSizes, Gap::kBottom, 5, -40).bottom, 160);
}

TEST(PanelPlan, LeavesEveryPanelSomethingToDragBackBy) {
  EXPECT_EQ(Dragged(kSizes, Gap::kRight, 5000, 0).right, 60);
  EXPECT_EQ(Dragged(kSizes, Gap::kBottom, 0, 5000).bottom, 60);
}

TEST(PanelPlan, HasAGapAtEachBorderThatCanBeDragged) {
  const PanelPlan plan =
      PlanPanels({Panel::kProject, Panel::kProperties, Panel::kImmediate}, kSizes, kInner);
  std::vector<Gap> gaps;
  for (const auto& [gap, bounds] : plan.gaps) gaps.push_back(gap);
  EXPECT_THAT(gaps, testing::UnorderedElementsAre(Gap::kRight, Gap::kUpperRight, Gap::kBottom));
}

}  // namespace panel_plan_test
}  // namespace brimwork::bench

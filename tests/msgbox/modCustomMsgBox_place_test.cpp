// Where a custom message box stands. The screen is 1024 by 768 pixels, the box 300 by 140.
#include <gmock/gmock.h>

#include "support/special_box_fixture.h"

namespace brimwork {
namespace modCustomMsgBox_place_test {

using testing::IsEmpty;
using testing::SizeIs;

struct CustomMsgBoxPlace : SpecialBoxFixture {
  /// The upper left corner of a box that was to stand at x and y.
  std::pair<int, int> Placed(std::int32_t x, std::int32_t y) {
    messageBoxes.ClickAt(500, "OK");
    Show({.x = x, .y = y});
    return {LastPlace().left, LastPlace().top};
  }
};

using Corner = std::pair<int, int>;

INSTANTIATE_TEST_SUITE_P(Copies, CustomMsgBoxPlace, testing::Values(Copy::kAddIn, Copy::kModule),
                         CopyName);

TEST_P(CustomMsgBoxPlace, IsTheOneAskedForAboveAllOtherWindows) {
  EXPECT_EQ(Placed(10, 20), Corner(10, 20));
  ASSERT_THAT(Last().window.positions, SizeIs(1));
  EXPECT_EQ(Last().window.positions[0].insertAfter, window_order::kTopMost);
  EXPECT_EQ(Last().window.positions[0].flags, window_position_flag::kNoSize);
  EXPECT_TRUE(Last().window.isTopMost);
  EXPECT_EQ(LastPlace().Width(), 300);
  EXPECT_EQ(LastPlace().Height(), 140);
}

TEST_P(CustomMsgBoxPlace, IsTheSystemsWhereACoordinateIsMinusOne) {
  const Corner middle{362, 314};
  EXPECT_EQ(Placed(-1, 20), middle);
  EXPECT_EQ(Placed(10, -1), middle);
  EXPECT_EQ(Placed(-1, -1), middle);
  EXPECT_THAT(Last().window.positions, IsEmpty());
}

TEST_P(CustomMsgBoxPlace, IsDrawnBackBeforeTheRightAndTheLowerEdge) {
  EXPECT_EQ(Placed(5000, 20), Corner(723, 20));
  EXPECT_EQ(Placed(10, 5000), Corner(10, 627));
  EXPECT_EQ(Placed(2'147'483'647, 2'147'483'647), Corner(723, 627));
}

TEST_P(CustomMsgBoxPlace, EndsOnePixelBeforeTheEdges) {
  EXPECT_EQ(Placed(723, 627), Corner(723, 627));
  EXPECT_EQ(Placed(724, 628), Corner(723, 627));
}

TEST_P(CustomMsgBoxPlace, IsDrawnBackFromTheLeftEdge) {
  EXPECT_EQ(Placed(0, 20), Corner(1, 20));
  EXPECT_EQ(Placed(-300, 20), Corner(1, 20));
  EXPECT_EQ(Placed(1, 20), Corner(1, 20));
}

TEST_P(CustomMsgBoxPlace, IsDrawnBackFromTheUpperEdgeOnlyTogetherWithTheLeftOne) {
  EXPECT_EQ(Placed(0, 0), Corner(1, 1));
  EXPECT_EQ(Placed(-5, -7), Corner(1, 1));
  EXPECT_EQ(Placed(10, 0), Corner(10, 0));
  EXPECT_EQ(Placed(10, -50), Corner(10, -50));
}

TEST_P(CustomMsgBoxPlace, OfABoxWiderThanTheScreenIsItsLeftEdge) {
  messageBoxes.width = 1100;
  messageBoxes.height = 800;
  EXPECT_EQ(Placed(10, 20), Corner(1, 1));
}

TEST_P(CustomMsgBoxPlace, CountsInPixelsOfTheScreen) {
  formScreen.twipsPerPixelX = 12;
  formScreen.twipsPerPixelY = 10;
  EXPECT_EQ(Placed(5000, 5000), Corner(979, 1011));
}

TEST_P(CustomMsgBoxPlace, IsReachedWhileTheBoxHasJustComeUp) {
  messageBoxes.DoAt(
      9, [&] { EXPECT_THAT(nativeWindows.windows[messageBoxes.Open()].positions, IsEmpty()); });
  messageBoxes.DoAt(
      11, [&] { EXPECT_THAT(nativeWindows.windows[messageBoxes.Open()].positions, SizeIs(1)); });
  EXPECT_EQ(Placed(10, 20), Corner(10, 20));
  EXPECT_EQ(windowTimers.Count(), 0u);
}

}  // namespace modCustomMsgBox_place_test
}  // namespace brimwork

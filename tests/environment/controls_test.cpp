// What the controls do that have no test of their own: labels, tabs, pictures, timers, image lists.
#include "environment/controls.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/sample_form.h"

namespace brimwork {
namespace controls_test {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::VariantWith;

TEST(AccessKeyOf, IsTheLetterBehindTheMark) {
  EXPECT_EQ(AccessKeyOf("E&xit"), "x");
  EXPECT_EQ(AccessKeyOf("&Save"), "s");
  EXPECT_EQ(AccessKeyOf("Fish && &Chips"), "c");
}

TEST(AccessKeyOf, IsNothingWithoutAMark) {
  EXPECT_EQ(AccessKeyOf("Exit"), "");
  EXPECT_EQ(AccessKeyOf("Fish && Chips"), "");
  EXPECT_EQ(AccessKeyOf("Exit&"), "");
}

TEST(ShownCaption, LeavesTheMarksOut) {
  EXPECT_EQ(ShownCaption("E&xit"), "Exit");
  EXPECT_EQ(ShownCaption("Fish && Chips"), "Fish & Chips");
}

TEST(Label, IsClickedWithoutTakingTheFocus) {
  ShownSample sample;
  sample.form.lblName.Click();
  EXPECT_THAT(sample.form.events, ElementsAre("lblName Click"));
  EXPECT_EQ(sample.form.ActiveControl(), &sample.form.txtName);
}

TEST(Control, TakesItsLooksFromTheTable) {
  ShownSample sample;
  EXPECT_EQ(sample.form.txtName.Left, 72);
  EXPECT_EQ(sample.form.txtName.ToolTipText, "Who wrote it");
  EXPECT_EQ(sample.form.picBar.ForeColor, Rgb(0, 0, 255));
  EXPECT_EQ(sample.form.picBar.BackColor, system_color::kButtonFace);
  EXPECT_EQ(sample.form.txtName.BackColor, system_color::kWindow);
  EXPECT_EQ(sample.form.txtName.Font, ControlFont{});
  EXPECT_EQ(sample.form.imgLogo.Picture, "logo.bmp");
  EXPECT_EQ(sample.form.sbStatus.SimpleText, "Ready");
}

TEST(Control, LiesInTheContainerThatTheTableNames) {
  ShownSample sample;
  EXPECT_EQ(sample.form.optColor(1).Container(), &sample.form.fraColor);
  EXPECT_EQ(sample.form.fraColor.Container(), nullptr);
}

TEST(TabStrip, RaisesClickForEachChosenTab) {
  ShownSample sample;
  sample.form.tabPages.Choose(2);
  EXPECT_EQ(sample.form.tabPages.SelectedItem, 2);
  sample.form.tabPages.Choose(2);
  sample.form.tabPages.Choose(3);
  sample.form.tabPages.Choose(0);
  EXPECT_EQ(sample.form.tabPages.SelectedItem, 2);
  EXPECT_EQ(std::count(sample.form.events.begin(), sample.form.events.end(), "tabPages Click"), 2);
}

TEST(TabStrip, IsReachedThroughTheAccessKeysOfItsTabs) {
  ShownSample sample;
  sample.form.PressAlt('c');
  EXPECT_EQ(sample.form.tabPages.SelectedItem, 2);
  sample.form.PressAlt('s');
  EXPECT_EQ(sample.form.tabPages.SelectedItem, 1);
}

TEST(PictureBox, KeepsWhatIsDrawnUntilItIsCleared) {
  ShownSample sample;
  PictureBox& box = sample.form.picBar;
  box.Print(10, 4, "50%");
  box.DrawMode = DrawMode::kXorPen;
  box.FillRectangle({0, 0, 50, 20}, Rgb(255, 255, 255));
  EXPECT_THAT(box.Drawing(),
              ElementsAre(VariantWith<DrawnText>(
                              DrawnText{10, 4, "50%", Rgb(0, 0, 255), DrawMode::kCopyPen}),
                          VariantWith<FilledRectangle>(FilledRectangle{
                              {0, 0, 50, 20}, Rgb(255, 255, 255), DrawMode::kXorPen})));
  box.Cls();
  EXPECT_THAT(box.Drawing(), IsEmpty());
}

TEST(PictureBox, HasTheRoomInsideItsBorder) {
  ShownSample sample;
  PictureBox& box = sample.form.picBar;
  EXPECT_EQ(box.ScaleWidth(), 100);
  EXPECT_EQ(box.ScaleHeight(), 20);
  box.BorderStyle = border_style::kNone;
  EXPECT_EQ(box.ScaleWidth(), 104);
}

TEST(PictureBox, AsksTheHostHowLargeItsTextIs) {
  ShownSample sample;
  EXPECT_EQ(sample.form.picBar.TextSize("50%").width, 3 * MemoryFormHost::kCharacterWidth);
}

TEST(PictureBox, IsPaintedAtOnceWhenCodeWantsIt) {
  ShownSample sample;
  std::vector<std::string> painted;
  sample.host.onRefresh = [&](Form&, Control& control) { painted.emplace_back(control.Name()); };
  sample.form.picBar.Refresh();
  EXPECT_THAT(painted, ElementsAre("picBar"));
}

TEST(ImageList, GivesTheResourceOfAKey) {
  ShownSample sample;
  EXPECT_EQ(sample.form.imlFaces.Picture("Number"), "number.bmp");
}

TEST(ImageList, RaisesAnErrorForAKeyThatItHasNot) {
  ShownSample sample;
  try {
    sample.form.imlFaces.Picture("Comment");
    FAIL() << "no error";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Number(), 35601);
  }
}

TEST(Timer, TicksOnlyWhileItRuns) {
  ShownSample sample;
  sample.form.tmrClock.Tick();
  EXPECT_THAT(sample.form.events, IsEmpty());
  sample.form.tmrClock.Enabled = true;
  sample.form.tmrClock.Tick();
  EXPECT_THAT(sample.form.events, ElementsAre("tmrClock Timer"));
  sample.form.tmrClock.Interval = 0;
  EXPECT_FALSE(sample.form.tmrClock.IsRunning());
}

}  // namespace controls_test
}  // namespace brimwork

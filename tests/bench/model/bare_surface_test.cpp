// A surface without a screen.
#include "bench/model/bare_surface.h"

#include <gtest/gtest.h>

#include "bench/model/workbench.h"

namespace brimwork::bench {
namespace bare_surface_test {

struct BareSurfaceTest : testing::Test {
  Workbench workbench;
  BareSurface surface;
  MemoryWindow& window = *workbench.windows.immediate;
};

TEST_F(BareSurfaceTest, KeepsPlacesAndStates) {
  EXPECT_EQ(surface.HandleOf(window), 0);
  EXPECT_EQ(surface.BoundsOf(window), (Bounds{0, 0, 640, 480}));
  EXPECT_EQ(surface.StateOf(window), WindowState::kNormal);
  surface.SetBoundsOf(window, {1, 2, 3, 4});
  surface.SetStateOf(window, WindowState::kMaximized);
  EXPECT_EQ(surface.BoundsOf(window), (Bounds{1, 2, 3, 4}));
  EXPECT_EQ(surface.StateOf(window), WindowState::kMaximized);
  EXPECT_EQ(surface.StateOf(*workbench.windows.locals), WindowState::kNormal);
}

TEST_F(BareSurfaceTest, KeepsTopLines) {
  const MemoryCodePane pane(
      std::make_shared<MemoryCodeModule>("m", ModuleText::FromText("a\nb\nc")));
  EXPECT_EQ(surface.TopLineOf(pane), 1);
  surface.SetTopLineOf(pane, 3);
  EXPECT_EQ(surface.TopLineOf(pane), 3);
  EXPECT_EQ(surface.VisibleLinesOf(pane), 25);
}

TEST_F(BareSurfaceTest, ControlsStandBesideEachOther) {
  const auto bar = workbench.vbe.commandBars.Add({.name = "Mine"});
  bar->SetLeft(7);
  for (int i = 0; i < 3; ++i) bar->Controls()->Add({});
  const auto& controls = bar->Entries()->All();
  ControlDetails wide;
  wide.width = 50;
  controls[0]->SetDetails(wide);
  ControlDetails hidden;
  hidden.visible = false;
  controls[1]->SetDetails(hidden);
  EXPECT_EQ(surface.BoundsOf(*controls[0]), (Bounds{0, 0, 50, 22}));
  EXPECT_EQ(surface.BoundsOf(*controls[2]), (Bounds{50, 0, 23, 22}));
  EXPECT_EQ(surface.BoundsOf(*bar), (Bounds{7, 0, 73, 22}));
}

TEST_F(BareSurfaceTest, AMenuIsVisibleWhileItIsOpen) {
  bool wasVisible = false;
  surface.onPopup = [&](MemoryCommandBar& menu) { wasVisible = menu.Visible(); };
  surface.ShowPopup(*workbench.bars.codeWindow);
  EXPECT_TRUE(wasVisible);
  EXPECT_FALSE(workbench.bars.codeWindow->Visible());
}

TEST_F(BareSurfaceTest, CountsWhatItIsAskedFor) {
  surface.TakeInput();
  surface.ShowChanges();
  surface.ShowChanges();
  EXPECT_EQ(surface.takenInputs, 1);
  EXPECT_EQ(surface.shownChanges, 2);
  EXPECT_FALSE(surface.hasQuit);
  surface.Quit();
  EXPECT_TRUE(surface.hasQuit);
}

}  // namespace bare_surface_test
}  // namespace brimwork::bench

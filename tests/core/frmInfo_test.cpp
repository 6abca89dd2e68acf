// The percentage and the messages of the progress window.
#include "core/frmInfo.h"

#include <gtest/gtest.h>

#include <limits>

#include "memory/memory_environment.h"

namespace brimwork {
namespace frmInfo_test {

/// The progress window in an environment of its own.
struct Progress {
  MemoryEnvironment memory;
  frmInfo window{memory.Parts()};
};

std::string TagFor(int current, int total) {
  Progress progress;
  frmInfo& window = progress.window;
  window.UpdateProgressBar(current, total);
  return window.picProgress.Tag;
}

TEST(ProgressWindow, ShowsZeroFiftyAndNinetyNinePercentOfAHundred) {
  EXPECT_EQ(TagFor(0, 100), "0");
  EXPECT_EQ(TagFor(50, 100), "50");
  EXPECT_EQ(TagFor(100, 100), "99");
}

TEST(ProgressWindow, RoundsThePercentageUp) {
  EXPECT_EQ(TagFor(1, 3), "34");
  EXPECT_EQ(TagFor(1, 1000), "1");
  EXPECT_EQ(TagFor(0, 1000), "0");
}

TEST(ProgressWindow, AFinishedRunStaysOneStepBelowAHundred) {
  EXPECT_EQ(TagFor(3, 3), "67");
  EXPECT_EQ(TagFor(2, 2), "50");
  EXPECT_EQ(TagFor(1, 1), "0");
  EXPECT_EQ(TagFor(1000, 1000), "100");
}

TEST(ProgressWindow, MoreThanEverythingCountsAsEverything) {
  EXPECT_EQ(TagFor(150, 100), "99");
  EXPECT_EQ(TagFor(4, 3), "67");
}

TEST(ProgressWindow, KeepsThePercentageWithinZeroAndAHundred) {
  EXPECT_EQ(TagFor(-5, 100), "0");
  EXPECT_EQ(TagFor(-5, -3), "100");
}

TEST(ProgressWindow, GoesOnWithoutATotal) {
  EXPECT_EQ(TagFor(0, 0), "0");
  EXPECT_EQ(TagFor(5, 0), "0");
}

TEST(ProgressWindow, CountsLinesOfTheLongestModules) {
  constexpr int kMost = std::numeric_limits<int>::max();
  EXPECT_EQ(TagFor(kMost, kMost), "100");
  EXPECT_EQ(TagFor(kMost / 2, kMost), "50");
}

TEST(ProgressWindow, AMessageComesWithATitleOrKeepsTheOneThatIsThere) {
  Progress progress;
  frmInfo& window = progress.window;
  window.ProgressMessage("one", "Title");
  EXPECT_EQ(window.lblInfo.Caption, "one");
  EXPECT_EQ(window.Caption, "Title");
  window.ProgressMessage("two");
  window.ProgressMessage("three", "");
  EXPECT_EQ(window.lblInfo.Caption, "three");
  EXPECT_EQ(window.Caption, "Title");
}

TEST(ProgressWindow, ResetAsksForPatienceAndEmptiesTheBar) {
  Progress progress;
  frmInfo& window = progress.window;
  window.ProgressMessage("done", "Done");
  window.UpdateProgressBar(100, 100);
  window.ResetProgressBar();
  EXPECT_EQ(window.lblInfo.Caption, "Processing Request...Please Wait");
  EXPECT_EQ(window.Caption, "Processing...");
  EXPECT_EQ(window.picProgress.Tag, "0");
}

TEST(ProgressWindow, IsHiddenUntilItIsShown) {
  Progress progress;
  frmInfo& window = progress.window;
  EXPECT_FALSE(window.Visible());
  window.Show();
  EXPECT_TRUE(window.Visible());
  window.Hide();
  EXPECT_FALSE(window.Visible());
}

TEST(ProgressWindow, IsRepaintedAtOnceAfterEachChange) {
  Progress progress;
  frmInfo& window = progress.window;
  window.Load();
  std::string painted;
  window.OnRepaint = [&](const frmInfo& shown) {
    painted += shown.lblInfo.Caption.Get() + '/' + shown.picProgress.Tag.Get() + ' ';
  };
  window.ProgressMessage("one");
  window.UpdateProgressBar(1, 2);
  window.ProgressMessage("two");
  EXPECT_EQ(painted, "one/0 one/50 two/50 ");
}

TEST(ProgressWindow, IsNotRepaintedWhileThePercentageStays) {
  Progress progress;
  frmInfo& window = progress.window;
  window.Load();
  int repaints = 0;
  window.OnRepaint = [&](const frmInfo&) { ++repaints; };
  for (int current = 0; current <= 10'000; ++current) window.UpdateProgressBar(current, 10'000);
  EXPECT_LE(repaints, 102);
  EXPECT_EQ(window.picProgress.Tag, "100");
}

TEST(ProgressWindow, ShowsTheSameWhetherEachStepOrOnlyOneIsDrawn) {
  for (const int total : {1, 2, 3, 7, 99, 100, 101, 150, 997}) {
    Progress progress;
    frmInfo& window = progress.window;
    for (int current = -2; current <= total + 2; ++current) {
      window.UpdateProgressBar(current, total);
      EXPECT_EQ(window.picProgress.Tag, TagFor(current, total)) << current << " of " << total;
    }
  }
}

}  // namespace frmInfo_test
}  // namespace brimwork

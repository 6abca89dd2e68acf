// The progress window as a form: what it draws, when it is painted, its close button, its faces,
// and what happens when it cannot be shown.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "core/catalogue.h"
#include "core/frmInfo.h"
#include "environment/resume_next.h"
#include "memory/memory_environment.h"
#include "support/faulty_environment.h"
#include "support/form_checks.h"

namespace brimwork {
namespace frmInfo_form_test {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::Pair;
using testing::SizeIs;

constexpr Color kBlack = Rgb(0, 0, 0);
constexpr Color kWhite = Rgb(255, 255, 255);

struct ProgressForms : testing::Test {
  /// From now on every call to the operation raises an error.
  void Break(std::string operation) {
    faulty.emplace(memory.Parts(),
                   Fault{Fault::Kind::kRaises, [operation](int /*call*/, std::string_view called) {
                           return called == operation;
                         }});
    window.emplace(faulty->Parts());
  }

  std::vector<DrawingCommand> DrawnFor(int percentage) {
    window->UpdateProgressBar(percentage, 100);
    return window->picProgress.Drawing();
  }

  MemoryEnvironment memory;
  std::optional<FaultyEnvironment> faulty;
  std::optional<frmInfo> window{std::in_place, memory.Parts()};
};

// The box is 340 pixels wide and 24 high; two pixels on each side are its border.
constexpr int kWidth = 336;
constexpr int kHeight = 20;
constexpr int kTextTop = (kHeight - MemoryFormHost::kLineHeight) / 2;

DrawingCommand TextOf(int characters, std::string text) {
  const int left = (kWidth - characters * MemoryFormHost::kCharacterWidth) / 2;
  return DrawnText{left, kTextTop, std::move(text), kBlack, DrawMode::kCopyPen};
}

DrawingCommand BarOf(int width) {
  return FilledRectangle{{0, 0, width, kHeight}, kWhite, DrawMode::kXorPen};
}

TEST_F(ProgressForms, WriteThePercentageInTheMiddleAndInvertThePartThatIsDone) {
  EXPECT_THAT(DrawnFor(0), ElementsAre(TextOf(2, "0%"), BarOf(0)));
  EXPECT_THAT(DrawnFor(50), ElementsAre(TextOf(3, "50%"), BarOf(168)));
  EXPECT_THAT(DrawnFor(100), ElementsAre(TextOf(3, "99%"), BarOf(332)));
}

TEST_F(ProgressForms, DrawInColoursOfWhichEachIsTheInverseOfTheOther) {
  window->Load();
  EXPECT_EQ(window->picProgress.BackColor, kWhite);
  EXPECT_EQ(window->picProgress.ForeColor ^ kWhite, window->picProgress.BackColor);
}

TEST_F(ProgressForms, DrawTheBarWithoutTheBordersWidth) {
  window->Load();
  const PictureBox& bar = window->picProgress;
  EXPECT_EQ(bar.BorderStyle, border_style::kNone);
  EXPECT_EQ(bar.Left, 14);
  EXPECT_EQ(bar.Top, 36);
  EXPECT_EQ(bar.Width, kWidth);
  EXPECT_EQ(bar.Height, kHeight);
  window->UpdateProgressBar(70, 100);
  EXPECT_EQ(bar.Width, kWidth);
}

TEST_F(ProgressForms, DrawABarThatGotABorderWithoutIt) {
  window->Load();
  window->picProgress.BorderStyle = border_style::kFixedSingle;
  EXPECT_THAT(DrawnFor(50),
              ElementsAre(DrawnText{157, 1, "50%", kBlack, DrawMode::kCopyPen},
                          FilledRectangle{{0, 0, 166, 16}, kWhite, DrawMode::kXorPen}));
}

TEST_F(ProgressForms, AreLoadedWithAnEmptyBar) {
  window->Load();
  EXPECT_EQ(window->picProgress.Tag, "0");
  EXPECT_THAT(window->picProgress.Drawing(), ElementsAre(TextOf(2, "0%"), BarOf(0)));
  EXPECT_EQ(window->lblInfo.Caption, "");
}

TEST_F(ProgressForms, AreEmptyAgainWhenTheyAreLoadedOnceMore) {
  window->ProgressMessage("working", "Work");
  window->UpdateProgressBar(70, 100);
  window->Unload();
  window->Load();
  EXPECT_EQ(window->picProgress.Tag, "0");
  EXPECT_EQ(window->lblInfo.Caption, "");
  window->UpdateProgressBar(70, 100);
  EXPECT_EQ(window->picProgress.Tag, "70");
}

TEST_F(ProgressForms, AreLoadedByTheFirstUse) {
  window->ProgressMessage("working", "Work");
  EXPECT_TRUE(window->IsLoaded());
  EXPECT_FALSE(memory.formHost.IsVisible(*window));
  window->Show();
  EXPECT_TRUE(memory.formHost.IsVisible(*window));
  EXPECT_FALSE(memory.formHost.IsModal(*window));
  EXPECT_EQ(window->lblInfo.Caption, "working");
  window->Hide();
  EXPECT_FALSE(memory.formHost.IsVisible(*window));
  EXPECT_TRUE(window->IsLoaded());
}

TEST_F(ProgressForms, CannotBeClosedByTheUser) {
  window->Load();
  EXPECT_THAT(memory.nativeWindows.windows.at(window->hWnd()).systemMenu,
              ElementsAre(Pair(Not(MemoryFormHost::kCloseCommand), menu_item_state::kGrayed)));
}

TEST_F(ProgressForms, PaintTheMessageAndTheBarAtOnce) {
  std::vector<std::string> painted;
  window->Load();
  memory.formHost.onRefresh = [&](Form&, Control& control) {
    painted.emplace_back(control.Name());
  };
  window->ProgressMessage("one");
  window->UpdateProgressBar(10, 100);
  window->UpdateProgressBar(10, 100);
  EXPECT_THAT(painted, ElementsAre("lblInfo", "picProgress"));
}

TEST_F(ProgressForms, ChangeNothingWhileThePercentageStays) {
  window->UpdateProgressBar(500'001, 1'000'000);
  int changes = 0;
  memory.formHost.onChange = [&](Form&, Control*, PropertyId) { ++changes; };
  for (int i = 500'001; i <= 510'000; ++i) window->UpdateProgressBar(i, 1'000'000);
  EXPECT_EQ(changes, 0);
}

TEST_F(ProgressForms, GoOnWithoutAWindowThatCannotBeMade) {
  Break("FormHost.Load");
  window->ProgressMessage("working", "Work");
  window->UpdateProgressBar(50, 100);
  window->Show();
  EXPECT_FALSE(window->Visible());
  window->Hide();
  EXPECT_THAT(memory.formHost.LoadedForms(), IsEmpty());
}

TEST_F(ProgressForms, GoOnWithoutAWindowThatCannotBeShown) {
  Break("FormHost.Show");
  window->ProgressMessage("working");
  window->Show();
  EXPECT_FALSE(window->Visible());
  EXPECT_EQ(window->lblInfo.Caption, "working");
  window->UpdateProgressBar(50, 100);
  EXPECT_EQ(window->picProgress.Tag, "50");
}

TEST_F(ProgressForms, GoOnWithACloseButtonThatCannotBeDisabled) {
  Break("NativeWindows.GetSystemMenu");
  window->Show();
  EXPECT_TRUE(window->Visible());
}

TEST_F(ProgressForms, HaveAPictureForEachFaceOfTheCatalogue) {
  window->Load();
  std::set<std::string_view> keys;
  for (const CatalogueEntry& entry : Catalogue()) {
    if (!entry.faceKey.empty()) keys.insert(entry.faceKey);
  }
  EXPECT_THAT(keys, SizeIs(window->imlFaces.Layout().images.size()));
  std::set<std::string_view> pictures;
  for (const std::string_view key : keys) pictures.insert(window->imlFaces.Picture(key));
  EXPECT_THAT(pictures, SizeIs(keys.size()));
}

TEST_F(ProgressForms, HaveNoPictureForOtherKeys) {
  window->Load();
  for (const char* key : {"", "Comment", "TOGGLE"}) {
    const auto error = ResumeNext([&] { window->imlFaces.Picture(key); });
    ASSERT_TRUE(error) << key;
    EXPECT_EQ(error->Number(), error_number::kElementNotFound);
  }
}

TEST_F(ProgressForms, KeepTheBoxThroughWhichFacesArePastedOutOfSight) {
  window->Show();
  EXPECT_FALSE(window->picToolbar.IsShown());
  EXPECT_EQ(window->picToolbar.ScaleWidth(), 16);
  EXPECT_EQ(window->picToolbar.ScaleHeight(), 16);
}

TEST_F(ProgressForms, HaveRoomForTheirControlsAndTheLongestMessage) {
  window->ProgressMessage("Now adding default error handling to all procedures");
  EXPECT_THAT(LayoutFaults(*window), IsEmpty());
}

}  // namespace frmInfo_form_test
}  // namespace brimwork

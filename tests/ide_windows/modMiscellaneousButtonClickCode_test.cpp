#include "ide_windows/modMiscellaneousButtonClickCode.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "memory/memory_environment.h"
#include "memory/usual_windows.h"
#include "support/faulty_environment.h"
#include "support/shown_windows.h"

namespace brimwork {
namespace modMiscellaneousButtonClickCode_test {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

constexpr const char* kCode = "Sub A()\r\nEnd Sub";

/// A module stands open and has the focus; the Immediate window holds two lines.
struct ClearImmediate : testing::Test {
  ClearImmediate() { usual.immediateText->SetText("? 1 + 1\r\n 2 "); }

  void Clear() { ClearImmediateWindow(environment); }

  std::string Immediate() { return usual.immediateText->Text(); }
  std::string Code() { return pane->Module()->Lines(1, pane->Module()->CountOfLines()); }

  MemoryEnvironment memory;
  UsualWindows usual = AddUsualWindows(memory.vbe);
  std::shared_ptr<MemoryCodePane> pane = memory.Open("Module1", ModuleText::FromText(kCode));
  Environment environment = memory.Parts();
};

TEST_F(ClearImmediate, EmptiesTheWindowWhereverTheCaretWas) {
  usual.immediateText->Select(3, 2);
  Clear();
  EXPECT_EQ(Immediate(), "");
}

TEST_F(ClearImmediate, TheWindowHasTheFocusAfterwards) {
  Clear();
  EXPECT_EQ(memory.vbe.ActiveWindow(), usual.immediate);
}

TEST_F(ClearImmediate, CodeAndClipboardAreLeftAlone) {
  memory.clipboard.SetText("the user's");
  Clear();
  EXPECT_EQ(Code(), kCode);
  EXPECT_EQ(memory.clipboard.GetText(), "the user's");
}

TEST_F(ClearImmediate, AnEmptyWindowStaysEmpty) {
  usual.immediateText->SetText("");
  Clear();
  EXPECT_EQ(Immediate(), "");
}

TEST_F(ClearImmediate, AHiddenWindowKeepsItsTextAndTheFocusStaysWhereItIs) {
  usual.immediate->SetVisible(false);
  const auto active = memory.vbe.ActiveWindow();
  Clear();
  EXPECT_EQ(Immediate(), "? 1 + 1\r\n 2 ");
  EXPECT_EQ(memory.vbe.ActiveWindow(), active);
  EXPECT_FALSE(usual.immediate->Visible());
  EXPECT_EQ(Code(), kCode);
}

TEST_F(ClearImmediate, AWindowThatIsNotThereIsPassedOver) {
  memory.vbe.windows.Remove(*usual.immediate);
  Clear();
  EXPECT_EQ(Code(), kCode);
}

TEST_F(ClearImmediate, AWindowWithAnotherCaptionIsNotTheImmediateWindow) {
  usual.immediate->SetCaption("Immediate 2");
  Clear();
  EXPECT_EQ(Immediate(), "? 1 + 1\r\n 2 ");
}

TEST_F(ClearImmediate, SendsTwoKeystrokesAndWaitsForEach) {
  class NotingKeyboard : public Keyboard {
   public:
    void SendKeys(std::string_view keys, bool wait) override { sent.emplace_back(keys, wait); }
    std::vector<std::pair<std::string, bool>> sent;
  } keyboard;
  Environment noting = memory.Parts({.keyboard = &keyboard});
  ClearImmediateWindow(noting);
  EXPECT_THAT(keyboard.sent, ElementsAre(Pair("^(a)", true), Pair("{Del}", true)));
}

TEST_F(ClearImmediate, NoKeystrokeIsSentWhenTheWindowDoesNotTakeTheFocus) {
  FaultyEnvironment faulty(memory.Parts(), {.hits = [](int, std::string_view operation) {
                             return operation == "Window.SetFocus";
                           }});
  Environment failing = faulty.Parts();
  ClearImmediateWindow(failing);
  EXPECT_THAT(faulty.Operations(),
              ElementsAre("VBE.WindowOfCaption", "Window.Visible", "Window.SetFocus"));
  EXPECT_EQ(Code(), kCode);
}

TEST_F(ClearImmediate, NothingIsDeletedWhenTheTextCouldNotBeSelected) {
  usual.immediateText->Select(0, 0);
  FaultyEnvironment faulty(memory.Parts(),
                           {.hits = [first = true](int, std::string_view operation) mutable {
                             return operation == "Keyboard.SendKeys" && std::exchange(first, false);
                           }});
  Environment failing = faulty.Parts();
  ClearImmediateWindow(failing);
  EXPECT_EQ(Immediate(), "? 1 + 1\r\n 2 ");
}

TEST_F(ClearImmediate, WhicheverCallFailsTheCodeIsLeftAlone) {
  for (const auto kind :
       {Fault::Kind::kRaises, Fault::Kind::kRaisesBehind, Fault::Kind::kAnswersNothing}) {
    for (int call = 1; call <= 5; ++call) {
      pane->ContainingWindow()->SetFocus();
      FaultyEnvironment faulty(
          memory.Parts(),
          {.kind = kind, .hits = [=](int at, std::string_view) { return at == call; }});
      Environment failing = faulty.Parts();
      EXPECT_NO_THROW(ClearImmediateWindow(failing));
      EXPECT_EQ(Code(), kCode) << "call " << call;
    }
  }
}

/// Two code windows and a designer beside the tool windows; the first code window is active.
struct CloseWindows : testing::Test {
  CloseWindows() {
    memory.Open("Module1", ModuleText::FromText(kCode));
    memory.Open("Module2", ModuleText::FromText(kCode));
    memory.vbe.windows.Add("Form1 (Form)", window_type::kDesigner);
    Activate("Module1 (Code)");
  }

  void Activate(std::string_view caption) { memory.vbe.windows.OfCaption(caption)->SetFocus(); }

  void Close(bool includeActive) { CloseCodeWindows(environment, includeActive); }

  /// Closes while the calls that the test chose raise an error.
  void CloseWith(bool includeActive, std::function<bool(int, std::string_view)> hits) {
    FaultyEnvironment faulty(memory.Parts(), {.hits = std::move(hits)});
    Environment failing = faulty.Parts();
    CloseCodeWindows(failing, includeActive);
  }

  /// The captions of the open code windows and designers.
  std::vector<std::string> Open() {
    std::vector<std::string> captions;
    for (const auto& window : memory.vbe.Windows()) {
      if (window->Type() <= window_type::kDesigner) captions.push_back(window->Caption());
    }
    return captions;
  }

  MemoryEnvironment memory;
  UsualWindows usual = AddUsualWindows(memory.vbe);
  Environment environment = memory.Parts();
};

TEST_F(CloseWindows, TheActiveCodeWindowIsTheOnlyOneLeft) {
  Close(false);
  EXPECT_THAT(Open(), ElementsAre("Module1 (Code)"));
  EXPECT_EQ(memory.vbe.ActiveWindow()->Caption(), "Module1 (Code)");
  EXPECT_EQ(memory.vbe.ActiveCodePane()->Module()->Name(), "Module1");
}

TEST_F(CloseWindows, TheActiveDesignerIsTheOnlyOneLeft) {
  Activate("Form1 (Form)");
  Close(false);
  EXPECT_THAT(Open(), ElementsAre("Form1 (Form)"));
  EXPECT_EQ(memory.vbe.ActiveCodePane(), nullptr);
}

TEST_F(CloseWindows, TheActiveWindowIsClosedTooWhenIncluded) {
  Close(true);
  EXPECT_THAT(Open(), IsEmpty());
  EXPECT_EQ(memory.vbe.ActiveWindow(), nullptr);
  EXPECT_EQ(memory.vbe.ActiveCodePane(), nullptr);
}

TEST_F(CloseWindows, ToolWindowsAreNeverTouched) {
  usual.locals->SetVisible(true);
  const auto bars = ShownBars(memory.vbe);
  Close(true);
  EXPECT_THAT(ShownWindows(memory.vbe),
              ElementsAre("Visual Basic", "Project - Project1", "Properties - Module1", "Toolbox",
                          "Immediate", "Locals"));
  EXPECT_EQ(ShownBars(memory.vbe), bars);
}

TEST_F(CloseWindows, EveryCodeWindowIsClosedWhileAToolWindowIsActive) {
  Activate("Immediate");
  Close(false);
  EXPECT_THAT(Open(), IsEmpty());
  EXPECT_EQ(memory.vbe.ActiveWindow(), usual.immediate);
}

TEST_F(CloseWindows, EveryCodeWindowIsClosedWhileTheMainWindowHasTheFocus) {
  Activate("Visual Basic");
  ASSERT_EQ(memory.vbe.ActiveWindow(), nullptr);
  Close(false);
  EXPECT_THAT(Open(), IsEmpty());
}

TEST_F(CloseWindows, HiddenCodeWindowsAreClosedToo) {
  memory.vbe.windows.OfCaption("Module2 (Code)")->SetVisible(false);
  Close(false);
  EXPECT_THAT(Open(), ElementsAre("Module1 (Code)"));
}

TEST_F(CloseWindows, OfTwoWindowsWithOneCaptionOnlyTheActiveOneStays) {
  const auto twin = memory.vbe.windows.Add("Module1 (Code)", window_type::kCodeWindow);
  twin->SetFocus();
  Close(false);
  EXPECT_THAT(Open(), ElementsAre("Module1 (Code)"));
  EXPECT_EQ(memory.vbe.ActiveWindow(), twin);
}

TEST_F(CloseWindows, TheActiveWindowIsKnownThroughAnotherObjectForIt) {
  CloseWith(false, [](int, std::string_view) { return false; });
  EXPECT_THAT(Open(), ElementsAre("Module1 (Code)"));
}

TEST_F(CloseWindows, AWindowThatFailsToCloseStaysAndTheOthersAreClosed) {
  CloseWith(true, [first = true](int, std::string_view operation) mutable {
    return operation == "Window.Close" && std::exchange(first, false);
  });
  EXPECT_THAT(Open(), ElementsAre("Module1 (Code)"));
}

TEST_F(CloseWindows, AWindowThatCannotBeAskedForItsTypeStays) {
  CloseWith(true, [count = 0](int, std::string_view operation) mutable {
    return operation == "Window.Type" && ++count == 8;  // behind the main and the tool windows
  });
  EXPECT_THAT(Open(), ElementsAre("Module1 (Code)"));
}

TEST_F(CloseWindows, NoneIsClosedWhenNobodyKnowsTheActiveOne) {
  const auto activeFails = [](int, std::string_view operation) {
    return operation == "VBE.ActiveWindow";
  };
  CloseWith(false, activeFails);
  EXPECT_THAT(Open(), ElementsAre("Module1 (Code)", "Module2 (Code)", "Form1 (Form)"));
  CloseWith(true, activeFails);
  EXPECT_THAT(Open(), IsEmpty());
}

TEST_F(CloseWindows, AFailingCollectionIsPassedOver) {
  CloseWith(false, [](int, std::string_view operation) { return operation == "VBE.Windows"; });
  EXPECT_EQ(Open().size(), 3u);
}

TEST_F(CloseWindows, WhicheverCallFailsTheActiveWindowStays) {
  for (int call = 1; call <= 30; ++call) {
    CloseWith(false, [=](int at, std::string_view) { return at == call; });
    EXPECT_THAT(Open(), testing::Contains("Module1 (Code)")) << "call " << call;
  }
}

TEST_F(CloseWindows, WithoutAnyCodeWindowNothingHappens) {
  Close(true);
  Close(false);
  EXPECT_THAT(Open(), IsEmpty());
}

}  // namespace modMiscellaneousButtonClickCode_test
}  // namespace brimwork

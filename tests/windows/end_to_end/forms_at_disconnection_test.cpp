// The connection, or the editor, ends while forms of the add-in are open.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "support/windows/user.h"
#include "support/windows/waiting.h"
#include "windows/desktop/registry_settings_area.h"
#include "windows/end_to_end/bench_suite.h"
#include "windows/end_to_end/entry_clicks.h"
#include "windows/end_to_end/form_use.h"

namespace brimwork {
namespace forms_at_disconnection_test {

using ::testing::IsEmpty;

constexpr int kDesigner = 50;
constexpr int kConfigure = 62;
constexpr int kAbout = 63;

std::string StoredSeparator() {
  return windows::RegistrySettingsArea().GetSetting("Brimwork", "Settings", "Separator", "");
}

class FormsAtDisconnection : public BenchSuite {
 protected:
  void TearDown() override {
    if (!IsConnected()) Bench().Connect(true);
  }

  static bool IsConnected() {
    const bench::Client addIn =
        Bench().Vbe().Object(L"Addins").Object(L"Item", {win32::Variant("Brimwork.Connect")});
    return addIn.Call(L"Connect").value.ToBool();
  }

  static HWND OpenSetup() { return OpenForm(Bench(), kConfigure, "Brimwork Setup"); }
  static HWND OpenDesigner() { return OpenForm(Bench(), kDesigner, "MsgBox Creator"); }

  static void ExpectNoForms() {
    EXPECT_TRUE(WaitUntil([] { return FormsIn(Bench()).empty(); }));
    EXPECT_TRUE(IsWindowEnabled(Bench().MainWindow()));
  }
  /// The entries do their work again.
  static void ExpectItWorksAgain() {
    Bench().Connect(true);
    const HWND about = OpenForm(Bench(), kAbout, "About Brimwork");
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(Bench().WaitUntilGone(about));
  }
  static void AnswerByEnter(HWND box) {
    GiveKeyboardTo(box);
    PressKey(VK_RETURN);
    EXPECT_TRUE(Bench().WaitUntilGone(box));
  }
};

void TypeSeparator() {
  PressAccessKey('O');
  PressAccessKey('S');
  TypeOver("'....");
  ExpectText(KeyboardWindow(), "'....");
}

TEST_F(FormsAtDisconnection, TakesTheFormsAlongAndStoresTheSettings) {
  OpenSetup();
  TypeSeparator();
  OpenDesigner();
  PressAccessKey('C');
  WaitForKeyboardIn(Bench(), "MsgBox Code");
  OpenForm(Bench(), kAbout, "About Brimwork");
  EXPECT_EQ(FormsIn(Bench()).size(), 4u);
  Bench().Connect(false);
  ExpectNoForms();
  EXPECT_EQ(StoredSeparator(), "'....");
  ExpectItWorksAgain();
}

TEST_F(FormsAtDisconnection, LeavesAQuestionOfTheSetupDialogToBeAnswered) {
  const HWND form = OpenSetup();
  PressAccessKey('K');
  PressAccessKey('R');
  PressAccessKey('S');
  const HWND question = WaitForKeyboardIn(Bench(), "Reset List");
  Bench().Connect(false);
  EXPECT_TRUE(Bench().WaitUntilGone(form));
  if (IsWindow(question)) AnswerByEnter(question);
  ExpectNoForms();
  ExpectItWorksAgain();
}

TEST_F(FormsAtDisconnection, LeavesAPreviewToBeAnswered) {
  const HWND form = OpenDesigner();
  TypeText("Go on?");
  PressAccessKey('T');
  TypeText("Stock");
  PressAccessKey('V');
  const HWND box = WaitForKeyboardIn(Bench(), "Stock");
  Bench().Connect(false);
  EXPECT_TRUE(Bench().WaitUntilGone(form));
  if (IsWindow(box)) AnswerByEnter(box);
  ExpectNoForms();
  ExpectItWorksAgain();
}

/// Its owner is the designer, and timers are at work on it.
TEST_F(FormsAtDisconnection, EndsACustomPreviewWithItsForm) {
  OpenDesigner();
  TypeText("Go on?");
  PressAccessKey('T');
  TypeText("Stock");
  PressAccessKey('U');
  PressAccessKey('E');
  TypeText("20");
  PressAccessKey('K');
  TypeText("Again");
  PressAccessKey('V');
  const HWND box = WaitForKeyboardIn(Bench(), "Stock");
  EXPECT_TRUE(WaitUntil([&] { return ChildOf(box, "BUTTON", "Again") != nullptr; }));
  Bench().Connect(false);
  if (IsWindow(box) && IsWindowVisible(box)) AnswerByEnter(box);
  ExpectNoForms();
  ExpectItWorksAgain();
}

TEST(FormsAtTheEndOfTheBench, GoWithIt) {
  const RegisteredLibrary library;
  RunningBench bench;
  OpenForm(bench, kDesigner, "MsgBox Creator");
  OpenForm(bench, kConfigure, "Brimwork Setup");
  TypeSeparator();
  const auto report = bench.End();
  EXPECT_EQ(report["connections"][0]["heldReferences"], 0) << report.dump(2);
  EXPECT_EQ(report["connections"][0]["ended"], true);
  EXPECT_THAT(report["connections"][0]["complaints"], IsEmpty());
  EXPECT_EQ(StoredSeparator(), "'....");
}

}  // namespace forms_at_disconnection_test
}  // namespace brimwork

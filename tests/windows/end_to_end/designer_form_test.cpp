// The message box designer and its code viewer in the bench, used by keyboard: the boxes that they
// show, and the code that they make as in plain data.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "msgbox/module_source.h"
#include "support/designer_fixture.h"
#include "support/windows/user.h"
#include "support/windows/waiting.h"
#include "win32/wide_text.h"
#include "windows/end_to_end/bench_suite.h"
#include "windows/end_to_end/bench_windows.h"
#include "windows/end_to_end/form_use.h"

namespace brimwork {
namespace designer_form_test {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using win32::Variant;

constexpr int kDesignerInMenu = 9;
constexpr int kDesignerOnToolbar = 50;
constexpr const char* kDesigner = "MsgBox Creator";
constexpr const char* kViewer = "MsgBox Code";
constexpr const char* kModule = "modCustomMsgBox";

class DesignerInTheBench : public BenchSuite {
 protected:
  void SetUp() override { form = OpenForm(Bench(), kDesignerOnToolbar, kDesigner); }
  void TearDown() override {
    if (IsWindow(form)) SendMessageW(form, WM_CLOSE, 0, 0);
    for (const HWND window : Bench().OtherWindows()) SendMessageW(window, WM_CLOSE, 0, 0);
    RemoveModule();
  }

  /// A question with a quoted word, on two lines.
  void DesignQuestion() const {
    TypeText("Delete \"Größe\"?");
    PressKey(VK_RETURN, {VK_CONTROL});
    TypeText("It is in use.");
    PressAccessKey('T');
    TypeText("Stock");
    PressAccessKey('B');
    PressKeys(VK_DOWN, 2);
    PressAccessKey('O');
    PressKeys(VK_RIGHT, 4);
    PressKey(VK_SPACE);
  }
  void DesignQuestionIn(DesignerFixture& memory) const {
    memory.form.txtMsgBoxText.Type("Delete \"Größe\"?\r\nIt is in use.");
    memory.form.txtMsgBoxTitle.Type("Stock");
    memory.ChooseButtons("vbYesNo");
    memory.form.cmdIcons(4).Click();
  }

  void UseCustomFeatures(const char* timeOut) const {
    PressAccessKey('U');
    PressAccessKey('S');
    TypeText("40");
    PressKey(VK_TAB);
    TypeText("50");
    PressAccessKey('E');
    TypeText(timeOut);
    PressAccessKey('K');
    TypeText("Again");
    PressAccessKey('1');
    TypeText("&Ja");
  }
  void UseCustomFeaturesIn(DesignerFixture& memory, const char* timeOut) const {
    memory.SetPosition("40", "50");
    memory.SetTimeOut(timeOut);
    memory.SetCheckBox("Again");
    memory.SetCaption(0, "&Ja");
  }

  HWND WaitForPreview() const {
    const HWND box = WaitForKeyboardIn(Bench(), "Stock");
    EXPECT_EQ(MessageIn(box), "Delete \"Größe\"?\r\nIt is in use.");
    return box;
  }
  void ExpectStatus(const std::string& text) const {
    ExpectText(ChildOf(form, "msctls_statusbar32"), text);
  }

  HWND OpenViewer() const {
    PressAccessKey('C');
    return WaitForKeyboardIn(Bench(), kViewer);
  }
  std::string CodeIn(HWND viewer) const { return TitleOf(ChildOf(viewer, "EDIT")); }

  void Answer(const char* title, const char* text) const {
    const HWND box = WaitForKeyboardIn(Bench(), title);
    EXPECT_THAT(MessageIn(box), HasSubstr(text));
    PressKey(VK_RETURN);
    EXPECT_TRUE(Bench().WaitUntilGone(box));
  }

  static bench::Client Components() {
    return Bench().Vbe().Object(L"ActiveVBProject").Object(L"VBComponents");
  }
  /// The modules of that name, however many.
  static std::vector<bench::Client> Modules() {
    std::vector<bench::Client> modules;
    const bench::Client components = Components();
    const long count = components.Number(L"Count");
    for (long i = 1; i <= count; ++i) {
      const bench::Client component = components.Object(L"Item", {Variant(i)});
      if (component.Text(L"Name") == kModule) modules.push_back(component);
    }
    return modules;
  }
  static void RemoveModule() {
    for (const bench::Client& module : Modules()) {
      Components().Call(L"Remove", {Variant(win32::ComPointer<IDispatch>(module.Raw()))});
    }
  }

  HWND form = nullptr;
};

TEST_F(DesignerInTheBench, ShowsTheDesignedMessageBoxAndTellsWhatWasChosen) {
  DesignQuestion();
  PressAccessKey('V');
  const HWND box = WaitForPreview();
  EXPECT_NE(ChildOf(box, "BUTTON", "Yes"), nullptr);
  PressKey(VK_RIGHT);
  PressKey(VK_RETURN);
  EXPECT_TRUE(Bench().WaitUntilGone(box));
  ExpectStatus("Button Clicked: vbNo");
  WaitForKeyboardIn(Bench(), kDesigner);
  PressAccessKey('P');
  PressKey(VK_RETURN);
  const HWND again = WaitForPreview();
  PressKey(VK_RETURN);
  EXPECT_TRUE(Bench().WaitUntilGone(again));
  ExpectStatus("Button Clicked: vbYes");
}

TEST_F(DesignerInTheBench, MakesTheCodeThatIsCopiedAndPastedIntoTheModule) {
  DesignerFixture memory;
  DesignQuestionIn(memory);
  const bench::Client pane = ShowText("modStock", "Sub Ask()\r\n  \r\nEnd Sub", 2, 3);
  GiveKeyboardTo(form);
  DesignQuestion();
  const HWND viewer = OpenViewer();
  EXPECT_EQ(CodeIn(viewer), memory.Code());
  PressKey('A', {VK_CONTROL});
  PressKey('C', {VK_CONTROL});
  PressKey(VK_ESCAPE);
  EXPECT_TRUE(Bench().WaitUntilGone(viewer));
  WaitForKeyboardIn(Bench(), kDesigner);
  PressKey(VK_ESCAPE);
  EXPECT_TRUE(Bench().WaitUntilGone(form));
  PressKey('V', {VK_CONTROL});
  const std::string expected = "Sub Ask()\r\n  " + memory.Code() + "\r\nEnd Sub";
  WaitUntil([&] { return TextOf(pane) == expected; });
  EXPECT_EQ(TextOf(pane), expected);
}

TEST_F(DesignerInTheBench, ShowsTheCustomFeatures) {
  DesignQuestion();
  UseCustomFeatures("20");
  PressAccessKey('V');
  const HWND box = WaitForPreview();
  EXPECT_TRUE(WaitUntil([&] { return ChildOf(box, "BUTTON", "Again") != nullptr; }));
  EXPECT_TRUE(WaitUntil([&] { return ChildOf(box, "BUTTON", "Ja") != nullptr; }));
  EXPECT_NE(ChildOf(box, "BUTTON", "No"), nullptr);
  RECT place{};
  EXPECT_TRUE(WaitUntil([&] { return GetWindowRect(box, &place) && place.left == 40; }));
  EXPECT_EQ(place.top, 50);
  PressKey(VK_RETURN);
  EXPECT_TRUE(Bench().WaitUntilGone(box));
  ExpectStatus("Button Clicked: vbYes CheckBox Value: False");
}

TEST_F(DesignerInTheBench, ClosesTheMessageBoxWhenItsTimeIsUp) {
  DesignQuestion();
  UseCustomFeatures("1");
  PressAccessKey('V');
  const HWND box = WaitForPreview();
  EXPECT_TRUE(Bench().WaitUntilGone(box));
  ExpectStatus("Button Clicked: vbYes CheckBox Value: False");
}

TEST_F(DesignerInTheBench, AddsTheModuleOfACustomMessageBoxOnce) {
  DesignerFixture memory;
  DesignQuestionIn(memory);
  UseCustomFeaturesIn(memory, "3");
  memory.UseProject().AddModule(kModule, "");
  DesignQuestion();
  UseCustomFeatures("3");
  PressAccessKey('C');
  Answer("Add Required Module", "Would you like me to add the required module");
  Answer("Added Required Module", "Added modCustomMsgBox to your project");
  EXPECT_EQ(CodeIn(WaitForKeyboardIn(Bench(), kViewer)), memory.Code());
  GiveKeyboardTo(form);
  OpenViewer();
  const std::vector<bench::Client> modules = Modules();
  ASSERT_EQ(modules.size(), 1u);
  const bench::Client code = modules.front().Object(L"CodeModule");
  const long count = code.Number(L"CountOfLines");
  EXPECT_EQ(code.Text(L"Lines", {Variant(1), Variant(count)}), kModCustomMsgBoxSource);
}

TEST_F(DesignerInTheBench, ShowsTheCodeWithoutTheModuleOnNo) {
  UseCustomFeatures("3");
  PressAccessKey('C');
  const HWND question = WaitForKeyboardIn(Bench(), "Add Required Module");
  PressKey(VK_RIGHT);
  PressKey(VK_RETURN);
  EXPECT_TRUE(Bench().WaitUntilGone(question));
  EXPECT_THAT(CodeIn(WaitForKeyboardIn(Bench(), kViewer)), HasSubstr("CreateSpecialMsgBox "));
  EXPECT_THAT(Modules(), IsEmpty());
}

TEST_F(DesignerInTheBench, KeepsAMarginAroundTheCodeInAWindowOfAnySize) {
  const HWND viewer = OpenViewer();
  const HWND code = ChildOf(viewer, "EDIT");
  for (const SIZE size : {SIZE{700, 300}, SIZE{300, 200}}) {
    SetWindowPos(viewer, nullptr, 0, 0, size.cx, size.cy, SWP_NOZORDER);
    RECT inside{};
    GetClientRect(viewer, &inside);
    RECT box{};
    GetWindowRect(code, &box);
    MapWindowPoints(nullptr, viewer, reinterpret_cast<POINT*>(&box), 2);
    EXPECT_EQ(box.left, 10);
    EXPECT_EQ(box.top, 10);
    EXPECT_EQ(box.right, inside.right - 10);
    EXPECT_EQ(box.bottom, inside.bottom - 10);
  }
}

TEST_F(DesignerInTheBench, TakesTheViewerWithItWhenItIsLeftAndOpensFromTheMenuToo) {
  const HWND viewer = OpenViewer();
  GiveKeyboardTo(form);
  PressAccessKey('X');
  EXPECT_TRUE(Bench().WaitUntilGone(form));
  EXPECT_TRUE(Bench().WaitUntilGone(viewer));
  form = OpenForm(Bench(), kDesignerInMenu, kDesigner);
  EXPECT_TRUE(IsWindowVisible(form));
}

}  // namespace designer_form_test
}  // namespace brimwork

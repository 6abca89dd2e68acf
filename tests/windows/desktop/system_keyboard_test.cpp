// Keystrokes, messages and the screen, on windows of the test's own.
#include "windows/desktop/system_keyboard.h"

#include <gtest/gtest.h>

#include <chrono>

#include "environment/resume_next.h"
#include "win32/wide_text.h"
#include "windows/desktop/system_clipboard.h"
#include "windows/desktop/system_screen.h"

namespace brimwork::windows {
namespace system_keyboard_test {

/// A window with a box for text, which has the focus. Desktops take their time to show one, so all
/// tests share it.
struct SystemKeyboardTest : testing::Test {
  static void SetUpTestSuite() {
    window =
        CreateWindowExW(0, L"STATIC", L"Brimwork keyboard test", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                        20, 20, 300, 100, nullptr, nullptr, nullptr, nullptr);
    box = CreateWindowExW(0, L"EDIT", nullptr, WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, 0, 0, 280,
                          30, window, nullptr, nullptr, nullptr);
  }
  static void TearDownTestSuite() {
    DestroyWindow(window);
    ThreadMessages().DoEvents();
  }

  SystemKeyboardTest() {
    SetForegroundWindow(window);
    SetFocus(box);
    messages.DoEvents();
    SetWindowTextW(box, L"");
  }

  bool HasNoFocus() const { return GetForegroundWindow() != window || GetFocus() != box; }
  std::string Text() {
    wchar_t text[200];
    GetWindowTextW(box, text, 200);
    return win32::Narrow(text);
  }

  static inline HWND window = nullptr;
  static inline HWND box = nullptr;

  ThreadMessages messages;
  SystemKeyboard keyboard{messages};
};

TEST_F(SystemKeyboardTest, KeysHaveBeenTypedWhenTheCallReturns) {
  if (HasNoFocus()) GTEST_SKIP() << "this desktop gives a window no focus";
  keyboard.SendKeys("Dim x{(}3{)}", true);
  EXPECT_EQ(Text(), "Dim x(3)");
}

TEST_F(SystemKeyboardTest, CharactersOfAnyAlphabetAreTyped) {
  if (HasNoFocus()) GTEST_SKIP() << "this desktop gives a window no focus";
  keyboard.SendKeys("Größe 日本", true);
  EXPECT_EQ(Text(), "Größe 日本");
}

TEST_F(SystemKeyboardTest, CopyAndPasteGoByTheClipboard) {
  if (HasNoFocus()) GTEST_SKIP() << "this desktop gives a window no focus";
  SystemClipboard clipboard({});
  clipboard.SetText("x = 1");
  keyboard.SendKeys("^(v)", true);
  EXPECT_EQ(Text(), "x = 1");
  keyboard.SendKeys("+{HOME}^(c){Del}", true);
  EXPECT_EQ(Text(), "");
  EXPECT_EQ(clipboard.GetText(), "x = 1");
}

TEST_F(SystemKeyboardTest, WithoutWaitingKeysComeWithLaterMessages) {
  if (HasNoFocus()) GTEST_SKIP() << "this desktop gives a window no focus";
  keyboard.SendKeys("ab", false);
  EXPECT_EQ(Text(), "");
  messages.HandleKeys(4);
  EXPECT_EQ(Text(), "ab");
}

TEST_F(SystemKeyboardTest, WaitingEndsWhenNoKeyComes) {
  const auto start = std::chrono::steady_clock::now();
  messages.HandleKeys(2);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

TEST_F(SystemKeyboardTest, TextThatIsNoNotationTypesNothing) {
  EXPECT_EQ(ResumeNext([&] { keyboard.SendKeys("a{NONE}", true); })->Number(), 5);
  EXPECT_EQ(Text(), "");
}

TEST_F(SystemKeyboardTest, AMessageMayBeTakenBeforeItGoesToItsWindow) {
  int taken = 0;
  messages.translate = [&](MSG& message) { return message.message == WM_APP && ++taken > 0; };
  PostMessageW(box, WM_APP, 0, 0);
  messages.DoEvents();
  EXPECT_EQ(taken, 1);
}

TEST_F(SystemKeyboardTest, TheMessageThatEndsTheProgramIsLeftForItsLoop) {
  PostQuitMessage(7);
  messages.DoEvents();
  MSG message;
  ASSERT_TRUE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE));
  EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
  EXPECT_EQ(message.wParam, 7u);
}

TEST_F(SystemKeyboardTest, TheScreenFindsAWindowByItsTitle) {
  SystemScreen screen;
  EXPECT_EQ(screen.FindWindowByTitle("Brimwork keyboard test"),
            reinterpret_cast<WindowHandle>(window));
  EXPECT_EQ(screen.FindWindowByTitle("Brimwork keyboard"), 0u);
}

TEST_F(SystemKeyboardTest, AFrozenWindowIsDrawnAgainAfterwards) {
  SystemScreen screen;
  screen.LockWindowUpdate(reinterpret_cast<WindowHandle>(box));
  EXPECT_FALSE(::LockWindowUpdate(box));
  screen.LockWindowUpdate(0);
  EXPECT_TRUE(::LockWindowUpdate(box));
  ::LockWindowUpdate(nullptr);
}

TEST_F(SystemKeyboardTest, ThePointerIsTheHourglassUntilItIsPutBack) {
  SystemScreen screen;
  EXPECT_EQ(screen.MousePointer(), mouse_pointer::kDefault);
  screen.SetMousePointer(mouse_pointer::kHourglass);
  EXPECT_EQ(screen.MousePointer(), mouse_pointer::kHourglass);
  EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_WAIT));
  screen.SetMousePointer(mouse_pointer::kDefault);
  EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_ARROW));
}

}  // namespace system_keyboard_test
}  // namespace brimwork::windows

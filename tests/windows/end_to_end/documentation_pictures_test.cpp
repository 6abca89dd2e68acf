// The pictures of the documents, taken from the bench as it is. They are written where
// BRIMWORK_PICTURES names a folder.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <thread>

#include "bench/screen/screenshot.h"
#include "support/windows/user.h"
#include "support/windows/waiting.h"
#include "windows/end_to_end/bench_suite.h"
#include "windows/end_to_end/entry_clicks.h"
#include "windows/end_to_end/form_use.h"

namespace brimwork {
namespace documentation_pictures_test {

constexpr int kCommentAll = 2;
constexpr int kDesigner = 50;
constexpr int kConfigure = 62;
constexpr int kAbout = 63;
constexpr const wchar_t* kProgress = L"Comment All Procedures";

constexpr const char* kCode =
    "Option Explicit\r\n"
    "\r\n"
    "' The price of the parts on a shelf, without those that are worn.\r\n"
    "Public Function ShelfPrice(ByVal shelf As Long) As Currency\r\n"
    "    Dim part As Long\r\n"
    "    For part = 1 To PartCount(shelf)\r\n"
    "        If Not IsWorn(shelf, part) Then\r\n"
    "            ShelfPrice = ShelfPrice + PriceOf(shelf, part)\r\n"
    "        End If\r\n"
    "    Next part\r\n"
    "End Function\r\n";

const char* Folder() { return std::getenv("BRIMWORK_PICTURES"); }

class DocumentationPictures : public BenchSuite {
 protected:
  // A suite that is skipped needs no bench.
  static void SetUpTestSuite() {
    if (Folder() != nullptr) BenchSuite::SetUpTestSuite();
  }
  static void TearDownTestSuite() {
    if (Folder() != nullptr) BenchSuite::TearDownTestSuite();
  }

  void SetUp() override {
    if (Folder() == nullptr) GTEST_SKIP() << "BRIMWORK_PICTURES names no folder";
    SetCursorPos(0, 0);
    ShowText("modStock", kCode, 8, 1);
  }

  /// Once everything is drawn.
  static void Save(HWND window, const std::string& name) {
    constexpr DWORD kTimeToDraw = 400;
    Sleep(kTimeToDraw);
    const auto file = std::filesystem::path(Folder()) / (name + ".png");
    bench::SaveWindowPicture(window, file);
    EXPECT_LT(std::filesystem::file_size(file), 100'000u) << name;
  }
  static void Close(HWND form) {
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(Bench().WaitUntilGone(form));
  }
};

TEST_F(DocumentationPictures, ShowTheBenchWithTheToolbar) {
  GiveKeyboardTo(Bench().MainWindow());
  Save(Bench().MainWindow(), "bench-with-toolbar");
}

TEST_F(DocumentationPictures, ShowEachPageOfTheSetupDialog) {
  const HWND form = OpenForm(Bench(), kConfigure, "Brimwork Setup");
  Save(form, "setup");
  PressAccessKey('H');
  Save(form, "setup-headers");
  PressAccessKey('K');
  Save(form, "setup-keywords");
  PressAccessKey('O');
  Save(form, "setup-other");
  Close(form);
}

TEST_F(DocumentationPictures, ShowTheDesignerAndItsCode) {
  const HWND form = OpenForm(Bench(), kDesigner, "MsgBox Creator");
  TypeText("This shelf is empty.");
  PressKey(VK_RETURN, {VK_CONTROL});
  TypeText("Order new parts?");
  PressAccessKey('T');
  TypeText("Stock");
  PressAccessKey('B');
  PressKeys(VK_DOWN, 2);
  PressAccessKey('O');
  PressKeys(VK_RIGHT, 4);
  PressKey(VK_SPACE);
  Save(form, "message-box-designer");
  PressAccessKey('C');
  const HWND viewer = WaitForKeyboardIn(Bench(), "MsgBox Code");
  Save(viewer, "code-viewer");
  Close(viewer);
  WaitForKeyboardIn(Bench(), "MsgBox Creator");
  Close(form);
}

TEST_F(DocumentationPictures, ShowTheAboutBox) {
  const HWND form = OpenForm(Bench(), kAbout, "About Brimwork");
  Save(form, "about");
  Close(form);
}

TEST_F(DocumentationPictures, ShowTheProgressWindow) {
  std::string text;
  for (int i = 0; i < 8000; ++i) text += "Sub Shelf" + std::to_string(i) + "()\r\nEnd Sub\r\n";
  ShowText("modStock", text, 1, 1);
  // The test waits for the command where it lets go of the menu's entries.
  HWND progress = nullptr;
  std::thread photographer([&] {
    WaitUntil([&] { return IsWindowVisible(progress = FindWindowW(nullptr, kProgress)) != 0; });
    Save(progress, "progress");
  });
  ClickEntry(Bench(), EntryOf(kCommentAll));
  photographer.join();
  EXPECT_TRUE(Bench().WaitUntilGone(progress));
}

}  // namespace documentation_pictures_test
}  // namespace brimwork

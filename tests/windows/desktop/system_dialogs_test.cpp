// The system's own dialogs, opened for real and answered as a user would.
#include "windows/desktop/system_dialogs.h"

#include <gtest/gtest.h>
#include <shlobj.h>

#include "support/temporary_folder.h"
#include "support/windows/dialog_answer.h"
#include "win32/wide_text.h"
#include "windows/desktop/handles.h"
#include "windows/desktop/system_message_boxes.h"
#include "windows/desktop/thread_messages.h"

namespace brimwork::windows {
namespace system_dialogs_test {

constexpr int kPromptId = 0xFFFF;  // of a message box

class SystemDialogsTest : public testing::Test {
 protected:
  SystemDialogsTest() {
    main_ =
        CreateWindowExW(0, L"STATIC", L"Brimwork dialogs test", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                        20, 20, 300, 100, nullptr, nullptr, nullptr, nullptr);
    hidden_ = CreateWindowExW(0, L"STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr,
                              nullptr);
  }
  ~SystemDialogsTest() override {
    DestroyWindow(hidden_);
    DestroyWindow(main_);
    ThreadMessages().DoEvents();
  }

  std::string PathOf(std::string_view name) {
    const std::u8string path = (folder_ / name).u8string();
    return std::string(path.begin(), path.end());
  }

  SaveFileRequest Request() {
    SaveFileRequest request;
    request.structSize = 76;
    request.owner = AsHandle(hidden_);
    request.filter = std::string("Web Page (*.htm)\0*.htm", 22);
    request.file.assign(255, '\0');
    request.fileSize = 255;
    request.initialFolder = PathOf(".");
    request.title = "Save Exported Code";
    request.flags = 0x80006;
    request.defaultExtension = "htm";
    return request;
  }

  /// Types a name into the save dialog and presses OK.
  static auto Typing(const std::wstring& name) {
    return [name](HWND dialog) {
      SendMessageW(DialogAnswer::ChildOf(dialog, L"Edit"), WM_SETTEXT, 0,
                   reinterpret_cast<LPARAM>(name.c_str()));
      DialogAnswer::Press(dialog, IDOK);
    };
  }

  TemporaryFolder folder_;
  HWND main_;
  HWND hidden_;
  SystemDialogs dialogs_{[this] { return main_; }};
};

TEST_F(SystemDialogsTest, AMessageBoxSaysWhatItIsToldAndGivesTheButton) {
  std::wstring prompt;
  HWND owner = nullptr;
  int button = 0;
  {
    const DialogAnswer answer(L"Tïtle 日本", [&](HWND box) {
      prompt = DialogAnswer::TextOf(GetDlgItem(box, kPromptId));
      owner = GetWindow(box, GW_OWNER);
      DialogAnswer::Press(box, IDNO);
    });
    button = dialogs_.MsgBox("Größe 日本?", message_box::kYesNo, "Tïtle 日本");
  }
  EXPECT_EQ(button, IDNO);
  EXPECT_TRUE(prompt == L"Größe 日本?");
  EXPECT_EQ(owner, main_);
}

TEST_F(SystemDialogsTest, AMessageBoxBelongsToTheWindowThatTheUserWorksIn) {
  HWND form = CreateWindowExW(0, L"STATIC", L"Brimwork form", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 40,
                              40, 300, 100, main_, nullptr, nullptr, nullptr);
  SetActiveWindow(form);
  HWND owner = nullptr;
  {
    const DialogAnswer answer(L"Brimwork", [&](HWND box) {
      owner = GetWindow(box, GW_OWNER);
      DialogAnswer::Press(box, IDOK);
    });
    dialogs_.MsgBox("Done.", message_box::kOkOnly, "Brimwork");
  }
  EXPECT_EQ(owner, form);
  EXPECT_EQ(GetActiveWindow(), form);
  DestroyWindow(form);
}

TEST_F(SystemDialogsTest, ThePlainBoxHasTheOwnerThatIsGiven) {
  HWND owner = nullptr;
  bool wasDisabled = false;
  int button = 0;
  {
    const DialogAnswer answer(L"Brimwork", [&](HWND box) {
      owner = GetWindow(box, GW_OWNER);
      wasDisabled = !IsWindowEnabled(main_);
      DialogAnswer::Press(box, IDRETRY);
    });
    button = SystemMessageBoxes().MessageBox(AsHandle(main_), "Again?", "Brimwork",
                                             MB_ABORTRETRYIGNORE | MB_ICONQUESTION);
  }
  EXPECT_EQ(button, message_box_result::kRetry);
  EXPECT_EQ(owner, main_);
  EXPECT_TRUE(wasDisabled);
  EXPECT_TRUE(IsWindowEnabled(main_));
}

TEST_F(SystemDialogsTest, APlainBoxThatCannotBeShownGivesZero) {
  EXPECT_EQ(SystemMessageBoxes().MessageBox(0xBAD, "Text", "Title", MB_OK), 0);
}

TEST_F(SystemDialogsTest, TheSaveDialogGivesThePathWithItsExtension) {
  SaveFileRequest request = Request();
  HWND owner = nullptr;
  wchar_t before[MAX_PATH];
  GetCurrentDirectoryW(MAX_PATH, before);
  bool isSaved = false;
  {
    const DialogAnswer answer(L"Save Exported Code", [&](HWND dialog) {
      owner = GetWindow(dialog, GW_OWNER);
      Typing(L"Größe 日本")(dialog);
    });
    isSaved = dialogs_.GetSaveFileName(request);
  }
  ASSERT_TRUE(isSaved);
  const std::string path = request.file.substr(0, request.file.find('\0'));
  EXPECT_TRUE(path.ends_with("\\Größe 日本.htm")) << path;
  EXPECT_EQ(request.file.size(), 255u);
  EXPECT_EQ(owner, main_);
  wchar_t after[MAX_PATH];
  GetCurrentDirectoryW(MAX_PATH, after);
  EXPECT_STREQ(before, after);
}

TEST_F(SystemDialogsTest, TheBufferGrowsForALongPath) {
  SaveFileRequest request = Request();
  request.file.assign(10, '\0');
  request.fileSize = 10;
  bool isSaved = false;
  {
    const DialogAnswer answer(L"Save Exported Code", Typing(L"page.htm"));
    isSaved = dialogs_.GetSaveFileName(request);
  }
  ASSERT_TRUE(isSaved);
  EXPECT_TRUE(request.file.ends_with(std::string_view("\\page.htm\0", 10)));
}

TEST_F(SystemDialogsTest, ACancelledSaveDialogChangesNothing) {
  SaveFileRequest request = Request();
  bool isSaved = true;
  {
    const DialogAnswer answer(L"Save Exported Code",
                              [](HWND dialog) { DialogAnswer::Press(dialog, IDCANCEL); });
    isSaved = dialogs_.GetSaveFileName(request);
  }
  EXPECT_FALSE(isSaved);
  EXPECT_EQ(request.file, std::string(255, '\0'));
}

TEST_F(SystemDialogsTest, TheFolderBrowserGivesTheChosenFolder) {
  std::filesystem::create_directory(folder_ / "Größe");
  const std::wstring wanted = (folder_ / "Größe").wstring();
  std::string path;
  {
    const DialogAnswer answer(L"", [&](HWND dialog) {
      SendMessageW(dialog, BFFM_SETSELECTIONW, TRUE, reinterpret_cast<LPARAM>(wanted.c_str()));
      DialogAnswer::Press(dialog, IDOK);
    });
    path = dialogs_.BrowseForFolder({AsHandle(main_), "Pick a folder", 3});
  }
  EXPECT_TRUE(std::filesystem::equivalent(win32::Wide(path), wanted)) << path;
  EXPECT_FALSE(path.ends_with('\\'));
}

TEST_F(SystemDialogsTest, ACancelledFolderBrowserGivesNothing) {
  std::string path = "before";
  {
    const DialogAnswer answer(L"", [](HWND dialog) { DialogAnswer::Press(dialog, IDCANCEL); });
    path = dialogs_.BrowseForFolder({AsHandle(main_), "Pick a folder", 3});
  }
  EXPECT_EQ(path, "");
}

}  // namespace system_dialogs_test
}  // namespace brimwork::windows

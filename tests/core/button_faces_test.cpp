#include "core/button_faces.h"

#include <gtest/gtest.h>

#include "environment/resume_next.h"
#include "memory/memory_environment.h"

namespace brimwork {
namespace button_faces_test {

struct ButtonFaces : testing::Test {
  MemoryEnvironment memory;
  frmInfo window{memory.Parts()};
};

TEST_F(ButtonFaces, GoToTheClipboardThroughTheToolbarsPictureBox) {
  PutFaceOnClipboard(window, memory.clipboard, "INDENT");
  EXPECT_EQ(window.picToolbar.Picture, "faces/indent");
  EXPECT_EQ(memory.clipboard.Picture(), "faces/indent");
}

TEST_F(ButtonFaces, LoadTheProgressWindowThatCarriesThem) {
  EXPECT_FALSE(window.IsLoaded());
  PutFaceOnClipboard(window, memory.clipboard, "HELP");
  EXPECT_TRUE(window.IsLoaded());
  EXPECT_FALSE(window.Visible());
}

TEST_F(ButtonFaces, TakeThePlaceOfWhatTheClipboardHeld) {
  memory.clipboard.SetText("copied");
  PutFaceOnClipboard(window, memory.clipboard, "TEXT");
  EXPECT_EQ(memory.clipboard.GetText(), "");
  EXPECT_EQ(memory.clipboard.Picture(), "faces/text");
}

TEST_F(ButtonFaces, AKeyWithoutAPictureRaisesAnErrorAndLeavesTheClipboard) {
  memory.clipboard.SetText("copied");
  for (const char* key : {"NOTHING", "indent", ""}) {
    const auto error = ResumeNext([&] { PutFaceOnClipboard(window, memory.clipboard, key); });
    ASSERT_TRUE(error) << key;
    EXPECT_EQ(error->Number(), error_number::kElementNotFound) << key;
  }
  EXPECT_EQ(memory.clipboard.GetText(), "copied");
}

}  // namespace button_faces_test
}  // namespace brimwork

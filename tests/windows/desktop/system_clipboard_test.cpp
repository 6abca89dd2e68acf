// The clipboard, which these tests have to themselves: they run in a desktop of their own.
#include "windows/desktop/system_clipboard.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstring>
#include <fstream>
#include <iterator>
#include <thread>
#include <vector>

#include "environment/resume_next.h"
#include "windows/desktop/button_face.h"

namespace brimwork::windows {
namespace system_clipboard_test {

std::vector<std::uint8_t> BytesOfFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

const std::vector<std::uint8_t>& Face() {
  static const auto kFace =
      BytesOfFile(std::string(BRIMWORK_SOURCE_DIR) + "/resources/faces/adaptedheader.bmp");
  return kFace;
}

struct SystemClipboardTest : testing::Test {
  std::vector<std::uint8_t> Held(UINT format) {
    OpenClipboard(nullptr);
    const HGLOBAL memory = GetClipboardData(format);
    std::vector<std::uint8_t> bytes;
    if (memory != nullptr) {
      const auto* const first = static_cast<const std::uint8_t*>(GlobalLock(memory));
      bytes.assign(first, first + GlobalSize(memory));
      GlobalUnlock(memory);
    }
    CloseClipboard();
    return bytes;
  }

  SystemClipboard clipboard{[](std::string_view name) {
    return name == "face" ? std::span<const std::uint8_t>(Face()) : std::span<const std::uint8_t>();
  }};
};

TEST_F(SystemClipboardTest, GivesBackTextInAnyAlphabet) {
  clipboard.SetText("Größe\r\n日本 Ж \xF0\x9F\x98\x80");
  EXPECT_EQ(clipboard.GetText(), "Größe\r\n日本 Ж \xF0\x9F\x98\x80");
  clipboard.SetText("");
  EXPECT_EQ(clipboard.GetText(), "");
}

TEST_F(SystemClipboardTest, HoldsNoTextOnceItIsCleared) {
  clipboard.SetText("x");
  clipboard.Clear();
  EXPECT_EQ(clipboard.GetText(), "");
  EXPECT_FALSE(IsClipboardFormatAvailable(CF_UNICODETEXT));
}

TEST_F(SystemClipboardTest, TextStaysWhenWhoPutItThereGoes) {
  { SystemClipboard({}).SetText("left behind"); }
  EXPECT_EQ(clipboard.GetText(), "left behind");
}

TEST_F(SystemClipboardTest, APictureComesAsAButtonsFace) {
  clipboard.SetText("before");
  clipboard.SetData("face");
  EXPECT_EQ(clipboard.GetText(), "");
  const ButtonFace face = FaceOfBitmapFile(Face());
  const auto starts = [](const std::vector<std::uint8_t>& bytes, const PackedBitmap& bitmap) {
    return bytes.size() >= bitmap.size() && std::equal(bitmap.begin(), bitmap.end(), bytes.begin());
  };
  EXPECT_TRUE(starts(Held(CF_DIB), face.picture));
  EXPECT_TRUE(starts(Held(RegisterClipboardFormatW(L"Toolbar Button Face")), face.picture));
  EXPECT_TRUE(starts(Held(RegisterClipboardFormatW(L"Toolbar Button Mask")), face.mask));
}

TEST_F(SystemClipboardTest, APictureThatThereIsNotLeavesTheClipboardAlone) {
  clipboard.SetText("the user's");
  EXPECT_EQ(ResumeNext([&] { clipboard.SetData("none"); })->Number(), 481);
  EXPECT_EQ(clipboard.GetText(), "the user's");
}

/// Holds the clipboard from another thread for a time.
class Holder {
 public:
  explicit Holder(DWORD milliseconds) : thread_([this, milliseconds] { Hold(milliseconds); }) {
    while (!holds_) Sleep(1);
  }
  ~Holder() { thread_.join(); }

 private:
  void Hold(DWORD milliseconds) {
    const HWND window = CreateWindowExW(0, L"STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                        nullptr, nullptr);
    while (!OpenClipboard(window)) Sleep(1);
    holds_ = true;
    Sleep(milliseconds);
    CloseClipboard();
    DestroyWindow(window);
  }

  std::atomic<bool> holds_ = false;
  std::thread thread_;
};

TEST_F(SystemClipboardTest, WaitsForWhoHoldsIt) {
  const Holder holder(60);
  clipboard.SetText("mine");
  EXPECT_EQ(clipboard.GetText(), "mine");
}

TEST_F(SystemClipboardTest, GivesUpOnWhoHoldsItLong) {
  const Holder holder(1500);
  EXPECT_EQ(ResumeNext([&] { clipboard.SetText("mine"); })->Number(), 521);
}

// Faces.

TEST(ButtonFace, IsTheFileWithoutItsHeaderAndAMaskOfTheSameSize) {
  const ButtonFace face = FaceOfBitmapFile(Face());
  EXPECT_EQ(face.picture.size(), Face().size() - sizeof(BITMAPFILEHEADER));
  EXPECT_EQ(face.mask.size(), 40u + 8u + 16u * 4u);
  BITMAPINFOHEADER header;
  std::memcpy(&header, face.mask.data(), sizeof header);
  EXPECT_EQ(header.biWidth, 16);
  EXPECT_EQ(header.biHeight, 16);
  EXPECT_EQ(header.biBitCount, 1);
}

TEST(ButtonFace, IsWhiteInTheMaskWhereThePictureIsMagentaAndBlackElsewhere) {
  const ButtonFace face = FaceOfBitmapFile(Face());
  int drawn = 0;
  for (std::size_t y = 0; y < 16; ++y) {
    for (std::size_t x = 0; x < 16; ++x) {
      const std::uint8_t* const pixel = face.picture.data() + 40 + (y * 16 + x) * 3;
      const bool isMagenta = pixel[0] == 0xFF && pixel[1] == 0 && pixel[2] == 0xFF;
      const bool isWhite = (face.mask[48 + y * 4 + x / 8] >> (7 - x % 8) & 1) != 0;
      EXPECT_EQ(isWhite, isMagenta) << x << ", " << y;
      drawn += !isMagenta;
    }
  }
  EXPECT_GT(drawn, 0);
  EXPECT_LT(drawn, 256);
}

TEST(ButtonFace, RefusesWhatIsNoBitmap) {
  const auto refuses = [](std::vector<std::uint8_t> bytes) {
    const auto error = ResumeNext([&] { FaceOfBitmapFile(bytes); });
    return error && error->Number() == 481;
  };
  EXPECT_TRUE(refuses({}));
  EXPECT_TRUE(refuses(std::vector<std::uint8_t>(2000, 'x')));
  auto cut = Face();
  cut.pop_back();
  EXPECT_TRUE(refuses(cut));
  auto wide = Face();
  wide[sizeof(BITMAPFILEHEADER) + 4] = 200;
  EXPECT_TRUE(refuses(wide));
}

}  // namespace system_clipboard_test
}  // namespace brimwork::windows

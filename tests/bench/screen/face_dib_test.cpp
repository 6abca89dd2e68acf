// Button faces on their way to the clipboard and back.
#include "bench/screen/face_dib.h"

#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>

#include "bench/screen/strokes.h"

namespace brimwork::bench {
namespace face_dib_test {

Picture SomeFace() {
  const Stroke strokes[] = {Area(0xFF112233, 2, 3, 8, 9), Line(0xFFFFEEDD, 0, 15, 15, 0),
                            Dot(ink::kBlack, 5, 5)};
  return Drawn(strokes);
}

/// A bitmap of one colour.
std::vector<std::byte> PlainDib(LONG width, LONG height, WORD bits, std::uint8_t fill) {
  BITMAPINFOHEADER header{};
  header.biSize = sizeof header;
  header.biWidth = width;
  header.biHeight = height;
  header.biPlanes = 1;
  header.biBitCount = bits;
  const std::size_t line = (static_cast<std::size_t>(width) * bits + 31) / 32 * 4;
  const std::size_t pixels = line * static_cast<std::size_t>(height < 0 ? -height : height);
  std::vector<std::byte> dib(sizeof header + pixels, std::byte{fill});
  std::memcpy(dib.data(), &header, sizeof header);
  return dib;
}

TEST(FaceDib, ComesBackAsItWentWithItsMask) {
  const Picture face = SomeFace();
  auto back = PictureOfDib(DibOf(face));
  ASSERT_TRUE(back);
  ApplyMask(*back, MaskOf(face));
  EXPECT_EQ(*back, face);
}

TEST(FaceDib, IsOpaqueWithoutAMask) {
  const auto back = PictureOfDib(DibOf(SomeFace()));
  ASSERT_TRUE(back);
  EXPECT_EQ(back->At(15, 15), ink::kBlack);
  EXPECT_EQ(back->At(2, 3), 0xFF112233);
}

TEST(FaceDib, BringsOtherSizesToAButtons) {
  const auto back = PictureOfDib(PlainDib(32, 32, 24, 0x40));
  ASSERT_TRUE(back);
  EXPECT_EQ(back->At(0, 0), 0xFF404040);
  EXPECT_EQ(back->At(15, 15), 0xFF404040);
}

TEST(FaceDib, UnderstandsBitmapsFromTheTopDown) {
  EXPECT_TRUE(PictureOfDib(PlainDib(16, -16, 32, 0x10)));
}

TEST(FaceDib, RefusesWhatIsNoWholeBitmap) {
  EXPECT_FALSE(PictureOfDib({}));
  auto cut = PlainDib(16, 16, 24, 1);
  cut.pop_back();
  EXPECT_FALSE(PictureOfDib(cut));
  EXPECT_FALSE(PictureOfDib(std::vector<std::byte>(60, std::byte{0xFF})));
}

TEST(FaceDib, RefusesHeadersThatMakeNoSense) {
  const auto refused = [](auto change) {
    auto dib = PlainDib(16, 16, 24, 1);
    BITMAPINFOHEADER header;
    std::memcpy(&header, dib.data(), sizeof header);
    change(header);
    std::memcpy(dib.data(), &header, sizeof header);
    return !PictureOfDib(dib);
  };
  EXPECT_TRUE(refused([](auto& header) { header.biBitCount = 7; }));
  EXPECT_TRUE(refused([](auto& header) { header.biWidth = 0; }));
  EXPECT_TRUE(refused([](auto& header) { header.biWidth = -16; }));
  EXPECT_TRUE(refused([](auto& header) { header.biWidth = 0x7FFFFFFF; }));
  EXPECT_TRUE(refused([](auto& header) { header.biHeight = static_cast<LONG>(0x80000000); }));
  EXPECT_TRUE(refused([](auto& header) { header.biClrUsed = 0xFFFFFFFF; }));
  EXPECT_TRUE(refused([](auto& header) { header.biSize = 0xFFFFFFF0; }));
  EXPECT_TRUE(refused([](auto& header) { header.biCompression = BI_RLE8; }));
}

TEST(FaceDib, LeavesTheFaceWhereTheMaskIsDamaged) {
  Picture face = SomeFace();
  ApplyMask(face, std::vector<std::byte>(10));
  EXPECT_EQ(face, SomeFace());
}

}  // namespace face_dib_test
}  // namespace brimwork::bench

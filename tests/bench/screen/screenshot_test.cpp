// Pictures of the main window.
#include "bench/screen/screenshot.h"

#include <gmock/gmock.h>

#include "bench/screen/screen_fixture.h"
#include "environment/run_time_error.h"

namespace brimwork::bench {
namespace screenshot_test {

using Screenshots = ScreenFixture;

TEST_F(Screenshots, ArePngFilesOfTheWindowsSize) {
  OpenModule();
  PumpUntilQuiet();
  SaveWindowPicture(windows->Frame(), folder / "window.png");
  std::ifstream file(folder / "window.png", std::ios::binary);
  const std::string bytes(std::istreambuf_iterator<char>(file), {});
  ASSERT_GT(bytes.size(), 1000U);
  EXPECT_EQ(bytes.substr(0, 8), "\x89PNG\r\n\x1A\n");
  RECT area{};
  GetWindowRect(windows->Frame(), &area);
  const auto number = [&](std::size_t at) {
    long value = 0;
    for (std::size_t byte = at; byte < at + 4; ++byte) {
      value = value << 8 | static_cast<unsigned char>(bytes[byte]);
    }
    return value;
  };
  EXPECT_EQ(number(16), area.right - area.left);
  EXPECT_EQ(number(20), area.bottom - area.top);
}

TEST_F(Screenshots, SayWhenTheyCannotBeWritten) {
  EXPECT_THROW(SaveWindowPicture(windows->Frame(), folder / "no" / "such" / "folder.png"),
               RunTimeError);
}

}  // namespace screenshot_test
}  // namespace brimwork::bench

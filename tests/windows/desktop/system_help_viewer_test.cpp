#include "windows/desktop/system_help_viewer.h"

#include <gtest/gtest.h>

#include "environment/resume_next.h"

namespace brimwork::windows {
namespace system_help_viewer_test {

constexpr const char* kHelpFile = "C:\\no such folder\\Brimwork.chm";

int ErrorOf(SystemHelpViewer& viewer, std::uint32_t command) {
  const auto error = ResumeNext([&] { viewer.HtmlHelp(kHelpFile, command, 0); });
  return error ? error->Number() : 0;
}

TEST(SystemHelpViewer, RaisesErrorFiftyThreeOnASystemWithoutOne) {
  SystemHelpViewer viewer(L"no such viewer.ocx");
  EXPECT_EQ(ErrorOf(viewer, help_command::kDisplayToc), 53);
  EXPECT_EQ(ErrorOf(viewer, help_command::kHelpContext), 53);
}

TEST(SystemHelpViewer, RaisesAnErrorForALibraryThatIsNoViewer) {
  SystemHelpViewer viewer(L"version.dll");
  EXPECT_EQ(ErrorOf(viewer, help_command::kDisplayIndex), 453);
}

TEST(SystemHelpViewer, ClosesNothingWhenNothingWasEverOpened) {
  SystemHelpViewer viewer(L"no such viewer.ocx");
  EXPECT_EQ(ErrorOf(viewer, help_command::kCloseAll), 0);
}

TEST(SystemHelpViewer, LeavesAMissingHelpFileToTheViewer) {
  SystemHelpViewer viewer;
  if (ErrorOf(viewer, help_command::kHelpContext) == 53) {
    GTEST_SKIP() << "this system has no help viewer";
  }
  EXPECT_NE(GetModuleHandleW(L"hhctrl.ocx"), nullptr);
  EXPECT_EQ(ErrorOf(viewer, help_command::kCloseAll), 0);
}

}  // namespace system_help_viewer_test
}  // namespace brimwork::windows

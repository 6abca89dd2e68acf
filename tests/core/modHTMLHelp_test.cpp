#include "core/modHTMLHelp.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "environment/run_time_error.h"
#include "memory/memory_shell.h"

namespace brimwork {
namespace modHTMLHelp_test {

using testing::ElementsAre;

constexpr const char* kFolder = "C:\\Tools";

TEST(Help, LiesInTheAddInsFolder) {
  EXPECT_EQ(HelpFilePath("C:\\Tools", "Brimwork.chm"), "C:\\Tools\\Brimwork.chm");
}

TEST(Help, AFolderThatEndsWithABackslashGetsNoSecondOne) {
  EXPECT_EQ(HelpFilePath("C:\\", "Brimwork.chm"), "C:\\Brimwork.chm");
  EXPECT_EQ(HelpFilePath("C:\\Tools\\", "Brimwork.chm"), "C:\\Tools\\Brimwork.chm");
}

TEST(Help, OnlyTheFoldersLastCharacterCounts) {
  EXPECT_EQ(HelpFilePath("", "Brimwork.chm"), "\\Brimwork.chm");
  EXPECT_EQ(HelpFilePath("C:/Tools/", "Brimwork.chm"), "C:/Tools/\\Brimwork.chm");
  EXPECT_EQ(HelpFilePath("C:\\\\", "Brimwork.chm"), "C:\\\\Brimwork.chm");
}

TEST(Help, EachOperationSendsItsCommand) {
  MemoryHelpViewer viewer;
  ShowHelpContents(viewer, kFolder, "Brimwork.chm");
  ShowHelpIndex(viewer, kFolder, "Brimwork.chm");
  ShowHelpTopic(viewer, kFolder, "Brimwork.chm", 1042);
  CloseAllHelp(viewer, kFolder, "Brimwork.chm");
  const std::string path = "C:\\Tools\\Brimwork.chm";
  EXPECT_THAT(viewer.requests, ElementsAre(HelpRequest{path, 1, 0}, HelpRequest{path, 2, 0},
                                           HelpRequest{path, 15, 1042}, HelpRequest{path, 18, 0}));
}

class FailingViewer : public HelpViewer {
 public:
  void HtmlHelp(std::string_view, std::uint32_t, std::uint32_t) override {
    ++calls;
    throw RunTimeError(error_number::kCannotCreateObject, "no help system");
  }
  int calls = 0;
};

TEST(Help, EachOperationIgnoresItsErrors) {
  FailingViewer viewer;
  ShowHelpContents(viewer, kFolder, "Brimwork.chm");
  ShowHelpIndex(viewer, kFolder, "Brimwork.chm");
  ShowHelpTopic(viewer, kFolder, "Brimwork.chm", 1);
  CloseAllHelp(viewer, kFolder, "Brimwork.chm");
  EXPECT_EQ(viewer.calls, 4);
}

}  // namespace modHTMLHelp_test
}  // namespace brimwork

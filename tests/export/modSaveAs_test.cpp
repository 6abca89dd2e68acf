#include "export/modSaveAs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "environment/run_time_error.h"
#include "support/export_fixture.h"

namespace brimwork {
namespace modSaveAs_test {

using testing::SizeIs;

/// Leaves its bytes in the buffer and answers as it is told to.
class ScriptedDialogs : public MemoryDialogs {
 public:
  ScriptedDialogs(std::string left, bool answer) : left_(std::move(left)), answer_(answer) {}

  bool GetSaveFileName(SaveFileRequest& request) override {
    request.file.replace(0, left_.size(), left_);
    return answer_;
  }

 private:
  std::string left_;
  bool answer_;
};

std::string PathFrom(std::string left, bool answer) {
  MemoryEnvironment memory;
  ScriptedDialogs dialogs(std::move(left), answer);
  Environment environment = memory.Parts({.dialogs = &dialogs});
  return ShowSaveDialog(environment, "", "", 0, "txt");
}

struct SaveDialog : testing::Test, ExportFixture {
  SaveFileRequest Asked(std::string_view extension) {
    ShowSaveDialog(environment, "D:\\Folder", "A title", 77, extension);
    return dialogs.SaveRequests().back();
  }
};

TEST_F(SaveDialog, IsGivenOwnerInstanceFolderTitleAndExtension) {
  app.instance = 0x400000;
  const SaveFileRequest asked = Asked("rtf");
  EXPECT_EQ(asked.owner, 77u);
  EXPECT_EQ(asked.instance, 0x400000u);
  EXPECT_EQ(asked.initialFolder, "D:\\Folder");
  EXPECT_EQ(asked.title, "A title");
  EXPECT_EQ(asked.defaultExtension, "rtf");
}

TEST_F(SaveDialog, SaysHowLargeItsRecordIs) { EXPECT_EQ(Asked("txt").structSize, 76u); }

TEST_F(SaveDialog, AsksBeforeOverwritingHidesReadOnlyAndLooksLikeAnExplorer) {
  EXPECT_EQ(Asked("txt").flags, 0x80006u);
}

TEST_F(SaveDialog, GivesABufferOf255NulsAndNoFileName) {
  const SaveFileRequest asked = Asked("txt");
  EXPECT_EQ(asked.file, std::string(255, '\0'));
  EXPECT_EQ(asked.fileSize, 255u);
}

TEST_F(SaveDialog, ChoosesNoFilterBeforehand) { EXPECT_EQ(Asked("txt").filterIndex, 0); }

TEST_F(SaveDialog, FiltersByTheExtension) {
  using namespace std::string_literals;
  EXPECT_EQ(Asked("txt").filter, "Text File (*.txt)\0*.txt"s);
  EXPECT_EQ(Asked("rtf").filter, "Rich Text File (*.rtf)\0*.rtf"s);
  EXPECT_EQ(Asked("htm").filter, "Web Page (*.htm)\0*.htm"s);
  EXPECT_EQ(Asked("*.*").filter, "All Files (*.*)\0*.*"s);
}

TEST_F(SaveDialog, HasNoFilterForAnyOtherExtension) {
  for (const char* extension : {"", "html", ".txt", "bas"}) {
    EXPECT_EQ(Asked(extension).filter, "") << extension;
    EXPECT_EQ(dialogs.SaveRequests().back().defaultExtension, extension);
  }
}

TEST_F(SaveDialog, GivesThePathThatTheUserChose) {
  dialogs.SaveTo("D:\\Code\\Module1.txt");
  EXPECT_EQ(ShowSaveDialog(environment, "", "", 0, "txt"), "D:\\Code\\Module1.txt");
}

TEST_F(SaveDialog, GivesNothingWhenTheUserCancels) {
  EXPECT_EQ(ShowSaveDialog(environment, "", "", 0, "txt"), "");
  EXPECT_THAT(dialogs.SaveRequests(), SizeIs(1));
}

TEST(SaveDialogBuffer, IsReadUpToItsFirstNul) {
  using namespace std::string_literals;
  EXPECT_EQ(PathFrom("C:\\a.txt\0left over"s, true), "C:\\a.txt");
  EXPECT_EQ(PathFrom("\0left over"s, true), "");
}

TEST(SaveDialogBuffer, IsReadWholeWithoutANul) {
  const std::string full(255, 'x');
  EXPECT_EQ(PathFrom(full, true), full);
}

TEST(SaveDialogBuffer, CountsForNothingWhenTheDialogWasCancelled) {
  EXPECT_EQ(PathFrom("C:\\a.txt", false), "");
}

TEST_F(SaveDialog, OfAnExporterStartsInTheAddInsFolder) {
  app.path = "C:\\Program Files\\The add-in";
  dialogs.SaveTo("C:\\page.htm");
  EXPECT_EQ(AskWhereToSave(environment, 5, "htm"), "C:\\page.htm");
  const SaveFileRequest& asked = dialogs.SaveRequests().back();
  EXPECT_EQ(asked.initialFolder, "C:\\Program Files\\The add-in");
  EXPECT_EQ(asked.title, "Save Exported Code");
  EXPECT_EQ(asked.owner, 5u);
  EXPECT_EQ(asked.defaultExtension, "htm");
}

TEST(SaveDialogFailure, GoesUpToTheCaller) {
  ExportFixture fixture(Failing("Dialogs.GetSaveFileName"));
  EXPECT_THROW(AskWhereToSave(fixture.environment, 0, "txt"), RunTimeError);
}

TEST(FileNameOf, IsWhatFollowsTheLastBackslash) {
  EXPECT_EQ(FileNameOf("C:\\Code\\Old\\Module1.txt"), "Module1.txt");
  EXPECT_EQ(FileNameOf("Module1.txt"), "Module1.txt");
  EXPECT_EQ(FileNameOf("C:\\Code\\"), "");
  EXPECT_EQ(FileNameOf("/home/me/Module1.txt"), "/home/me/Module1.txt");
  EXPECT_EQ(FileNameOf(""), "");
}

}  // namespace modSaveAs_test
}  // namespace brimwork

#include "core/recent_project.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "support/connected_add_in.h"
#include "support/entry_tree.h"

namespace brimwork {
namespace recent_project_test {

constexpr const char* kOptions = "Software\\Microsoft\\Visual Basic\\6.0";
constexpr const char* kOwnTemplates = "C:\\Program Files\\Microsoft Visual Studio\\VB98\\Template";

struct RecentProject : testing::Test, ConnectedAddIn {
  RecentProject() {
    bars.file->Entries()->All()[14]->action = [this] { ++reopened; };
    Set("AutoLoad", "True");
    SetOption("PromptForProjectOnStartup", "0");
    SetOption("TemplatesDirectory", kOwnTemplates);
  }

  void SetOption(const char* name, const std::string& value) {
    memory.registry.SetValue(kHiveCurrentUser, kOptions, name, kRegistrySz, value + '\0');
  }

  int ReopenedAtStart() {
    reopened = 0;
    ConnectIt();
    connect.AddinInstance_OnStartupComplete();
    const bool usesOwnTemplates = connect.UsesOwnTemplates();
    Disconnect();
    EXPECT_TRUE(reopened == 0 || usesOwnTemplates);
    return reopened;
  }

  int reopened = 0;
};

TEST_F(RecentProject, IsReopenedWhenTheUserWantsIt) {
  EXPECT_EQ(ReopenedAtStart(), 1);
  ConnectIt();
  EXPECT_EQ(reopened, 1);
}

TEST_F(RecentProject, IsTheFileMenusFifteenthControlAndNoOther) {
  int others = 0;
  for (const auto& control : bars.file->Entries()->All()) {
    if (control->LastCaption() != "&1 C:\\Source\\Parts.vbp") control->action = [&] { ++others; };
  }
  EXPECT_EQ(ReopenedAtStart(), 1);
  EXPECT_EQ(others, 0);
}

TEST_F(RecentProject, IsLeftAloneUnlessTheSettingIsExactlyTrue) {
  for (const char* value : {"False", "true", "1", ""}) {
    Set("AutoLoad", value);
    EXPECT_EQ(ReopenedAtStart(), 0) << value;
  }
}

TEST_F(RecentProject, IsLeftAloneAtFirst) {
  memory.settingsArea = {};
  EXPECT_EQ(ReopenedAtStart(), 0);
}

TEST_F(RecentProject, IsLeftAloneWhenTheEnvironmentAsksForAProject) {
  for (const char* value : {"1", "", "00", " 0"}) {
    SetOption("PromptForProjectOnStartup", value);
    EXPECT_EQ(ReopenedAtStart(), 0) << value;
  }
}

TEST_F(RecentProject, IsLeftAloneWhenTheOptionsAreNotThere) {
  memory.registry = {};
  EXPECT_EQ(ReopenedAtStart(), 0);
  SetOption("PromptForProjectOnStartup", "0");
  EXPECT_EQ(ReopenedAtStart(), 0);
}

TEST_F(RecentProject, IsLeftAloneWhenTheTemplatesAreOfAnotherInstallation) {
  for (const char* folder : {"D:\\Templates", "C:\\Program Files\\Microsoft Visual Studio",
                             "C:\\Program Files\\Microsoft Visual Studio\\VB98b\\Template", ""}) {
    SetOption("TemplatesDirectory", folder);
    EXPECT_EQ(ReopenedAtStart(), 0) << folder;
    EXPECT_FALSE(connect.UsesOwnTemplates());
  }
}

TEST_F(RecentProject, TheTemplatesFoldersLetterCaseAndLastBackslashDoNotCount) {
  SetOption("TemplatesDirectory", "c:\\program files\\microsoft visual studio\\vb98\\TEMPLATE\\");
  EXPECT_EQ(ReopenedAtStart(), 1);
  SetOption("TemplatesDirectory", "C:\\Program Files\\Microsoft Visual Studio\\VB98\\");
  EXPECT_EQ(ReopenedAtStart(), 1);
}

TEST_F(RecentProject, AnEnvironmentWithoutAFolderHasNoTemplatesOfItsOwn) {
  memory.vbe.fullName = "VB6.EXE";
  SetOption("TemplatesDirectory", "");
  EXPECT_EQ(ReopenedAtStart(), 0);
  SetOption("TemplatesDirectory", "\\Template");
  EXPECT_EQ(ReopenedAtStart(), 0);
}

TEST_F(RecentProject, AnEnvironmentInADrivesRootHasItsTemplatesOnThatDrive) {
  memory.vbe.fullName = "E:\\VB6.EXE";
  SetOption("TemplatesDirectory", "E:\\Template");
  EXPECT_EQ(ReopenedAtStart(), 1);
}

TEST_F(RecentProject, MessagesRunBeforeItIsReopened) {
  ConnectIt();
  int reopenedBefore = -1;
  memory.messageLoop.onDoEvents = [&] { reopenedBefore = reopened; };
  connect.AddinInstance_OnStartupComplete();
  EXPECT_EQ(reopenedBefore, 0);
  EXPECT_EQ(reopened, 1);
}

TEST_F(RecentProject, ErrorsAreIgnored) {
  for (const char* operation :
       {"SettingsArea.GetSetting", "Registry.OpenKey", "VBE.FullName", "VBE.CommandBarOfName",
        "CommandBar.Controls", "CommandBarControls.Item", "CommandBarControl.Execute"}) {
    bool isStarted = false;
    ConnectIt(Fault{Fault::Kind::kRaises, [&](int, std::string_view called) {
                      return isStarted && called == operation;
                    }});
    isStarted = true;
    connect.AddinInstance_OnStartupComplete();
    EXPECT_EQ(reopened, 0) << operation;
    isStarted = false;
    Disconnect();
  }
  EXPECT_THAT(memory.dialogs.Messages(), testing::IsEmpty());
}

TEST_F(RecentProject, IsReopenedEvenWhenMessagesCannotRun) {
  ConnectIt(RaisingAt("MessageLoop.DoEvents", 3));
  connect.AddinInstance_OnStartupComplete();
  EXPECT_EQ(reopened, 1);
}

TEST_F(RecentProject, AShortFileMenuHasNone) {
  while (bars.file->Entries()->All().size() > 14) bars.file->Entries()->All().back()->Delete();
  EXPECT_EQ(ReopenedAtStart(), 0);
  EXPECT_THAT(memory.dialogs.Messages(), testing::IsEmpty());
}

TEST_F(RecentProject, StartUpWithoutAConnectionIsHarmless) {
  connect.AddinInstance_OnStartupComplete();
  EXPECT_EQ(reopened, 0);
}

}  // namespace recent_project_test
}  // namespace brimwork

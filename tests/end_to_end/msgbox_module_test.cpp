// brimwork msgbox --add-to: the module that the code calls, in the user's project.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "end_to_end/workplace.h"
#include "msgbox/module_source.h"

namespace brimwork {
namespace msgbox_module_test {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* kCode = "CreateSpecialMsgBox \"x\",0,\"\",5,-1,-1,\"\",,1,\"\",\"OK\"\r\n";
constexpr const char* kModule = "modCustomMsgBox.bas";
constexpr const char* kLine = "Module=modCustomMsgBox; modCustomMsgBox.bas";

struct MsgBoxModule : testing::Test {
  ProgramResult Add(const std::string& project = "p.vbp") const {
    return place.Run({"msgbox", "--text", "x", "--timeout", "5", "--add-to", project});
  }

  void ExpectRefusal(const std::string& project, const std::string& error) const {
    const ProgramResult result = Add(project);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.error, "brimwork: " + error + '\n');
  }

  Workplace place;
};

TEST_F(MsgBoxModule, IsAddedOnce) {
  place.Write("p.vbp", "Type=Exe\r\nModule=A; a.bas\r\nName=\"P\"\r\n");
  const std::string added =
      std::string("Type=Exe\r\nModule=A; a.bas\r\n") + kLine + "\r\nName=\"P\"\r\n";
  const ProgramResult first = Add();
  EXPECT_EQ(first.exitCode, 0);
  EXPECT_EQ(first.out, kCode);
  EXPECT_EQ(first.error, "p.vbp: added modCustomMsgBox.bas\n");
  EXPECT_EQ(place.Read("p.vbp"), added);
  const ProgramResult second = Add();
  EXPECT_EQ(second.exitCode, 0);
  EXPECT_EQ(second.out, kCode);
  EXPECT_EQ(second.error, "p.vbp: has the module modCustomMsgBox already, so it stays as it is\n");
  EXPECT_EQ(place.Read("p.vbp"), added);
  EXPECT_THAT(place.Names(), ElementsAre(kModule, "p.vbp"));
}

TEST_F(MsgBoxModule, IsAFileThatTheEditorOpensUnderItsName) {
  place.Write("p.vbp", "Type=Exe\r\n");
  Add();
  EXPECT_EQ(place.Read(kModule), "Attribute VB_Name = \"modCustomMsgBox\"\r\n" +
                                     std::string(kModCustomMsgBoxSource) + "\r\n");
  EXPECT_EQ(place.Run({"run", "Indent All Procedures", kModule}).exitCode, 0);
}

TEST_F(MsgBoxModule, IsOneOfTheProjectsModulesThen) {
  place.Write("p.vbp", "Type=Exe\r\n");
  Add();
  EXPECT_THAT(place.Run({"indent", "--check", "--verbose", "p.vbp"}).error, HasSubstr(kModule));
}

TEST_F(MsgBoxModule, LeavesEveryOtherByteOfTheProject) {
  const std::pair<const char*, const char*> kProjects[] = {
      {"Type=Exe\r\nForm=F.frm\r\n", "Title=\"\xE4\x81\"\r\n\r\n[MS Tool]\r\nx=1\r\n"},
      {"Type=Exe\nReference=*\\G{0}#2.0#0#..\\a.tlb#x\n", "Title=\"T\"\n"},
      {"\xEF\xBB\xBFType=Exe\r\nModule=A; a.bas\n", "Name=\"\xC3\xA4\"\r\nVersion=1"}};
  for (const auto& [above, below] : kProjects) {
    const std::string before(above);
    place.Write("p.vbp", before + below);
    EXPECT_EQ(Add().exitCode, 0);
    const std::string end = before.ends_with("\r\n") ? "\r\n" : "\n";
    EXPECT_EQ(place.Read("p.vbp"), before + kLine + end + below);
    place.Remove(kModule);
  }
}

TEST_F(MsgBoxModule, LeavesAProjectWithoutALastLineEndWithoutOne) {
  place.Write("p.vbp", "Type=Exe\r\nModule=A; a.bas");
  Add();
  EXPECT_EQ(place.Read("p.vbp"), std::string("Type=Exe\r\nModule=A; a.bas\r\n") + kLine);
}

TEST_F(MsgBoxModule, KeepsThePermissionsOfTheProject) {
  place.Write("p.vbp", "Type=Exe\r\n");
  ASSERT_EQ(chmod((place / "p.vbp").c_str(), 0640), 0);
  Add();
  struct stat status {};
  ASSERT_EQ(stat((place / "p.vbp").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777u, 0640u);
}

TEST_F(MsgBoxModule, IsAddedBesideTheProject) {
  place.Write("sub/p.vbp", "Type=Exe\r\n");
  EXPECT_EQ(Add("sub/p.vbp").error, "sub/p.vbp: added modCustomMsgBox.bas\n");
  EXPECT_THAT(place.Names(), ElementsAre("sub", "sub/modCustomMsgBox.bas", "sub/p.vbp"));
}

TEST_F(MsgBoxModule, IsNotAddedWhenTheCodeNeedsNone) {
  place.Write("p.vbp", "Type=Exe\r\n");
  const ProgramResult result = place.Run({"msgbox", "--text", "x", "--add-to", "p.vbp"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.out, "MsgBox \"x\",0,\"\"\r\n");
  EXPECT_EQ(result.error, "p.vbp: stays as it is, since this code needs no module\n");
  EXPECT_THAT(place.Names(), ElementsAre("p.vbp"));
}

TEST_F(MsgBoxModule, IsNotAddedToWhatIsNoProject) {
  place.Write("text.vbp", "hello\n");
  place.Write("g.vbg", "VBGROUP 5.0\nProject=p.vbp\n");
  ExpectRefusal("gone.vbp", "gone.vbp: stat: No such file or directory");
  ExpectRefusal("g.vbg", "g.vbg: this is a project group; name one of its projects (.vbp)");
  ExpectRefusal("m.bas", "m.bas: this is no project; name a .vbp file");
  ExpectRefusal("text.vbp",
                "text.vbp: this is no project: no line of it names a type, a reference or a file");
  EXPECT_THAT(place.Names(), ElementsAre("g.vbg", "text.vbp"));
}

TEST_F(MsgBoxModule, IsNotAddedToAReadOnlyProject) {
  place.Write("p.vbp", "Type=Exe\r\n");
  ASSERT_EQ(chmod((place / "p.vbp").c_str(), 0444), 0);
  ExpectRefusal("p.vbp", "p.vbp: the file is read-only; it was left as it is");
  EXPECT_EQ(place.Read("p.vbp"), "Type=Exe\r\n");
  EXPECT_THAT(place.Names(), ElementsAre("p.vbp"));
}

TEST_F(MsgBoxModule, ReplacesNoOtherFile) {
  place.Write("p.vbp", "Type=Exe\r\n");
  place.Write(kModule, "' the user's\r\n");
  ExpectRefusal("p.vbp",
                "modCustomMsgBox.bas: there is another file of this name already; rename it or "
                "move it away, then run again");
  EXPECT_EQ(place.Read("p.vbp"), "Type=Exe\r\n");
  EXPECT_EQ(place.Read(kModule), "' the user's\r\n");
}

struct MsgBoxModuleOnAFullDisk : MsgBoxModule {
  /// Files cannot grow beyond these 512-byte blocks.
  ProgramResult AddWithin(int blocks) const {
    return place.Shell("trap '' XFSZ; ulimit -f " + std::to_string(blocks) +
                       "; \"$brimwork\" msgbox --text x --timeout 5 --add-to p.vbp");
  }

  /// A project of more bytes than the module.
  MsgBoxModuleOnAFullDisk() {
    project = "Type=Exe\r\n";
    while (project.size() < 100000) project += "Reference=*\\G{0}#2.0#0#..\\a.tlb#x\r\n";
    place.Write("p.vbp", project);
  }

  std::string project;
};

TEST_F(MsgBoxModuleOnAFullDisk, LeavesNoHalfModule) {
  const ProgramResult result = AddWithin(4);
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.error, "brimwork: modCustomMsgBox.bas: write: File too large\n");
  EXPECT_EQ(place.Read("p.vbp"), project);
  EXPECT_THAT(place.Names(), ElementsAre("p.vbp"));
}

TEST_F(MsgBoxModuleOnAFullDisk, TakesTheModuleAwayWhenTheProjectHasNoRoom) {
  ASSERT_LT(kModCustomMsgBoxSource.size(), 100u * 512u);
  const ProgramResult result = AddWithin(100);
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.error, "brimwork: p.vbp: write: File too large\n");
  EXPECT_EQ(place.Read("p.vbp"), project);
  EXPECT_THAT(place.Names(), ElementsAre("p.vbp"));
}

TEST_F(MsgBoxModule, IsListedOnceWhenRunsGoSideBySide) {
  place.Write("p.vbp", "Type=Exe\r\n");
  std::vector<std::unique_ptr<RunningProgram>> running;
  for (int i = 0; i < 8; ++i) {
    running.push_back(std::make_unique<RunningProgram>(
        place.CallOf({"msgbox", "--text", "x", "--timeout", "5", "--add-to", "p.vbp"})));
  }
  int done = 0;
  for (const auto& run : running) done += run->Wait().exitCode == 0;
  EXPECT_GE(done, 1);
  EXPECT_EQ(place.Read("p.vbp"), std::string("Type=Exe\r\n") + kLine + "\r\n");
  EXPECT_THAT(place.Read(kModule), StartsWith("Attribute VB_Name"));
}

}  // namespace msgbox_module_test
}  // namespace brimwork

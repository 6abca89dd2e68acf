// Projects and groups: the modules they name, and the project's name in what is written.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "end_to_end/sources.h"
#include "end_to_end/workplace.h"

namespace brimwork {
namespace projects_test {

using testing::AllOf;
using testing::HasSubstr;

class Projects : public testing::Test {
 protected:
  /// The text that stands for the path of the procedure in a handler put into the file.
  std::string PathIn(const Words& files, const std::string& input = {}) const {
    Words words{"error-handling", "--set", "ErrorHandling='at CURRENTFULLPROCEDUREPATH"};
    words.insert(words.end(), files.begin(), files.end());
    const ProgramResult result = place.Run(words, input);
    EXPECT_EQ(result.exitCode, 0) << result.error;
    for (const std::string& line : LinesOf(result.out)) {
      const auto at = line.find("'at ");
      if (at != std::string::npos) return line.substr(at + 4);
    }
    return result.out;
  }

  Workplace place;
};

TEST_F(Projects, NameTheirModulesWithBackslashesBlanksAndAnyLetterCase) {
  place.Write("Main.bas", kMessy);
  place.Write("Form One.frm", kMessy);
  place.Write("Modules/Deep Er/Thing.CLS", kMessy);
  place.Write("not named.bas", kMessy);
  place.Write("p.vbp",
              "Type=Exe\r\nForm=FORM one.frm\r\nModule=M; main.BAS\r\n"
              "Class=T; modules\\deep er\\thing.cls\r\nName=\"P\"\r\n");
  const ProgramResult result = place.Run({"indent", "--check", "p.vbp"});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.out, "Form One.frm\nMain.bas\nModules/Deep Er/Thing.CLS\n");
  EXPECT_EQ(place.Run({"indent", "--write", "p.vbp"}).exitCode, 0);
  EXPECT_EQ(place.Read("Modules/Deep Er/Thing.CLS"), kIndented);
  EXPECT_EQ(place.Read("not named.bas"), kMessy);
}

TEST_F(Projects, MayNameEveryKindOfModule) {
  place.Write("p.vbp",
              "Module=A; a.bas\nClass=B; b.cls\nForm=c.frm\nUserControl=d.ctl\n"
              "PropertyPage=e.pag\nUserDocument=f.dob\nDesigner=g.Dsr\nResFile32=\"h.res\"\n");
  for (const char* name : {"a.bas", "b.cls", "c.frm", "d.ctl", "e.pag", "f.dob", "g.Dsr"}) {
    place.Write(name, kMessy);
  }
  EXPECT_EQ(place.Run({"indent", "--check", "p.vbp"}).out,
            "a.bas\nb.cls\nc.frm\nd.ctl\ne.pag\nf.dob\ng.Dsr\n");
}

TEST_F(Projects, ThatNameAMissingFileAreAnErrorAndTheOthersAreDone) {
  place.Write("a.bas", kMessy);
  place.Write("p.vbp", "Type=Exe\nModule=X; gone.bas\nModule=A; a.bas\n");
  const ProgramResult result = place.Run({"indent", "--write", "--quiet", "p.vbp"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.error, "brimwork: p.vbp:2: there is no file \"gone.bas\"\n");
  EXPECT_EQ(place.Read("a.bas"), kIndented);
}

TEST_F(Projects, LeaveAFileOutsideTheirFolderAloneAndSaySo) {
  place.Write("p/a.bas", kMessy);
  place.Write("shared/b.bas", kMessy);
  const std::string absolute = (place / "shared/b.bas").string();
  place.Write("p/p.vbp",
              "Module=B; ..\\shared\\b.bas\nModule=A; a.bas\nModule=C; " + absolute + "\n");
  const ProgramResult result = place.Run({"indent", "--write", "p/p.vbp"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_THAT(result.error, AllOf(HasSubstr("p/p.vbp:1: "), HasSubstr("..\\shared\\b.bas"),
                                  HasSubstr("p/p.vbp:3: "), HasSubstr("left alone")));
  EXPECT_EQ(place.Read("shared/b.bas"), kMessy);
  EXPECT_EQ(place.Read("p/a.bas"), kIndented);
}

TEST_F(Projects, OfAGroupAreAllWorkedOn) {
  place.Write("one/a.bas", kMessy);
  place.Write("two/b.bas", kMessy);
  place.Write("one/one.vbp", "Module=A; a.bas\n");
  place.Write("two/two.vbp", "Module=B; b.bas\n");
  place.Write("g.vbg", "VBGROUP 5.0\r\nStartupProject=one\\ONE.vbp\r\nProject=two\\two.vbp\r\n");
  EXPECT_EQ(place.Run({"indent", "--check", "g.vbg"}).out, "one/a.bas\ntwo/b.bas\n");
}

TEST_F(Projects, ThatAGroupNamesAndAreMissingAreAnErrorAndTheOthersAreDone) {
  place.Write("a.bas", kMessy);
  place.Write("one.vbp", "Module=A; a.bas\n");
  place.Write("g.vbg", "VBGROUP 5.0\nProject=gone.vbp\nProject=one.vbp\n");
  const ProgramResult result = place.Run({"indent", "--write", "--quiet", "g.vbg"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.error, "brimwork: g.vbg:2: there is no file \"gone.vbp\"\n");
  EXPECT_EQ(place.Read("a.bas"), kIndented);
}

TEST_F(Projects, GiveTheirNameToTheProceduresPath) {
  place.Write("m.bas", "Attribute VB_Name = \"modStock\"\nSub Fill()\nEnd Sub\n");
  place.Write("p.vbp", "Module=modStock; m.bas\nName=\"Desk\"\n");
  EXPECT_EQ(PathIn({"--diff", "p.vbp"}), "Desk.modStock.Fill");
  EXPECT_EQ(PathIn({"m.bas"}), "Desk.modStock.Fill");
  EXPECT_EQ(PathIn({"./m.bas"}), "Desk.modStock.Fill");
  EXPECT_EQ(PathIn({(place / "m.bas").string()}), "Desk.modStock.Fill");
  EXPECT_EQ(PathIn({"--diff", "."}), "Desk.modStock.Fill");
  EXPECT_EQ(PathIn({"--stdin-filename", "m.bas", "-"}, place.Read("m.bas")), "Desk.modStock.Fill");
}

TEST_F(Projects, ThatDoNotNameTheFileGiveItNoName) {
  place.Write("m.bas", "Sub Fill()\nEnd Sub\n");
  place.Write("other.vbp", "Module=X; x.bas\nName=\"Other\"\n");
  EXPECT_EQ(PathIn({"m.bas"}), "Project1.m.Fill");
}

TEST_F(Projects, WithoutAModuleAreToldApartFromMistakes) {
  place.Write("p.vbp", "Type=Exe\nName=\"Empty\"\n");
  const ProgramResult result = place.Run({"indent", "--check", "p.vbp"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.out, "");
}

TEST_F(Projects, ThatAreMissingAreAnError) {
  const ProgramResult result = place.Run({"indent", "--check", "p.vbp"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.error, testing::StartsWith("brimwork: p.vbp: "));
}

}  // namespace projects_test
}  // namespace brimwork

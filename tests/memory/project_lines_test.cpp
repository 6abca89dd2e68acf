#include "memory/project_lines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brimwork {
namespace project_lines_test {

using testing::ElementsAre;
using testing::IsEmpty;

std::string WithX(std::string_view bytes) { return WithModuleLine(bytes, "X", "X.bas"); }

std::vector<std::string> Names(std::string_view bytes) {
  std::vector<std::string> names;
  for (const ListedComponent& component : ListedComponents(bytes)) {
    names.push_back(std::string(component.name) + '|' + std::string(component.file));
  }
  return names;
}

TEST(ModuleLine, GoesBehindTheLastModule) {
  EXPECT_EQ(WithX("Type=Exe\r\nModule=A; a.bas\r\nForm=F.frm\r\nModule=B; b.bas\r\nName=\"P\"\r\n"),
            "Type=Exe\r\nModule=A; a.bas\r\nForm=F.frm\r\nModule=B; b.bas\r\n"
            "Module=X; X.bas\r\nName=\"P\"\r\n");
}

TEST(ModuleLine, GoesBehindTheLastComponentWhereThereIsNoModule) {
  EXPECT_EQ(WithX("Type=Exe\nForm=F.frm\nClass=C; C.cls\nStartup=\"F\"\n"),
            "Type=Exe\nForm=F.frm\nClass=C; C.cls\nModule=X; X.bas\nStartup=\"F\"\n");
}

TEST(ModuleLine, GoesBehindTheReferencesOfAnEmptyProject) {
  EXPECT_EQ(WithX("Type=Exe\r\nReference=*\\G{0}\r\nObject={1}; a.ocx\r\nName=\"P\"\r\n"),
            "Type=Exe\r\nReference=*\\G{0}\r\nObject={1}; a.ocx\r\nModule=X; X.bas\r\n"
            "Name=\"P\"\r\n");
  EXPECT_EQ(WithX("Type=Exe\r\nName=\"P\"\r\n"), "Type=Exe\r\nModule=X; X.bas\r\nName=\"P\"\r\n");
}

TEST(ModuleLine, EndsAsTheLineAboveIt) {
  EXPECT_EQ(WithX("Type=Exe\r\nModule=A; a.bas\nName=\"P\"\r\n"),
            "Type=Exe\r\nModule=A; a.bas\nModule=X; X.bas\nName=\"P\"\r\n");
}

TEST(ModuleLine, LeavesALastLineWithoutAnEnd) {
  EXPECT_EQ(WithX("Type=Exe\r\nModule=A; a.bas"), "Type=Exe\r\nModule=A; a.bas\r\nModule=X; X.bas");
  EXPECT_EQ(WithX("Type=Exe\nModule=A; a.bas"), "Type=Exe\nModule=A; a.bas\nModule=X; X.bas");
  EXPECT_EQ(WithX("Type=Exe"), "Type=Exe\r\nModule=X; X.bas");
  EXPECT_EQ(WithX("\nType=Exe"), "\nType=Exe\nModule=X; X.bas");
}

TEST(ModuleLine, LeavesSectionsAlone) {
  EXPECT_EQ(WithX("Type=Exe\r\n[Tool]\r\nModule=A; a.bas\r\n"),
            "Type=Exe\r\nModule=X; X.bas\r\n[Tool]\r\nModule=A; a.bas\r\n");
}

TEST(ModuleLine, LeavesBytesThatAreNoText) {
  EXPECT_EQ(WithX("\xEF\xBB\xBFType=Exe\r\nTitle=\"\x81\xE4\"\r\n"),
            "\xEF\xBB\xBFType=Exe\r\nModule=X; X.bas\r\nTitle=\"\x81\xE4\"\r\n");
}

TEST(ModuleLine, FindsKeysInAnyLetterCaseAndSpacing) {
  EXPECT_EQ(WithX("type=Exe\n MODULE = A; a.bas\nForm=F.frm\n"),
            "type=Exe\n MODULE = A; a.bas\nModule=X; X.bas\nForm=F.frm\n");
}

TEST(ListedComponents, HaveANameOrOnlyAFile) {
  EXPECT_THAT(Names("Type=Exe\r\nModule=A; a.bas\r\nForm=F.frm\r\nclass = C ;sub\\C.cls\r\n"),
              ElementsAre("A|a.bas", "|F.frm", "C|sub\\C.cls"));
  EXPECT_THAT(Names("UserControl=U.ctl\nPropertyPage=P.pag\nUserDocument=D.dob\nDesigner=E.dsr\n"),
              ElementsAre("|U.ctl", "|P.pag", "|D.dob", "|E.dsr"));
}

TEST(ListedComponents, MayBeQuoted) {
  EXPECT_THAT(Names("Form=\"F.frm\"\nModule=A; \"a.bas\"\n"), ElementsAre("|F.frm", "A|a.bas"));
}

TEST(ListedComponents, AreNoReferencesAndNothingInSections) {
  EXPECT_THAT(
      Names("Type=Exe\nReference=r\nObject=o; p\nModules=A; a\nno line\n[S]\nModule=A; a\n"),
      IsEmpty());
}

TEST(ProjectText, SaysWhatAProjectIsOrHas) {
  EXPECT_TRUE(IsProjectText("Type=Exe\r\n"));
  EXPECT_TRUE(IsProjectText("\xEF\xBB\xBFType=Exe"));
  EXPECT_TRUE(IsProjectText("Module=A; a.bas\n"));
}

TEST(ProjectText, IsNotAnyText) {
  using std::string_literals::operator""s;
  for (const std::string& bytes : {""s, "hello\n"s, "Name=\"P\"\n"s, "[S]\nType=Exe\n"s,
                                   "Type=Exe\n\0"s, "\xFF\xFET\0y\0p\0e\0=\0E\0\n\0"s}) {
    EXPECT_FALSE(IsProjectText(bytes)) << bytes;
  }
}

TEST(ComponentLine, GoesBehindTheLastOfItsKey) {
  EXPECT_EQ(WithComponentLine("Type=Exe\nClass=C; C.cls\nModule=A; a.bas\n", "Class", "D", "D.cls"),
            "Type=Exe\nClass=C; C.cls\nClass=D; D.cls\nModule=A; a.bas\n");
  EXPECT_EQ(WithComponentLine("Type=Exe\nModule=A; a.bas\n", "Class", "D", "D.cls"),
            "Type=Exe\nModule=A; a.bas\nClass=D; D.cls\n");
}

TEST(ProjectValue, TakesThePlaceOfTheOldOneAsThatStands) {
  EXPECT_EQ(WithProjectValue("Type=Exe\nName=\"A\"\nX=1\n", "name", "B"),
            "Type=Exe\nName=\"B\"\nX=1\n");
  EXPECT_EQ(WithProjectValue("Type=Exe\nName= A \nName=B", "Name", "C"),
            "Type=Exe\nName= A \nName=C");
}

TEST(ProjectValue, GetsALineWhereItHasNone) {
  EXPECT_EQ(WithProjectValue("Type=Exe\r\nForm=F.frm\r\nX=1\r\n", "Name", "B"),
            "Type=Exe\r\nForm=F.frm\r\nName=\"B\"\r\nX=1\r\n");
}

TEST(ProjectLines, GoWithTheirLineEnds) {
  const std::string bytes = "\xEF\xBB\xBFType=Exe\r\nForm=F.frm\nName=A";
  const auto lines = ProjectLinesOf(bytes);
  EXPECT_EQ(WithoutLine(bytes, lines[0]),
            "\xEF\xBB\xBF"
            "Form=F.frm\nName=A");
  EXPECT_EQ(WithoutLine(bytes, lines[1]), "\xEF\xBB\xBFType=Exe\r\nName=A");
  EXPECT_EQ(WithoutLine(bytes, lines[2]), "\xEF\xBB\xBFType=Exe\r\nForm=F.frm\n");
  EXPECT_EQ(WithValueOf(bytes, lines[1], "G.frm"), "\xEF\xBB\xBFType=Exe\r\nForm=G.frm\nName=A");
}

}  // namespace project_lines_test
}  // namespace brimwork

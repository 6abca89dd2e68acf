#include "memory/module_preamble.h"

#include <gtest/gtest.h>

#include "memory/attribute_line.h"
#include "memory/source_error.h"

namespace brimwork {
namespace module_preamble_test {

/// What stands behind the preamble.
std::string Visible(const std::string& text) {
  return text.substr(ReadPreamble(text, "a.frm").size);
}

std::string ErrorOf(const std::string& text) {
  try {
    ReadPreamble(text, "a.frm");
  } catch (const SourceError& error) {
    return error.what();
  }
  return "no error";
}

TEST(ModulePreamble, HoldsTheAttributesOfAStandardModule) {
  const auto preamble = ReadPreamble("Attribute VB_Name = \"modMain\"\r\nOption Explicit\r\n", "");
  EXPECT_EQ(preamble.lines, 1);
  EXPECT_EQ(preamble.size, 31u);
  EXPECT_EQ(preamble.moduleName, "modMain");
}

TEST(ModulePreamble, HoldsVersionBlockAndAttributesOfAClass) {
  const auto preamble = ReadPreamble(
      "VERSION 1.0 CLASS\nBEGIN\n  MultiUse = -1  'True\nEND\nAttribute VB_Name = \"clsA\"\n"
      "Attribute VB_Exposed = False\nOption Explicit\n",
      "");
  EXPECT_EQ(preamble.lines, 6);
  EXPECT_EQ(preamble.moduleName, "clsA");
}

TEST(ModulePreamble, HoldsObjectLinesAndNestedBlocksOfAForm) {
  EXPECT_EQ(Visible("VERSION 5.00\n"
                    "Object = \"{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0\"; \"MSCOMCTL.OCX\"\n"
                    "Begin VB.Form frmMain \n"
                    "   Caption         =   \"End\"\n"
                    "   BeginProperty Font \n"
                    "      Name            =   \"Begin VB.Form\"\n"
                    "   EndProperty\n"
                    "   Begin VB.Frame fra \n"
                    "      Begin VB.TextBox txt \n"
                    "         Begin =   1\n"
                    "         Text            =   $\"frmMain.frx\":0000\n"
                    "      End\n"
                    "   End\n"
                    "   Begin VB.Menu mnu \n"
                    "   END\t\n"
                    "End\n"
                    "Attribute VB_Name = \"frmMain\"\n"
                    "Begin = 1\n"),
            "Begin = 1\n");
}

TEST(ModulePreamble, KnowsItsWordsInAnyCase) {
  EXPECT_EQ(Visible("version 5.00\nobject=x\nbegin vb.form f\neNd\n attribute vb_NAME = \"f\"\nx"),
            "x");
}

TEST(ModulePreamble, IsEmptyWhereAFileStartsWithCode) {
  for (const std::string text : {"", "\n", "Option Explicit\n", "' VERSION 5.00\n", "Versions 5\n",
                                 "BeginTrans\n", "Objects = 1\n", "Attribute x.VB_A = 1\n",
                                 "Attributes VB_A = 1\n", "Attribute VB_Name\n", "VERSION\n"})
    EXPECT_EQ(Visible(text), text);
}

TEST(ModulePreamble, EndsBehindTheLastAttribute) {
  EXPECT_EQ(Visible("Attribute VB_Name = \"a\"\n\nOption Explicit\n"), "\nOption Explicit\n");
  EXPECT_EQ(Visible("Attribute VB_Name = \"a\"\nBegin VB.Form f\nEnd\n"), "Begin VB.Form f\nEnd\n");
  EXPECT_EQ(Visible("Attribute VB_Name = \"a\"\nVERSION 5.00\n"), "VERSION 5.00\n");
}

TEST(ModulePreamble, TakesBlankLinesBetweenItsParts) {
  EXPECT_EQ(
      Visible("\n\t\nVERSION 5.00\n\nBegin VB.Form f\n\nEnd\n\nAttribute VB_Name = \"f\"\n\nx"),
      "\nx");
}

TEST(ModulePreamble, TakesAByteOrderMarkThatIsAlone) {
  const auto preamble = ReadPreamble("\xEF\xBB\xBFSub A()\n", "");
  EXPECT_EQ(preamble.size, 3u);
  EXPECT_EQ(preamble.lines, 0);
  EXPECT_EQ(ReadPreamble("\xEF\xBB\xBFVERSION 5.00\nx", "").lines, 1);
}

TEST(ModulePreamble, MayEndWithTheFileAndWithoutALineEnd) {
  EXPECT_EQ(Visible("VERSION 5.00\nBegin VB.Form f\nEnd"), "");
  EXPECT_EQ(ReadPreamble("Attribute VB_Name = \"a\"", "").lines, 1);
}

TEST(ModulePreamble, RefusesABlockWithoutEnd) {
  EXPECT_EQ(ErrorOf("VERSION 5.00\nBegin VB.Form f\n  Caption = \"x\"\n"),
            "a.frm:2:1: this Begin has no End; put the file's missing lines back");
  EXPECT_EQ(ErrorOf("VERSION 5.00\nBegin VB.Form f\n  Begin VB.Label l\nEnd\n"),
            "a.frm:2:1: this Begin has no End; put the file's missing lines back");
  EXPECT_EQ(ErrorOf("BEGIN"),
            "a.frm:1:1: this Begin has no End; put the file's missing lines back");
}

TEST(ModulePreamble, DoesNotTakeAnEndStatementOfTheCodeForAMissingEnd) {
  EXPECT_EQ(ErrorOf("VERSION 5.00\nBegin VB.Form f\nAttribute VB_Name = \"f\"\nSub A()\nEnd\n"),
            "a.frm:2:1: this Begin has no End; put the file's missing lines back");
}

TEST(AttributeLine, TellsModuleAndMemberAttributesFromCode) {
  EXPECT_TRUE(IsMemberAttribute("Attribute Item.VB_UserMemId = 0"));
  EXPECT_TRUE(IsMemberAttribute("\t attribute größe.vb_Description=\"x\""));
  EXPECT_TRUE(IsMemberAttribute("Attribute [Open].VB_UserMemId = 0"));
  for (const char* line :
       {"Attribute VB_Name = \"a\"", "Attribute Item.Value = 0", "AttributeItem.VB_A = 0",
        "Attribute Item.VB_UserMemId", "' Attribute Item.VB_A = 0", "Attribute \"a.VB_A = 0",
        "Attribute .VB_A = 0", "Attribute = Item.VB_A = 0", "", "Attribute"}) {
    EXPECT_FALSE(IsMemberAttribute(line)) << line;
  }
  EXPECT_TRUE(IsModuleAttribute("Attribute VB_Exposed = False"));
  EXPECT_FALSE(IsModuleAttribute("Attribute Item.VB_UserMemId = 0"));
}

TEST(AttributeLine, ReadsTheModulesName) {
  EXPECT_EQ(ModuleNameIn("Attribute VB_Name = \"modMain\""), "modMain");
  EXPECT_EQ(ModuleNameIn("attribute vb_name=\"Größe\" "), "Größe");
  for (const char* line : {"Attribute VB_Name = modMain", "Attribute VB_NameX = \"a\"", "",
                           "Attribute VB_Exposed = \"a\"", "Attribute VB_Name"})
    EXPECT_EQ(ModuleNameIn(line), "") << line;
}

std::string Renamed(std::string_view text) {
  return WithModuleName(text, ReadPreamble(text, "x.frm"), "New");
}

TEST(ModulePreamble, SaysWhatTheFileLaysOut) {
  EXPECT_EQ(ReadPreamble("Begin VB.MDIForm f\nEnd\n", "x.frm").objectClass, "VB.MDIForm");
  EXPECT_EQ(ReadPreamble("BEGIN\nEND\n", "x.cls").objectClass, "");
  EXPECT_EQ(ReadPreamble("Sub A()\n", "x.bas").objectClass, "");
}

TEST(ModulePreamble, HasAnotherModuleNameInItsAttribute) {
  EXPECT_EQ(Renamed("Attribute VB_Name = \"a\"\r\nAttribute VB_Exposed = False\r\na\r\n"),
            "Attribute VB_Name = \"New\"\r\nAttribute VB_Exposed = False\r\n");
  EXPECT_EQ(Renamed("\tattribute  vb_name=\"a\""), "\tattribute  vb_name=\"New\"");
}

TEST(ModulePreamble, HasAnotherModuleNameInItsLayout) {
  EXPECT_EQ(Renamed("Begin VB.Form  a \n Begin VB.Label a\n End\nEnd\nAttribute VB_Name = \"a\"\n"),
            "Begin VB.Form  New \n Begin VB.Label a\n End\nEnd\nAttribute VB_Name = \"New\"\n");
  EXPECT_EQ(Renamed("Begin VB.Form b\nEnd\nAttribute VB_Name = \"a\"\n"),
            "Begin VB.Form b\nEnd\nAttribute VB_Name = \"New\"\n");
  EXPECT_EQ(Renamed("BEGIN\nEND\nAttribute VB_Name = \"a\"\n"),
            "BEGIN\nEND\nAttribute VB_Name = \"New\"\n");
}

TEST(ModulePreamble, GetsAnAttributeForANameWhereItHasNone) {
  EXPECT_EQ(Renamed("Sub A()\nEnd Sub\n"), "Attribute VB_Name = \"New\"\n");
  EXPECT_EQ(Renamed(""), "Attribute VB_Name = \"New\"\r\n");
  EXPECT_EQ(Renamed("\xEF\xBB\xBFSub A()"),
            "\xEF\xBB\xBF"
            "Attribute VB_Name = \"New\"\r\n");
  EXPECT_EQ(Renamed("Attribute VB_Exposed = False"),
            "Attribute VB_Exposed = False\r\nAttribute VB_Name = \"New\"\r\n");
}

}  // namespace module_preamble_test
}  // namespace brimwork

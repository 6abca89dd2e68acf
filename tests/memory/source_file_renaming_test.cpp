// A source file whose module gets another name.
#include <gtest/gtest.h>

#include <string>

#include "memory/source_file.h"
#include "support/source_files.h"

namespace brimwork {
namespace source_file_renaming_test {

TEST(SourceFileRenaming, ChangesTheNameAndNoOtherByte) {
  const std::string bytes =
      "VERSION 1.0 CLASS\r\nAttribute VB_Name = \"Old\"\n\r\nAttribute Old.VB_X = 1\r\nx = 1\n"
      "Attribute x.VB_VarDescription = \"\xE4\"\r\ny";
  SourceFile file = SourceFile::Parse(bytes, "Old.cls", "WINDOWS-1252");
  ModuleText text = file.TakeText();
  file.SetModuleName("Longer_Name");
  std::string expected = bytes;
  expected.replace(expected.find("Old\""), 3, "Longer_Name");
  EXPECT_EQ(Composed(file, text), expected);
  EXPECT_EQ(file.ModuleName(), "Longer_Name");
  file.SetModuleName("N");
  text.Replace(text.Count(), "z");
  expected.replace(expected.find("Longer_Name"), 11, "N").back() = 'z';
  EXPECT_EQ(Composed(file, text), expected);
}

TEST(SourceFileRenaming, CountsTheLineThatANameTakes) {
  SourceFile file = SourceFile::Parse("a\n\nb\n", "m.bas", "WINDOWS-1252");
  const ModuleText text = file.TakeText();
  file.SetModuleName("m2");
  EXPECT_EQ(Composed(file, text), "Attribute VB_Name = \"m2\"\na\n\nb\n");
  EXPECT_EQ(file.FileLineOf(3), 4);
  EXPECT_EQ(file.PreambleLines(), 1);
}

TEST(SourceFileRenaming, TakesANameThatTheEncodingHas) {
  SourceFile file =
      SourceFile::Parse("Attribute VB_Name = \"m\"\r\na\r\n", "m.bas", "WINDOWS-1252");
  const ModuleText text = file.TakeText();
  file.SetModuleName(
      "St\xC3\xBC"
      "ck");
  EXPECT_EQ(Composed(file, text),
            "Attribute VB_Name = \"St\xFC"
            "ck\"\r\na\r\n");
  EXPECT_NO_THROW(file.RequireEncodable(text));
}

}  // namespace source_file_renaming_test
}  // namespace brimwork

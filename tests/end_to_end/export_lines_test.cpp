// Lines of a module exported: the numbers are those of the file.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "end_to_end/workplace.h"

namespace brimwork {
namespace export_lines_test {

using testing::HasSubstr;

constexpr const char* kForm =
    "VERSION 5.00\n"                        // 1
    "Begin VB.Form F\n"                     // 2
    "End\n"                                 // 3
    "Attribute VB_Name = \"F\"\n"           // 4
    "Option Explicit\n"                     // 5
    "Sub A()\n"                             // 6
    "Attribute A.VB_Description = \"d\"\n"  // 7
    "    ' note\n"                          // 8
    "\n"                                    // 9
    "End Sub\n";                            // 10

class ExportedLines : public testing::Test {
 protected:
  ExportedLines() { place.Write("f.frm", kForm); }

  std::string Text(const std::string& lines) const {
    const ProgramResult result =
        place.Run({"export", "--format", "text", "--lines", lines, "f.frm"});
    EXPECT_EQ(result.exitCode, 0) << result.error;
    return result.out;
  }

  std::string ErrorOf(Words words) const {
    words.insert(words.begin(), "export");
    const ProgramResult result = place.Run(words);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(LinesOf(result.error).size(), 1u) << result.error;
    return result.error;
  }

  Workplace place;
};

TEST_F(ExportedLines, AreThoseOfTheFileFromColumn1ToTheirEnd) {
  EXPECT_EQ(Text("5:6"), "Option Explicit\r\nSub A()");
  EXPECT_EQ(Text("8:10"), "    ' note\r\n\r\nEnd Sub");
  EXPECT_EQ(Text("8:8"), "    ' note");
}

TEST_F(ExportedLines, ThatAreEmptyMakeAnEmptyFile) {
  EXPECT_EQ(Text("9:9"), "");
  EXPECT_EQ(
      place.Run({"export", "--format", "html", "--keywords", "If", "--lines", "9:9", "f.frm"}).out,
      "<pre>\r\n<font color=\"#000080\"> \r\n</pre>\r\n");
}

TEST_F(ExportedLines, LeaveOutWhatTheEditorHides) {
  EXPECT_EQ(Text("1:5"), "Option Explicit");
  EXPECT_EQ(Text("6:7"), "Sub A()");
  EXPECT_EQ(Text("7:8"), "    ' note");
  EXPECT_EQ(Text("1:10"), "Option Explicit\r\nSub A()\r\n    ' note\r\n\r\nEnd Sub");
}

TEST_F(ExportedLines, ThatAreAllHiddenAreAnError) {
  EXPECT_EQ(ErrorOf({"--format", "text", "--lines", "2:4", "f.frm"}),
            "brimwork: f.frm:2: the editor hides these lines, so there is no code\n");
  EXPECT_EQ(ErrorOf({"--format", "text", "--lines", "7:7", "f.frm"}),
            "brimwork: f.frm:7: the editor hides these lines, so there is no code\n");
  place.Write("n.bas", "Attribute VB_Name = \"n\"\n");
  EXPECT_EQ(ErrorOf({"--format", "text", "--lines", "1:1", "n.bas"}),
            "brimwork: n.bas:1: the editor hides these lines, so there is no code\n");
}

TEST_F(ExportedLines, ThatTheFileHasNotAreAnError) {
  EXPECT_EQ(ErrorOf({"--format", "text", "--lines", "10:11", "f.frm"}),
            "brimwork: f.frm: there is no line 11; the file has 10 lines\n");
  place.Write("e.bas", "");
  EXPECT_EQ(ErrorOf({"--format", "text", "--lines", "1:1", "e.bas"}),
            "brimwork: e.bas: there is no line 1; the file has 0 lines\n");
}

TEST_F(ExportedLines, AreWrittenAsTheWholeModuleIs) {
  const ProgramResult result = place.Run({"export", "--format", "html", "--keywords", "Sub,End",
                                          "--lines", "6:8", "-o", "out.htm", "f.frm"});
  EXPECT_EQ(result.error, "f.frm: exported to out.htm\n");
  EXPECT_EQ(place.Read("out.htm"),
            "<pre>\r\n<font color=\"#000080\">Sub </font>A() \r\n"
            "<font color=\"#000080\">    </font><font color=\"#008000\">' note </font>\r\n"
            "</pre>\r\n");
}

TEST_F(ExportedLines, AreOfStandardInputToo) {
  EXPECT_EQ(place.Run({"export", "--format", "text", "--lines", "6:6", "-"}, kForm).out, "Sub A()");
}

TEST_F(ExportedLines, AreWrittenAsFirstAndLast) {
  EXPECT_EQ(ErrorOf({"--format", "text", "--lines", "6", "f.frm"}),
            "brimwork: --lines 6: write it as A:B, the first and the last line, as in 10:25\n");
  EXPECT_THAT(ErrorOf({"--format", "text", "--lines", "6:5", "f.frm"}), HasSubstr("A:B"));
}

TEST_F(ExportedLines, AreOfOneFile) {
  EXPECT_EQ(ErrorOf({"--format", "text", "--lines", "1:2", "-o", "out", "f.frm", "g.frm"}),
            "brimwork: --lines are lines of one file: name one file\n");
}

}  // namespace export_lines_test
}  // namespace brimwork

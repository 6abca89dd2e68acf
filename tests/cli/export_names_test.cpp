#include "cli/export_names.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brimwork {
namespace export_names_test {

using testing::ElementsAre;

TEST(ExportNames, HaveTheExtensionInThePlaceOfTheSources) {
  EXPECT_THAT(ExportNames({"a.bas", "Form 1.frm", "x.y.cls", "plain"}, ".txt"),
              ElementsAre("a.txt", "Form 1.txt", "x.y.txt", "plain.txt"));
}

TEST(ExportNames, ThatWouldBeEqualKeepTheSourcesWholeName) {
  EXPECT_THAT(ExportNames({"Form1.frm", "other.bas", "Form1.bas", "Form1.cls"}, ".htm"),
              ElementsAre("Form1.frm.htm", "other.htm", "Form1.bas.htm", "Form1.cls.htm"));
}

TEST(ExportNames, AreComparedWithoutRegardToCase) {
  EXPECT_THAT(ExportNames({"Form1.frm", "FORM1.bas"}, ".txt"),
              ElementsAre("Form1.frm.txt", "FORM1.bas.txt"));
  EXPECT_THAT(ExportNames({"Gr\xC3\xBC\xC3\x9F.frm", "GR\xC3\x9C\xC3\x9F.bas"}, ".txt"),
              ElementsAre("Gr\xC3\xBC\xC3\x9F.frm.txt", "GR\xC3\x9C\xC3\x9F.bas.txt"));
}

TEST(ExportNames, AreNumberedWhenTheWholeNamesAreEqualToo) {
  EXPECT_THAT(ExportNames({"a.bas", "A.BAS", "a.bas", "b.bas"}, ".txt"),
              ElementsAre("a.bas.txt", "A.BAS-2.txt", "a.bas-3.txt", "b.txt"));
}

TEST(ExportNames, NeverGetTheNameOfAnotherOneByTheirNumberOrTheirWholeName) {
  EXPECT_THAT(ExportNames({"a.bas", "a.frm", "a.bas.cls", "x.bas", "x.bas", "x.bas-2.bas"}, ".txt"),
              ElementsAre("a.bas-2.txt", "a.frm.txt", "a.bas.txt", "x.bas.txt", "x.bas-3.txt",
                          "x.bas-2.txt"));
}

TEST(ExportNames, LeaveOutTheNameThatIsTaken) {
  EXPECT_THAT(ExportNames({"Index.bas", "a.bas"}, ".htm", "index.htm"),
              ElementsAre("Index.bas.htm", "a.htm"));
  EXPECT_THAT(ExportNames({"index"}, ".htm", "index.htm"), ElementsAre("index-2.htm"));
  EXPECT_THAT(ExportNames({"index.bas"}, ".txt"), ElementsAre("index.txt"));
}

TEST(ExportNames, OfStandardInputAreThoseOfTheFileItStandsFor) {
  RunOptions options;
  EXPECT_EQ(SourceName("-", options), "stdin");
  options.stdinFileName = "src/Form1.frm";
  EXPECT_EQ(SourceName("-", options), "Form1.frm");
  EXPECT_EQ(SourceName("src/a.bas", options), "a.bas");
}

}  // namespace export_names_test
}  // namespace brimwork

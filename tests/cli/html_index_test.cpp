#include "cli/html_index.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brimwork {
namespace html_index_test {

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

TEST(HtmlIndex, IsACompletePageInUtf8) {
  const std::string page = HtmlIndex({"Shop", {}});
  EXPECT_THAT(page, AllOf(StartsWith("<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n"
                                     "<meta charset=\"utf-8\">\n"),
                          HasSubstr("<title>Shop</title>"), HasSubstr("<h1>Shop</h1>"),
                          EndsWith("</table>\n</body>\n</html>\n")));
}

TEST(HtmlIndex, LinksEachModuleWithItsKindItsFileAndItsLines) {
  const std::string page = HtmlIndex({"Shop", {{"Form1.htm", "frmOne", "ui/Form1.frm", 12}}});
  EXPECT_THAT(page, HasSubstr("<tr><td><a href=\"Form1.htm\">frmOne</a></td><td>Form</td>"
                              "<td class=\"file\">ui/Form1.frm</td><td class=\"lines\">12</td>"
                              "</tr>\n"));
}

TEST(HtmlIndex, KeepsTheOrderOfTheModules) {
  const std::string page =
      HtmlIndex({"Shop", {{"b.htm", "B", "b.bas", 1}, {"a.htm", "A", "a.bas", 1}}});
  EXPECT_LT(page.find("b.htm"), page.find("a.htm"));
}

TEST(HtmlIndex, EscapesNamesAndAddresses) {
  const std::string page = HtmlIndex({"A & <B>", {{"a b%\".htm", "<M>", "x&y.bas", 0}}});
  EXPECT_THAT(page, AllOf(HasSubstr("<title>A &amp; &lt;B&gt;</title>"),
                          HasSubstr("<h1>A &amp; &lt;B&gt;</h1>"),
                          HasSubstr("<a href=\"a%20b%25%22.htm\">&lt;M&gt;</a>"),
                          HasSubstr("<td class=\"file\">x&amp;y.bas</td>"), Not(HasSubstr("<M>"))));
}

TEST(HtmlIndex, CountsModulesAndLines) {
  EXPECT_THAT(HtmlIndex({"S", {{"a", "a", "a.bas", 1}}}), HasSubstr("<p>1 module, 1 line</p>"));
  EXPECT_THAT(HtmlIndex({"S", {{"a", "a", "a.bas", 1}, {"b", "b", "b.bas", 20}}}),
              HasSubstr("<p>2 modules, 21 lines</p>"));
}

TEST(KindOfModule, GoesByTheExtension) {
  EXPECT_EQ(KindOfModule("x/a.bas"), "Module");
  EXPECT_EQ(KindOfModule("a.CLS"), "Class module");
  EXPECT_EQ(KindOfModule("a.frm"), "Form");
  EXPECT_EQ(KindOfModule("a.ctl"), "User control");
  EXPECT_EQ(KindOfModule("a.pag"), "Property page");
  EXPECT_EQ(KindOfModule("a.dob"), "User document");
  EXPECT_EQ(KindOfModule("a.Dsr"), "Designer");
  EXPECT_EQ(KindOfModule("a.txt"), "Source file");
  EXPECT_EQ(KindOfModule("stdin"), "Source file");
}

}  // namespace html_index_test
}  // namespace brimwork

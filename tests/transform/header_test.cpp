#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "settings/setting_keys.h"
#include "support/opened_module.h"
#include "transform/modCommentCode.h"

namespace brimwork {
namespace header_test {

using testing::ElementsAre;

const std::string S = "'" + std::string(89, '=');

TextLines WithHeader(std::string_view key, std::string_view header, std::string_view caption) {
  OpenedModule opened({"Option Explicit", "Sub A()", "End Sub"});
  opened.Set(key, header);
  opened.ClickAt(2, caption);
  return opened.Lines();
}

TEST(Header, TheStandardHeaderStandsAboveEverythingWithTodaysShortDate) {
  EXPECT_THAT(AfterClickAt(1, "Standard Header", {"Option Explicit"}),
              ElementsAre(S, "'  Code Page Name", "'  Description and Useage", S,
                          "'  Created By: Your Name Here", "'  Published Date: 11/21/2026",
                          "'  WebSite: Website Name and Address", S, "Option Explicit"));
}

TEST(Header, TheAdaptedHeaderNamesTheWorkItIsBasedOn) {
  EXPECT_THAT(
      AfterClickAt(1, "Adapted Header", {"Option Explicit"}),
      ElementsAre(S, "'  Code Page Name", "'  Description and Useage", S,
                  "'  Adapted and Modified By: Your Name Here", "'  Published Date: 11/21/2026",
                  "'  WebSite: Website Name and Address", S,
                  "'  Based On: Description of Work Based On",
                  "'  WebSite: Website Name and Address of Original Writer", S, "Option Explicit"));
}

TEST(Header, TheSeparatorsOfTheBuiltInHeadersAreTheirOwn) {
  OpenedModule opened({"Option Explicit"});
  opened.Set(setting::kSeparator, "'---");
  opened.ClickAt(1, "Standard Header");
  EXPECT_EQ(opened.Lines()[0], S);
}

TEST(Header, AHeaderWithoutReleaseDateIsInsertedUnchanged) {
  EXPECT_THAT(WithHeader("Header", "' mine\r\n' released: never", "Standard Header"),
              ElementsAre("' mine", "' released: never", "Option Explicit", "Sub A()", "End Sub"));
  EXPECT_THAT(WithHeader("AdaptedHeader", "' theirs", "Adapted Header"),
              ElementsAre("' theirs", "Option Explicit", "Sub A()", "End Sub"));
}

TEST(Header, EveryReleaseDateInItsOwnCaseIsReplaced) {
  EXPECT_THAT(
      WithHeader("Header", "' Release Date Release Date release date", "Standard Header"),
      ElementsAre("' 11/21/2026 11/21/2026 release date", "Option Explicit", "Sub A()", "End Sub"));
}

TEST(Header, ALineEndAtItsEndIsAnEmptyLineBelowIt) {
  EXPECT_THAT(WithHeader("Header", "' mine\n", "Standard Header"),
              ElementsAre("' mine", "", "Option Explicit", "Sub A()", "End Sub"));
}

TEST(Header, AStoredEmptyHeaderIsOneEmptyLine) {
  EXPECT_THAT(WithHeader("Header", "", "Standard Header"),
              ElementsAre("", "Option Explicit", "Sub A()", "End Sub"));
}

TEST(Header, AnEmptyModuleGetsOneToo) {
  OpenedModule opened(TextLines{});
  opened.Set(setting::kHeader, "' mine");
  opened.ClickAt(1, "Standard Header");
  EXPECT_THAT(opened.Lines(), ElementsAre("' mine"));
}

TEST(Header, TheTextOfAHeaderIsTheTemplateWithTheDate) {
  OpenedModule opened({"x"});
  opened.Set(setting::kHeader, "' Release Date");
  opened.Set(setting::kAdaptedHeader, "' adapted");
  EXPECT_EQ(HeaderText(opened.addIn.environment, header_kind::kStandard), "' 11/21/2026");
  EXPECT_EQ(HeaderText(opened.addIn.environment, header_kind::kAdapted), "' adapted");
}

}  // namespace header_test
}  // namespace brimwork

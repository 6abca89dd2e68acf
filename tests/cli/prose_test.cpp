#include "cli/prose.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace brimwork {
namespace prose_test {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> TextsOf(std::string_view line, Continues above = Continues::kNothing) {
  std::vector<std::string> texts;
  for (const ProseStretch& prose : ProseOf(line, above)) {
    texts.emplace_back(line.substr(prose.offset, prose.size));
  }
  return texts;
}

TEST(Prose, IsNoneInCode) { EXPECT_THAT(TextsOf("x = y + 1"), IsEmpty()); }

TEST(Prose, IsTheInsideOfALiteralAndTheWholeComment) {
  EXPECT_THAT(TextsOf("MsgBox \"it's\" & Totl & \"end\" ' note"),
              ElementsAre("it's\"", "end\"", "' note"));
}

TEST(Prose, IsARemComment) { EXPECT_THAT(TextsOf("x = 1: Rem it's"), ElementsAre("Rem it's")); }

TEST(Prose, IsALineThatContinuesAComment) {
  EXPECT_THAT(TextsOf("say \"it\"", Continues::kComment), ElementsAre("say \"it\""));
}

TEST(Prose, TellsWhichPlacesItHolds) {
  const ProseStretch prose = ProseOf("s = \"ab\"", Continues::kNothing).at(0);
  EXPECT_FALSE(prose.Holds(4));
  EXPECT_TRUE(prose.Holds(5));
  EXPECT_TRUE(prose.Holds(6));
  EXPECT_FALSE(prose.Holds(8));
}

}  // namespace prose_test
}  // namespace brimwork

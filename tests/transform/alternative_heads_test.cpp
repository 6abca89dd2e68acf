// Procedures whose declaration conditional compilation chooses from several heads.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/opened_module.h"
#include "transform/procedure_bounds.h"

namespace brimwork {
namespace alternative_heads_test {

using testing::ElementsAreArray;

struct BodyRange {
  int first;
  int last;
  bool operator==(const BodyRange&) const = default;
};

BodyRange BodyAt(int line, const TextLines& lines) {
  OpenedModule opened(lines);
  GetProcedureBounds(opened.Commands(), opened.Module(), line);
  return {opened.Commands().procedure.FirstBodyLine, opened.Commands().procedure.LastBodyLine};
}

const TextLines kTwoHeads{"#If A Then", "Sub F(x)", "#Else",  "Sub F(y)",
                          "#End If",    "z = 1",    "End Sub"};

TEST(AlternativeHeads, TheBodyStartsBehindTheEndIfThatClosesTheirBlock) {
  EXPECT_EQ(BodyAt(2, kTwoHeads), (BodyRange{6, 6}));
  EXPECT_EQ(BodyAt(6, kTwoHeads), (BodyRange{6, 6}));
}

TEST(AlternativeHeads, MayBeThree) {
  EXPECT_EQ(BodyAt(2, {"#If A Then", "Sub F(x)", "#ElseIf B Then", "Sub F(y)", "#Else", "Sub F(z)",
                       "#End If", "w = 1", "End Sub"}),
            (BodyRange{8, 8}));
}

TEST(AlternativeHeads, MayHoldNestedBlocks) {
  EXPECT_EQ(BodyAt(2, {"#If A Then", "Sub F(x)", "#Else", "#If B Then", "Sub F(y)", "#Else",
                       "Sub F(z)", "#End If", "#End If", "w = 1", "End Sub"}),
            (BodyRange{10, 10}));
}

TEST(AlternativeHeads, MayBeContinuedAndHaveBlanksAndCommentsBelow) {
  EXPECT_EQ(
      BodyAt(2, {"#If A Then", "Sub F( _", "  x)", "", "' note _", "#If is no line of its own",
                 "#else", "Sub F(y)", "#END IF", "z = 1", "End Sub"}),
      (BodyRange{10, 10}));
}

TEST(AlternativeHeads, AHeadMayStandAloneInItsBlock) {
  EXPECT_EQ(BodyAt(2, {"#If A Then", "Sub F(x)", "#End If", "z = 1", "End Sub"}),
            (BodyRange{4, 4}));
}

TEST(AlternativeHeads, AConditionalBlockInTheBodyStaysBody) {
  EXPECT_EQ(BodyAt(1, {"Sub F(x)", "#If A Then", "y = 1", "#Else", "z = 1", "#End If", "End Sub"}),
            (BodyRange{2, 6}));
  EXPECT_EQ(BodyAt(1, {"Sub F(x)", "y = 1", "#Else", "z = 1", "#End If", "End Sub"}),
            (BodyRange{2, 5}));
}

TEST(AlternativeHeads, WithoutAnEndIfThereIsNoBody) {
  const BodyRange body = BodyAt(2, {"#If A Then", "Sub F(x)", "#Else", "Sub F(y)", "End Sub"});
  EXPECT_GT(body.first, body.last);
}

TEST(AlternativeHeads, NoCommandTouchesThem) {
  for (const char* caption : {"Indent All Procedures", "Add Line Numbers", "Remove Line Numbers",
                              "Insert Error Handling"}) {
    const TextLines lines = AfterClickAll(caption, kTwoHeads);
    ASSERT_GE(lines.size(), 5u) << caption;
    EXPECT_THAT(TextLines(lines.begin(), lines.begin() + 5),
                ElementsAreArray(kTwoHeads.begin(), kTwoHeads.begin() + 5))
        << caption;
    EXPECT_EQ(lines.back(), "End Sub") << caption;
  }
}

TEST(AlternativeHeads, TheProcedureIsTransformedOnce) {
  EXPECT_THAT(AfterClickAll("Insert Error Handling", kTwoHeads),
              ElementsAreArray({"#If A Then", "Sub F(x)", "#Else", "Sub F(y)", "#End If",
                                "On Error GoTo ErrorTrap", "z = 1", "", "Exit Sub", "",
                                "ErrorTrap:", "TEST HANDLE", "End Sub"}));
}

}  // namespace alternative_heads_test
}  // namespace brimwork

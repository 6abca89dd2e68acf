#include "memory/memory_code_module.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "environment/run_time_error.h"
#include "support/opened_module.h"

namespace brimwork {
namespace memory_code_module_test {

using testing::ElementsAre;

struct MemoryCodeModuleTest : testing::Test {
  static MemoryCodeModule Holding(const TextLines& lines) {
    return {"Module1", ModuleText::FromText(JoinedLines(lines))};
  }

  template <class Call>
  static int ErrorNumberOf(Call call) {
    try {
      call();
    } catch (const RunTimeError& error) {
      return error.Number();
    }
    return 0;
  }
};

TEST_F(MemoryCodeModuleTest, HasTheNameItWasGiven) { EXPECT_EQ(Holding({}).Name(), "Module1"); }

TEST_F(MemoryCodeModuleTest, IsToldFromEveryOtherModuleByItsIdentity) {
  MemoryCodeModule one = Holding({"a"});
  MemoryCodeModule other = Holding({"a"});
  EXPECT_EQ(one.Identity(), one.Identity());
  EXPECT_NE(one.Identity(), other.Identity());
}

TEST_F(MemoryCodeModuleTest, LinesGivesOneLineOrSeveralJoined) {
  MemoryCodeModule module = Holding({"a", "b", "c"});
  EXPECT_EQ(module.CountOfLines(), 3);
  EXPECT_EQ(module.Lines(2, 1), "b");
  EXPECT_EQ(module.Lines(1, 2), "a\r\nb");
  EXPECT_EQ(module.Lines(2, 99), "b\r\nc");
}

TEST_F(MemoryCodeModuleTest, ReadingBehindTheEndGivesAnEmptyText) {
  MemoryCodeModule module = Holding({"a"});
  EXPECT_EQ(module.Lines(2, 1), "");
  EXPECT_EQ(module.Lines(99, 5), "");
  EXPECT_EQ(Holding({}).Lines(1, 1), "");
}

TEST_F(MemoryCodeModuleTest, LineZeroRaisesErrorNine) {
  MemoryCodeModule module = Holding({"Sub A()", "End Sub"});
  EXPECT_EQ(ErrorNumberOf([&] { module.Lines(0, 1); }), 9);
  EXPECT_EQ(ErrorNumberOf([&] { module.InsertLines(0, "x"); }), 9);
  EXPECT_EQ(ErrorNumberOf([&] { module.DeleteLines(0, 1); }), 9);
  EXPECT_EQ(ErrorNumberOf([&] { module.ReplaceLine(0, "x"); }), 9);
  EXPECT_EQ(ErrorNumberOf([&] { module.ProcOfLine(0); }), 9);
  EXPECT_THAT(LinesOf(module), ElementsAre("Sub A()", "End Sub"));
}

TEST_F(MemoryCodeModuleTest, ReplacingALineThatIsNotThereRaisesErrorNine) {
  MemoryCodeModule module = Holding({"a"});
  EXPECT_EQ(ErrorNumberOf([&] { module.ReplaceLine(2, "x"); }), 9);
  EXPECT_THAT(LinesOf(module), ElementsAre("a"));
}

TEST_F(MemoryCodeModuleTest, ReplaceLineWithALineEndInTheTextMakesSeveralLines) {
  MemoryCodeModule module = Holding({"a", "b"});
  module.ReplaceLine(1, "x\r\ny");
  EXPECT_THAT(LinesOf(module), ElementsAre("x", "y", "b"));
}

TEST_F(MemoryCodeModuleTest, InsertLinesPutsTheTextBeforeTheLine) {
  MemoryCodeModule module = Holding({"a", "b"});
  module.InsertLines(2, "x\r\n\r\ny");
  EXPECT_THAT(LinesOf(module), ElementsAre("a", "x", "", "y", "b"));
}

TEST_F(MemoryCodeModuleTest, AnEmptyTextInsertsOneEmptyLine) {
  MemoryCodeModule module = Holding({"a"});
  module.InsertLines(1, "");
  EXPECT_THAT(LinesOf(module), ElementsAre("", "a"));
}

TEST_F(MemoryCodeModuleTest, InsertingBehindTheEndAppends) {
  MemoryCodeModule module = Holding({"a"});
  module.InsertLines(2, "b");
  module.InsertLines(99, "c");
  EXPECT_THAT(LinesOf(module), ElementsAre("a", "b", "c"));
}

TEST_F(MemoryCodeModuleTest, DeleteLinesRemovesAsManyLinesAsThereAre) {
  MemoryCodeModule module = Holding({"a", "b", "c", "d"});
  module.DeleteLines(1, 1);
  EXPECT_THAT(LinesOf(module), ElementsAre("b", "c", "d"));
  module.DeleteLines(2, 99);
  EXPECT_THAT(LinesOf(module), ElementsAre("b"));
  module.DeleteLines(5, 1);
  EXPECT_THAT(LinesOf(module), ElementsAre("b"));
}

TEST_F(MemoryCodeModuleTest, FindComparesLetterCase) {
  MemoryCodeModule module = Holding({"abc", "xABCx", "abc"});
  Selection range{1, 1, -1, -1};
  EXPECT_TRUE(module.Find("ABC", range));
  EXPECT_EQ(range, (Selection{2, 2, 2, 5}));
}

TEST_F(MemoryCodeModuleTest, FindLeavesTheRangeAloneWhenNothingIsFound) {
  MemoryCodeModule module = Holding({"abc"});
  Selection range{1, 1, -1, -1};
  EXPECT_FALSE(module.Find("d", range));
  EXPECT_EQ(range, (Selection{1, 1, -1, -1}));
}

TEST_F(MemoryCodeModuleTest, FindStaysWithinItsRange) {
  MemoryCodeModule module = Holding({"ab ab", "ab", "ab"});
  Selection behindTheFirst{1, 2, -1, -1};
  EXPECT_TRUE(module.Find("ab", behindTheFirst));
  EXPECT_EQ(behindTheFirst, (Selection{1, 4, 1, 6}));
  Selection toColumnTwo{2, 1, 2, 2};
  EXPECT_FALSE(module.Find("ab", toColumnTwo));
  Selection lineThree{3, 1, 3, -1};
  EXPECT_TRUE(module.Find("ab", lineThree));
  Selection behindTheEnd{4, 1, -1, -1};
  EXPECT_FALSE(module.Find("ab", behindTheEnd));
}

TEST_F(MemoryCodeModuleTest, FindCountsColumnsInCharacters) {
  MemoryCodeModule module = Holding({"Größe = 1"});
  Selection range{1, 1, -1, -1};
  EXPECT_TRUE(module.Find("= 1", range));
  EXPECT_EQ(range, (Selection{1, 7, 1, 10}));
}

// Looking up procedures.

TEST_F(MemoryCodeModuleTest, ProcOfLineNamesTheProcedureAsItsDeclarationWritesIt) {
  MemoryCodeModule module = Holding({"Dim x", "", "Sub Total$()", "End Sub", ""});
  EXPECT_EQ(module.ProcOfLine(1).name, "");
  EXPECT_EQ(module.ProcOfLine(2).name, "Total");
  EXPECT_EQ(module.ProcOfLine(4).name, "Total");
  EXPECT_EQ(module.ProcOfLine(5).name, "");
  EXPECT_EQ(module.ProcOfLine(99).name, "");
}

TEST_F(MemoryCodeModuleTest, ADeclarationKeepsItsNameWithOtherBlanksAroundIt) {
  MemoryCodeModule module = Holding({"  Sub Total$(x)", "End Sub"});
  ASSERT_EQ(module.ProcOfLine(1).name, "Total");
  module.ReplaceLine(1, "\t\tSub Total$(x)  \t");
  EXPECT_EQ(module.ProcOfLine(1).name, "Total");
  module.ReplaceLine(1, "Sub Total$(x)");
  EXPECT_EQ(module.ProcOfLine(2).name, "Total");
}

TEST_F(MemoryCodeModuleTest, ProcOfLineGivesTheKind) {
  MemoryCodeModule module = Holding({"Property Get A()", "End Property", "Property Let A(x)",
                                     "End Property", "Property Set A(x)", "End Property"});
  EXPECT_EQ(module.ProcOfLine(2).kind, ProcKind::kPropertyGet);
  EXPECT_EQ(module.ProcOfLine(4).kind, ProcKind::kPropertyLet);
  EXPECT_EQ(module.ProcOfLine(6).kind, ProcKind::kPropertySet);
}

TEST_F(MemoryCodeModuleTest, AProcedureIsLookedUpByNameAndKindInAnyCase) {
  MemoryCodeModule module = Holding(
      {"Dim x", "", "Sub A()", "End Sub", "' b", "Property Get A()", "x = 1", "End Property"});
  EXPECT_EQ(module.ProcStartLine("a", ProcKind::kProcedure), 2);
  EXPECT_EQ(module.ProcBodyLine("a", ProcKind::kProcedure), 3);
  EXPECT_EQ(module.ProcCountLines("a", ProcKind::kProcedure), 3);
  EXPECT_EQ(module.ProcStartLine("A", ProcKind::kPropertyGet), 5);
  EXPECT_EQ(module.ProcBodyLine("A", ProcKind::kPropertyGet), 6);
  EXPECT_EQ(module.ProcCountLines("A", ProcKind::kPropertyGet), 4);
}

TEST_F(MemoryCodeModuleTest, AnUnknownProcedureRaisesErrorThirtyFive) {
  MemoryCodeModule module = Holding({"Sub A()", "End Sub"});
  EXPECT_EQ(ErrorNumberOf([&] { module.ProcStartLine("B", ProcKind::kProcedure); }), 35);
  EXPECT_EQ(ErrorNumberOf([&] { module.ProcCountLines("A", ProcKind::kPropertyGet); }), 35);
  EXPECT_EQ(ErrorNumberOf([&] { module.ProcBodyLine("", ProcKind::kProcedure); }), 35);
}

TEST(MemoryCodeModuleRevision, GoesUpWithEveryEdit) {
  MemoryCodeModule module("m", ModuleText::FromText("a\nb"));
  EXPECT_EQ(module.Revision(), 0u);
  module.Lines(1, 2);
  EXPECT_EQ(module.Revision(), 0u);
  module.ReplaceLine(1, "c");
  module.InsertLines(1, "d");
  module.DeleteLines(1, 1);
  EXPECT_EQ(module.Revision(), 3u);
}

}  // namespace memory_code_module_test
}  // namespace brimwork

// What a module of plain data does beyond what every module does (tests/bench/contract).
#include "memory/memory_code_module.h"

#include <gtest/gtest.h>

#include "support/module_lines.h"

namespace brimwork {
namespace memory_code_module_test {

struct MemoryCodeModuleTest : testing::Test {
  static MemoryCodeModule Holding(const TextLines& lines) {
    return {"Module1", ModuleText::FromText(JoinedLines(lines))};
  }
};

TEST_F(MemoryCodeModuleTest, HasTheNameItWasGiven) { EXPECT_EQ(Holding({}).Name(), "Module1"); }

TEST_F(MemoryCodeModuleTest, IsToldFromEveryOtherModuleByItsIdentity) {
  MemoryCodeModule one = Holding({"a"});
  MemoryCodeModule other = Holding({"a"});
  EXPECT_EQ(one.Identity(), one.Identity());
  EXPECT_NE(one.Identity(), other.Identity());
}

TEST_F(MemoryCodeModuleTest, FindEndsInFrontOfTheRangesEndColumn) {
  MemoryCodeModule module = Holding({"ab ab", "ab"});
  Selection toColumnTwo{2, 1, 2, 2};
  EXPECT_FALSE(module.Find("ab", toColumnTwo));
  Selection toColumnThree{2, 1, 2, 3};
  EXPECT_TRUE(module.Find("ab", toColumnThree));
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

// Several procedures of one name: which of them a lookup means.
#include <gtest/gtest.h>

#include "memory/memory_code_module.h"
#include "support/opened_module.h"

namespace brimwork {
namespace memory_code_module_procedures_test {

constexpr auto kProcedure = ProcKind::kProcedure;

/// Three procedures A, at lines 1, 4 and 7, and a B at line 10.
struct ProceduresOfOneName : testing::Test {
  MemoryCodeModule module{
      "Module1", ModuleText::FromText(
                     JoinedLines({"Sub A()", "x = 1", "End Sub", "Sub a()", "x = 2", "End Sub",
                                  "Sub A()", "x = 3", "End Sub", "Sub B()", "End Sub"}))};
};

TEST_F(ProceduresOfOneName, ALookUpMeansTheFirstWhenNoneWasNamedBefore) {
  EXPECT_EQ(module.ProcBodyLine("A", kProcedure), 1);
}

TEST_F(ProceduresOfOneName, ALookUpMeansTheOneThatProcOfLineNamedLast) {
  module.ProcOfLine(5);
  EXPECT_EQ(module.ProcBodyLine("A", kProcedure), 4);
  EXPECT_EQ(module.ProcStartLine("A", kProcedure), 4);
  EXPECT_EQ(module.ProcCountLines("A", kProcedure), 3);
  module.ProcOfLine(9);
  EXPECT_EQ(module.ProcBodyLine("A", kProcedure), 7);
}

TEST_F(ProceduresOfOneName, ALookUpMeansTheFirstWhenAnotherNameWasNamedLast) {
  module.ProcOfLine(5);
  module.ProcOfLine(10);
  EXPECT_EQ(module.ProcBodyLine("A", kProcedure), 1);
  EXPECT_EQ(module.ProcBodyLine("B", kProcedure), 10);
}

TEST_F(ProceduresOfOneName, ALookUpFollowsTheNamedOneThroughEditsAboveIt) {
  module.ProcOfLine(8);
  module.InsertLines(1, "' one\r\n' two");
  EXPECT_EQ(module.ProcBodyLine("A", kProcedure), 9);
  module.DeleteLines(1, 1);
  EXPECT_EQ(module.ProcBodyLine("A", kProcedure), 8);
  module.ReplaceLine(3, "x = 1\r\ny = 1\r\nz = 1");
  EXPECT_EQ(module.ProcBodyLine("A", kProcedure), 10);
}

TEST_F(ProceduresOfOneName, ALookUpFollowsTheNamedOneThroughEditsInIt) {
  module.ProcOfLine(5);
  module.InsertLines(4, "' about it");
  EXPECT_EQ(module.ProcStartLine("A", kProcedure), 4);
  EXPECT_EQ(module.ProcBodyLine("A", kProcedure), 5);
  module.InsertLines(6, "y = 2");
  EXPECT_EQ(module.ProcCountLines("A", kProcedure), 5);
}

TEST_F(ProceduresOfOneName, ALookUpMeansTheFirstAgainWhenTheNamedOneIsGone) {
  module.ProcOfLine(5);
  module.DeleteLines(4, 3);
  EXPECT_EQ(module.ProcBodyLine("A", kProcedure), 1);
}

TEST_F(ProceduresOfOneName, ALookUpMeansTheFirstAgainWhenTheNamedOneIsRenamed) {
  module.ProcOfLine(5);
  module.ReplaceLine(4, "Sub C()");
  EXPECT_EQ(module.ProcBodyLine("A", kProcedure), 1);
  EXPECT_EQ(module.ProcBodyLine("C", kProcedure), 4);
}

}  // namespace memory_code_module_procedures_test
}  // namespace brimwork

// Closing statements that stand in comments close nothing, wherever the comment began.
#include <gtest/gtest.h>

#include "support/opened_module.h"
#include "transform/procedure_bounds.h"

namespace brimwork {
namespace closing_line_test {

/// The record of the procedure at a line.
CurrentProcedure BoundsAt(int line, const TextLines& lines) {
  OpenedModule opened(lines);
  GetProcedureBounds(opened.Commands(), opened.Module(), line);
  return opened.Commands().procedure;
}

TEST(ClosingLine, IsNoCommentThatContinuesTheClosingLine) {
  const CurrentProcedure record =
      BoundsAt(1, {"Sub A()", "x = 1", "End Sub ' see _", "above: End Sub"});
  EXPECT_EQ(record.CurrentProcEnd, 4);
  EXPECT_EQ(record.LastBodyLine, 2);
}

TEST(ClosingLine, IsNoCommentThatEndsAnUnclosedProcedure) {
  const CurrentProcedure record = BoundsAt(1, {"Sub A()", "x = 1 ' see _", "below: End Sub"});
  EXPECT_EQ(record.FirstBodyLine, 2);
  EXPECT_EQ(record.LastBodyLine, 1);
}

}  // namespace closing_line_test
}  // namespace brimwork

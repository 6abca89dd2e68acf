#include <gtest/gtest.h>

#include "support/opened_module.h"

namespace brimwork {
namespace caret_on_empty_line_test {

TEST(CaretOnAnEmptyLine, StaysOnThatLineWhenLinesAreAddedAboveIt) {
  OpenedModule opened({"Sub A()", "x = 1", "", "y = 1", "End Sub"});
  opened.ClickAt(3, "Insert Error Handling");
  ASSERT_EQ(opened.Lines()[3], "");
  EXPECT_EQ(opened.CaretLine(), 4);
}

}  // namespace caret_on_empty_line_test
}  // namespace brimwork

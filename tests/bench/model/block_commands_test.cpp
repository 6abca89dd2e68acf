// The commands on the lines of a selection.
#include "bench/model/block_commands.h"

#include <gtest/gtest.h>

#include <string>

namespace brimwork::bench {
namespace block_commands_test {

struct BlockCommandsTest : testing::Test {
  std::string After(void (*run)(MemoryCodePane&), const std::string& text,
                    const Selection& selection) {
    const auto module = std::make_shared<MemoryCodeModule>("Module1", ModuleText::FromText(text));
    MemoryCodePane pane(module);
    pane.SetSelection(selection);
    run(pane);
    selected = pane.GetSelection();
    return module->Text().Joined();
  }

  Selection selected;
};

TEST_F(BlockCommandsTest, CommentsEachLineInItsFirstColumn) {
  EXPECT_EQ(After(CommentBlock, "a\n  b\n\nd", {1, 1, 3, 1}), "'a\r\n'  b\r\n\r\nd");
  EXPECT_EQ(selected, (Selection{1, 1, 3, 1}));
  EXPECT_EQ(After(CommentBlock, "a\n\nc", {1, 1, 3, 2}), "'a\r\n'\r\n'c");
  EXPECT_EQ(selected, (Selection{1, 1, 3, 3}));
}

TEST_F(BlockCommandsTest, ACaretMeansItsLine) {
  EXPECT_EQ(After(CommentBlock, "a\nbc", {2, 2, 2, 2}), "a\r\n'bc");
  EXPECT_EQ(selected, (Selection{2, 3, 2, 3}));
  EXPECT_EQ(After(CommentBlock, "a\nbc", {2, 1, 2, 1}), "a\r\n'bc");
  EXPECT_EQ(selected, (Selection{2, 1, 2, 1}));
}

TEST_F(BlockCommandsTest, UncommentsWhatOpensWithAnApostrophe) {
  EXPECT_EQ(After(UncommentBlock, "'a\n \t'b 'c\nd 'e\n''f", {1, 2, 4, 4}),
            "a\r\n \tb 'c\r\nd 'e\r\n'f");
  EXPECT_EQ(selected, (Selection{1, 1, 4, 3}));
}

TEST_F(BlockCommandsTest, CommentingAndUncommentingGivesTheLinesBack) {
  const std::string text = "Sub A()\r\n  'x\r\n\r\nEnd Sub";
  const std::string commented = After(CommentBlock, text, {1, 1, 4, 8});
  EXPECT_EQ(After(UncommentBlock, commented, selected), text);
  EXPECT_EQ(selected, (Selection{1, 1, 4, 8}));
}

TEST_F(BlockCommandsTest, IndentsByFourColumnsWhatHoldsAnything) {
  EXPECT_EQ(After(IndentBlock, "a\n\n  b", {1, 1, 3, 4}), "    a\r\n\r\n      b");
  EXPECT_EQ(selected, (Selection{1, 1, 3, 8}));
}

TEST_F(BlockCommandsTest, OutdentsByFourColumnsAtMost) {
  EXPECT_EQ(After(OutdentBlock, "     a\n  b\n\tc\nd", {1, 1, 5, 1}), " a\r\nb\r\nc\r\nd");
  EXPECT_EQ(After(OutdentBlock, "    a", {1, 3, 1, 6}), "a");
  EXPECT_EQ(selected, (Selection{1, 1, 1, 2}));
}

TEST_F(BlockCommandsTest, AnEmptyModuleStaysEmpty) {
  EXPECT_EQ(After(CommentBlock, "", {1, 1, 1, 1}), "");
  EXPECT_EQ(selected, (Selection{1, 1, 1, 1}));
}

}  // namespace block_commands_test
}  // namespace brimwork::bench

// An editor's text taken over into its module.
#include "bench/model/text_change.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "memory/source_file.h"

namespace brimwork::bench {
namespace text_change_test {

MemoryCodeModule Module(const std::string& text) {
  return MemoryCodeModule("Module1", ModuleText::FromText(text));
}

std::string TextOf(MemoryCodeModule& module) { return module.Lines(1, module.CountOfLines()); }

/// What becomes of a module, as the change and the text.
struct Result {
  LineChange change;
  std::string text;
  bool operator==(const Result&) const = default;
};
void PrintTo(const Result& result, std::ostream* out) {
  *out << "from " << result.change.first << ": -" << result.change.removed << " +"
       << result.change.inserted << '\n'
       << result.text;
}

Result Changed(const std::string& before, const std::string& editorText) {
  MemoryCodeModule module = Module(before);
  const LineChange change = TakeOverText(module, editorText);
  return {change, TextOf(module)};
}

TEST(TextChange, NothingHappensWhereNothingChanged) {
  MemoryCodeModule module = Module("a\r\nb\r\n");
  EXPECT_EQ(TakeOverText(module, "a\r\nb"), LineChange{});
  EXPECT_EQ(module.Revision(), 0u);
}

TEST(TextChange, AChangedLineIsReplaced) {
  EXPECT_EQ(Changed("a\r\nb\r\nc\r\n", "a\r\nbb\r\nc"), (Result{{2, 1, 1}, "a\r\nbb\r\nc"}));
}

TEST(TextChange, ANewLineIsInserted) {
  EXPECT_EQ(Changed("a\r\nc\r\n", "a\r\nb\r\nc"), (Result{{2, 0, 1}, "a\r\nb\r\nc"}));
  EXPECT_EQ(Changed("a\r\n", "a\r\n"), (Result{{2, 0, 1}, "a\r\n"}));
  EXPECT_EQ(Changed("a\r\n", "x\r\ny\r\na"), (Result{{1, 0, 2}, "x\r\ny\r\na"}));
}

TEST(TextChange, DeletedLinesGo) {
  EXPECT_EQ(Changed("a\r\nb\r\nc\r\nd\r\n", "a\r\nd"), (Result{{2, 2, 0}, "a\r\nd"}));
}

TEST(TextChange, SeveralLinesGiveWayToMoreOrFewer) {
  EXPECT_EQ(Changed("a\r\nb\r\nc\r\nd", "a\r\nx\r\ny\r\nz\r\nd"),
            (Result{{2, 2, 3}, "a\r\nx\r\ny\r\nz\r\nd"}));
  EXPECT_EQ(Changed("a\r\nb\r\nc\r\nd\r\ne", "a\r\nx\r\ne"), (Result{{2, 3, 1}, "a\r\nx\r\ne"}));
}

TEST(TextChange, OfEqualLinesOneIsInsertedOrRemoved) {
  EXPECT_EQ(Changed("a\r\n\r\n\r\nb", "a\r\n\r\nb"), (Result{{3, 1, 0}, "a\r\n\r\nb"}));
  EXPECT_EQ(Changed("a\r\na", "a\r\na\r\na"), (Result{{3, 0, 1}, "a\r\na\r\na"}));
}

TEST(TextChange, AnEmptiedModuleHasNoLines) {
  MemoryCodeModule module = Module("a\r\nb");
  EXPECT_EQ(TakeOverText(module, ""), (LineChange{1, 2, 0}));
  EXPECT_EQ(module.CountOfLines(), 0);
  EXPECT_EQ(TakeOverText(module, ""), LineChange{});
  EXPECT_EQ(TakeOverText(module, "x\r\ny"), (LineChange{1, 0, 2}));
  EXPECT_EQ(TextOf(module), "x\r\ny");
}

TEST(TextChange, AnEmptyLineAndNoLineLookAlike) {
  MemoryCodeModule module = Module("\r\n");
  EXPECT_EQ(TakeOverText(module, ""), LineChange{});
  EXPECT_EQ(module.CountOfLines(), 1);
}

TEST(TextChange, LineFeedsAloneEndLinesToo) {
  EXPECT_EQ(Changed("a\r\nb", "a\nx\nb"), (Result{{2, 0, 1}, "a\r\nx\r\nb"}));
}

struct HiddenLines : testing::Test {
  SourceFile file = SourceFile::Parse(
      "Attribute VB_Name = \"m\"\r\nSub A()\nAttribute A.VB_Description = \"x\"\r\n  b\nEnd "
      "Sub\r\n",
      "m.bas", "WINDOWS-1252");
  MemoryCodeModule module{"m", file.TakeText()};

  std::string FileWith(const std::string& editorText) {
    TakeOverText(module, editorText);
    std::string bytes;
    file.Compose(module.Text(), [&](std::string_view piece) { bytes.append(piece); });
    return bytes;
  }
};

TEST_F(HiddenLines, StayWithTheirLineWhenTheNextIsEdited) {
  EXPECT_EQ(FileWith("Sub A()\r\n  c\r\nEnd Sub"),
            "Attribute VB_Name = \"m\"\r\nSub A()\nAttribute A.VB_Description = \"x\"\r\n  "
            "c\nEnd Sub\r\n");
}

TEST_F(HiddenLines, StayBehindTheLastLineThatTheirOwnIsSplitInto) {
  EXPECT_EQ(FileWith("Sub _\r\nA()\r\n  b\r\nEnd Sub"),
            "Attribute VB_Name = \"m\"\r\nSub _\r\nA()\nAttribute A.VB_Description = \"x\"\r\n  "
            "b\nEnd Sub\r\n");
}

TEST_F(HiddenLines, StayAboveALineTypedBelowTheirs) {
  EXPECT_EQ(FileWith("Sub A()\r\n\r\n  b\r\nEnd Sub"),
            "Attribute VB_Name = \"m\"\r\nSub A()\nAttribute A.VB_Description = \"x\"\r\n\r\n  "
            "b\nEnd Sub\r\n");
}

TEST_F(HiddenLines, OutliveTheirLine) {
  EXPECT_EQ(FileWith("Sub A() 'now\r\nEnd Sub"),
            "Attribute VB_Name = \"m\"\r\nSub A() 'now\nAttribute A.VB_Description = \"x\"\r\nEnd "
            "Sub\r\n");
}

/// A text of few different lines, so that runs of equal ones are common.
std::string RandomText(std::mt19937& random) {
  std::string text;
  const int lines = static_cast<int>(random() % 8);
  for (int i = 0; i < lines; ++i) {
    if (i > 0) text += "\r\n";
    text += std::string(random() % 3, 'a');
  }
  return text;
}

TEST(TextChange, AnyTextBecomesAnyOther) {
  std::mt19937 random(4711);
  for (int round = 0; round < 20000; ++round) {
    const std::string before = RandomText(random);
    const std::string after = RandomText(random);
    MemoryCodeModule module = Module(before);
    const int count = module.CountOfLines();
    const LineChange change = TakeOverText(module, after);
    ASSERT_EQ(TextOf(module), after) << before;
    ASSERT_EQ(module.CountOfLines(), count - change.removed + change.inserted);
  }
}

}  // namespace text_change_test
}  // namespace brimwork::bench

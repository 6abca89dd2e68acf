#include "cli/unified_diff.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

namespace brimwork {
namespace unified_diff_test {

using Lines = std::vector<std::string>;

struct DiffCase {
  Lines before;
  Lines after;
  bool endsBefore = true;
  bool endsAfter = true;
  std::vector<DiffAnchor> anchors = {};
  DiffOptions options = {};
  DiffLabels labels = {"a.bas", "b.bas"};
};

std::string Diff(const DiffCase& diff, DiffStat* stat = nullptr) {
  const VectorLines before(diff.before);
  const VectorLines after(diff.after);
  std::string text;
  const DiffStat found =
      UnifiedDiff(diff.labels, {before, diff.endsBefore}, {after, diff.endsAfter}, diff.anchors,
                  diff.options, [&](std::string_view part) { text += part; });
  if (stat) *stat = found;
  return text;
}

Lines Numbers(int first, int last) {
  Lines lines;
  for (int number = first; number <= last; ++number) lines.push_back(std::to_string(number));
  return lines;
}

const std::string kHeader = "--- a.bas\n+++ b.bas\n";

TEST(UnifiedDiff, OfEqualFilesIsEmpty) {
  EXPECT_EQ(Diff({{}, {}}), "");
  EXPECT_EQ(Diff({{"a", "b"}, {"a", "b"}}), "");
}

TEST(UnifiedDiff, ShowsThreeLinesAroundAChange) {
  Lines after = Numbers(1, 9);
  after[4] = "five";
  EXPECT_EQ(Diff({Numbers(1, 9), after}),
            kHeader + "@@ -2,7 +2,7 @@\n 2\n 3\n 4\n-5\n+five\n 6\n 7\n 8\n");
}

TEST(UnifiedDiff, CountsTheChangedLines) {
  DiffStat stat;
  Diff({{"a", "b", "c"}, {"a", "x", "y", "c"}}, &stat);
  EXPECT_EQ(stat.removed, 1);
  EXPECT_EQ(stat.added, 2);
}

TEST(UnifiedDiff, OfANewOrEmptiedFileNamesLineZero) {
  EXPECT_EQ(Diff({{}, {"a", "b"}}), kHeader + "@@ -0,0 +1,2 @@\n+a\n+b\n");
  EXPECT_EQ(Diff({{"a"}, {}}), kHeader + "@@ -1 +0,0 @@\n-a\n");
}

TEST(UnifiedDiff, NearChangesShareAHunkAndFarOnesDoNot) {
  Lines near = Numbers(1, 20);
  near[4] = near[11] = "x";
  EXPECT_EQ(Diff({Numbers(1, 20), near}),
            kHeader +
                "@@ -2,14 +2,14 @@\n 2\n 3\n 4\n-5\n+x\n 6\n 7\n 8\n 9\n 10\n 11\n-12\n+x\n 13\n "
                "14\n 15\n");
  Lines far = Numbers(1, 20);
  far[4] = far[12] = "x";
  EXPECT_EQ(Diff({Numbers(1, 20), far}),
            kHeader +
                "@@ -2,7 +2,7 @@\n 2\n 3\n 4\n-5\n+x\n 6\n 7\n 8\n"
                "@@ -10,7 +10,7 @@\n 10\n 11\n 12\n-13\n+x\n 14\n 15\n 16\n");
}

TEST(UnifiedDiff, ContextCanBeNone) {
  DiffCase diff{{"a", "b", "c"}, {"a", "x", "c"}};
  diff.options.context = 0;
  EXPECT_EQ(Diff(diff), kHeader + "@@ -2 +2 @@\n-b\n+x\n");
  diff.after = {"a", "b", "x", "c"};
  EXPECT_EQ(Diff(diff), kHeader + "@@ -2,0 +3 @@\n+x\n");
}

TEST(UnifiedDiff, TellsOfAMissingLastLineEnd) {
  EXPECT_EQ(Diff({{"a"}, {"b"}, false, false}),
            kHeader +
                "@@ -1 +1 @@\n-a\n\\ No newline at end of file\n+b\n\\ No newline at end of "
                "file\n");
  EXPECT_EQ(Diff({{"a", "b"}, {"x", "b"}, false, false}),
            kHeader + "@@ -1,2 +1,2 @@\n-a\n+x\n b\n\\ No newline at end of file\n");
}

TEST(UnifiedDiff, ALastLineEndAloneIsAChange) {
  EXPECT_EQ(Diff({{"a"}, {"a"}, true, false}),
            kHeader + "@@ -1 +1 @@\n-a\n+a\n\\ No newline at end of file\n");
  EXPECT_EQ(Diff({{"a"}, {"a", "b"}, false, true}),
            kHeader + "@@ -1 +1,2 @@\n-a\n\\ No newline at end of file\n+a\n+b\n");
}

TEST(UnifiedDiff, KeepsTheCarriageReturnsOfTheLines) {
  EXPECT_EQ(Diff({{"a\r", "b\r"}, {"a\r", "c\r"}}),
            kHeader + "@@ -1,2 +1,2 @@\n a\r\n-b\r\n+c\r\n");
  EXPECT_EQ(Diff({{"a\r"}, {"a"}}), kHeader + "@@ -1 +1 @@\n-a\r\n+a\n");
}

TEST(UnifiedDiff, ColorsEachLineUpToItsEnd) {
  DiffCase diff{{"a\r", "b\r"}, {"a\r", "c\r"}};
  diff.options.color = true;
  EXPECT_EQ(Diff(diff),
            "\x1b[1m--- a.bas\x1b[m\n\x1b[1m+++ b.bas\x1b[m\n\x1b[36m@@ -1,2 +1,2 @@\x1b[m\n"
            " a\r\n\x1b[31m-b\x1b[m\r\n\x1b[32m+c\x1b[m\r\n");
}

TEST(UnifiedDiff, ANameWithABlankIsClosedAndAnOddOneQuoted) {
  DiffCase diff{{"a"}, {"b"}};
  diff.labels = {"my file.bas", "q\"\\\n\t.bas"};
  EXPECT_EQ(Diff(diff),
            "--- my file.bas\t\n+++ \"q\\\"\\\\\\012\\011.bas\"\n@@ -1 +1 @@\n-a\n+b\n");
}

TEST(UnifiedDiff, FindsTheFewestChangesInAShortPiece) {
  DiffStat stat;
  Diff({{"a", "b", "c", "a", "b", "b", "a"}, {"c", "b", "a", "b", "a", "c"}}, &stat);
  EXPECT_EQ(stat.removed + stat.added, 5);
}

TEST(UnifiedDiff, FindsWhatWasInsertedIntoALongFileWithoutAnchors) {
  Lines after = Numbers(1, 5000);
  after.insert(after.begin(), "top");
  after.insert(after.begin() + 2500, "middle");
  after.push_back("bottom");
  DiffStat stat;
  Diff({Numbers(1, 5000), after}, &stat);
  EXPECT_EQ(stat.added, 3);
  EXPECT_EQ(stat.removed, 0);
}

TEST(UnifiedDiff, AnchorsKeepApartWhatTheyPart) {
  DiffCase diff{{"a", "b"}, {"b", "a"}};
  diff.anchors = {{2, 2}};
  DiffStat stat;
  EXPECT_EQ(Diff(diff, &stat), kHeader + "@@ -1,2 +1,2 @@\n-a\n-b\n+b\n+a\n");
}

TEST(UnifiedDiff, AnchorsThatLieWrongArePassedOver) {
  DiffCase diff{{"a", "b", "c"}, {"a", "x", "c"}};
  const std::string expected = Diff(diff);
  diff.anchors = {{0, 0}, {9, 9}, {3, 3}, {2, 2}, {-1, 3}, {3, 99}};
  EXPECT_EQ(Diff(diff), expected);
}

/// 200,000 lines of which every one changed; the exact comparison of the whole would take hours.
TEST(UnifiedDiff, AFileThatChangedThroughoutTakesNoLongerThanItsLength) {
  const int count = 200000;
  Lines before;
  Lines after;
  std::vector<DiffAnchor> anchors = {};
  for (int line = 1; line <= count; ++line) {
    before.push_back("x = " + std::to_string(line % 7));
    after.push_back("    x = " + std::to_string(line % 7));
    if (line % 100 == 0) anchors.push_back({line, line});
  }
  const auto start = std::chrono::steady_clock::now();
  for (const auto& cuts : {anchors, std::vector<DiffAnchor>{}}) {
    DiffStat stat;
    Diff({before, after, true, true, cuts}, &stat);
    EXPECT_EQ(stat.removed, count);
    EXPECT_EQ(stat.added, count);
  }
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(60));
}

TEST(UnifiedDiff, GivesALongDiffInBlocks) {
  const VectorLines before(Numbers(1, 100000));
  const VectorLines after(Numbers(200001, 300000));
  std::size_t blocks = 0;
  std::size_t largest = 0;
  UnifiedDiff({"a", "b"}, {before, true}, {after, true}, {}, {}, [&](std::string_view part) {
    ++blocks;
    largest = std::max(largest, part.size());
  });
  EXPECT_GT(blocks, 10u);
  EXPECT_LT(largest, 100000u);
}

}  // namespace unified_diff_test
}  // namespace brimwork

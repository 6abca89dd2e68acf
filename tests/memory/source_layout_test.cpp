#include "memory/source_layout.h"

#include <gtest/gtest.h>

namespace brimwork {
namespace source_layout_test {

struct Laid {
  std::shared_ptr<const std::string> text;
  ParsedSource parsed;
};

Laid Lay(std::string text) {
  auto shared = std::make_shared<const std::string>(std::move(text));
  return {shared, ReadLayout(shared, "a.cls")};
}

constexpr const char* kClass =
    "VERSION 1.0 CLASS\n"                          // 1
    "Attribute VB_Name = \"a\"\n"                  // 2
    "Attribute mvarItem.VB_VarHelpID = -1\n"       // 3, above module line 1
    "Option Explicit\n"                            // 4, module line 1
    "Public Property Get Item()\n"                 // 5
    "Attribute Item.VB_UserMemId = 0\n"            // 6
    "Attribute Item.VB_MemberFlags = \"200\"\n"    // 7
    "End Property\n"                               // 8, module line 3
    "Attribute Item.VB_Description = \"at end\"";  // 9

TEST(SourceLayout, NumbersTheLinesOfFileAndModule) {
  const Laid laid = Lay(kClass);
  const SourceLayout& layout = laid.parsed.layout;
  EXPECT_EQ(layout.FileLines(), 9);
  EXPECT_EQ(layout.moduleLines, 3);
  const int expected[] = {1, 1, 1, 1, 2, 2, 2, 3, 3};
  for (int line = 1; line <= 9; ++line) EXPECT_EQ(layout.ModuleLineOf(line), expected[line - 1]);
  EXPECT_EQ(layout.FileLineOf(1), 4);
  EXPECT_EQ(layout.FileLineOf(2), 5);
  EXPECT_EQ(layout.FileLineOf(3), 8);
}

TEST(SourceLayout, HangsHiddenLinesBehindTheLineAboveThem) {
  const Laid laid = Lay(kClass);
  EXPECT_EQ(laid.parsed.text.Joined(),
            "Option Explicit\r\nPublic Property Get Item()\r\nEnd Property");
  EXPECT_EQ(laid.parsed.text.HiddenBehind(0).size(), 1u);
  EXPECT_EQ(laid.parsed.text.HiddenBehind(1).size(), 0u);
  EXPECT_EQ(laid.parsed.text.HiddenBehind(2).size(), 2u);
  EXPECT_EQ(laid.parsed.text.HiddenBehind(3).size(), 1u);
}

TEST(SourceLayout, ShowsAnAttributeThatContinuesTheLineAboveIt) {
  const Laid laid = Lay("x = _\nAttribute Item.VB_UserMemId = 0\ny = 1_\nAttribute a.VB_B = 0\n");
  EXPECT_EQ(laid.parsed.text.Joined(), "x = _\r\nAttribute Item.VB_UserMemId = 0\r\ny = 1_");
}

TEST(SourceLayout, WalksTheLinesAsTheyWereRead) {
  const Laid laid = Lay(kClass);
  std::vector<std::pair<std::string, int>> lines;
  for (OriginalLines line(laid.parsed.layout, *laid.text); line.Next();)
    lines.emplace_back(line.Line(), line.FileLine());
  const std::vector<std::pair<std::string, int>> expected{
      {"Option Explicit", 4}, {"Public Property Get Item()", 5}, {"End Property", 8}};
  EXPECT_EQ(lines, expected);
}

TEST(SourceLayout, KnowsTheCommonerLineEnd) {
  EXPECT_EQ(Lay("a\nb\nc\r\n").parsed.layout.commonerEnd, LineEnd::kLf);
  EXPECT_EQ(Lay("a\r\nb\nc\r\n").parsed.layout.commonerEnd, LineEnd::kCrLf);
  EXPECT_EQ(Lay("a\r\nb\n").parsed.layout.commonerEnd, LineEnd::kCrLf);
  EXPECT_EQ(Lay("a").parsed.layout.commonerEnd, LineEnd::kCrLf);
  EXPECT_EQ(Lay("Attribute VB_Name = \"a\"\nb\r\nc\n").parsed.layout.commonerEnd, LineEnd::kLf);
}

TEST(SourceLayout, KnowsWhetherTheLastLineEnds) {
  EXPECT_TRUE(Lay("").parsed.layout.endsLastLine);
  EXPECT_TRUE(Lay("a\n").parsed.layout.endsLastLine);
  EXPECT_FALSE(Lay("a\nb").parsed.layout.endsLastLine);
}

TEST(SourceLayout, TakesALoneCrForText) {
  const Laid laid = Lay("a\rb\r\r\nc\r");
  EXPECT_EQ(laid.parsed.text.Count(), 2);
  EXPECT_EQ(laid.parsed.text.Line(1), "a\rb\r");
  EXPECT_EQ(laid.parsed.text.Line(2), "c\r");
}

}  // namespace source_layout_test
}  // namespace brimwork

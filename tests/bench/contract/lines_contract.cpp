// A module's lines: reading, inserting, deleting and replacing them, and what happens at the edges.
#include <gmock/gmock.h>

#include "bench/contract/contract_environment.h"

namespace brimwork::contract {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_P(LinesContract, LinesComeSinglyOrJoined) {
  const auto module = Open({"a", "b", "c"});
  EXPECT_EQ(module->CountOfLines(), 3);
  EXPECT_EQ(module->Lines(2, 1), "b");
  EXPECT_EQ(module->Lines(1, 2), "a\r\nb");
  std::string text = "before";
  module->ReadLine(3, text);
  EXPECT_EQ(text, "c");
}

TEST_P(LinesContract, ReadingStopsAtTheEnd) {
  const auto module = Open({"a", "b", "c"});
  EXPECT_EQ(module->Lines(2, 999999), "b\r\nc");
  EXPECT_EQ(module->Lines(4, 1), "");
  EXPECT_EQ(module->Lines(99, 5), "");
}

TEST_P(LinesContract, AnEmptyModuleHasNoLines) {
  const auto module = Open({});
  EXPECT_EQ(module->CountOfLines(), 0);
  EXPECT_EQ(module->CountOfDeclarationLines(), 0);
  EXPECT_EQ(module->Lines(1, 1), "");
}

TEST_P(LinesContract, LineZeroRaisesErrorNine) {
  const auto module = Open({"Sub A()", "End Sub"});
  std::string text;
  EXPECT_EQ(NumberOfErrorIn([&] { module->Lines(0, 1); }), 9);
  EXPECT_EQ(NumberOfErrorIn([&] { module->ReadLine(0, text); }), 9);
  EXPECT_EQ(NumberOfErrorIn([&] { module->InsertLines(0, "x"); }), 9);
  EXPECT_EQ(NumberOfErrorIn([&] { module->DeleteLines(0); }), 9);
  EXPECT_EQ(NumberOfErrorIn([&] { module->ReplaceLine(0, "x"); }), 9);
  EXPECT_EQ(NumberOfErrorIn([&] { module->ProcOfLine(0); }), 9);
  EXPECT_THAT(LinesOf(*module), ElementsAre("Sub A()", "End Sub"));
}

TEST_P(LinesContract, AnInsertedTextGoesInFrontOfItsLine) {
  const auto module = Open({"a", "b"});
  module->InsertLines(2, "x\r\n\r\ny");
  EXPECT_THAT(LinesOf(*module), ElementsAre("a", "x", "", "y", "b"));
}

TEST_P(LinesContract, ATextThatEndsInALineEndInsertsOneEmptyLineMore) {
  const auto module = Open({"a", "b"});
  module->InsertLines(2, "x\r\n");
  EXPECT_THAT(LinesOf(*module), ElementsAre("a", "x", "", "b"));
}

TEST_P(LinesContract, AnEmptyTextInsertsOneEmptyLine) {
  const auto module = Open({"a"});
  module->InsertLines(1, "");
  EXPECT_THAT(LinesOf(*module), ElementsAre("", "a"));
}

TEST_P(LinesContract, InsertingBehindTheEndAppends) {
  const auto module = Open({"a"});
  module->InsertLines(2, "b");
  module->InsertLines(99, "c\r\nd");
  EXPECT_THAT(LinesOf(*module), ElementsAre("a", "b", "c", "d"));
}

TEST_P(LinesContract, AnEmptyModuleTakesItsFirstLine) {
  const auto module = Open({});
  module->InsertLines(1, "x = 1");
  EXPECT_THAT(LinesOf(*module), ElementsAre("x = 1"));
}

TEST_P(LinesContract, OneLineIsDeletedWithoutACount) {
  const auto module = Open({"a", "b", "c"});
  module->DeleteLines(2);
  EXPECT_THAT(LinesOf(*module), ElementsAre("a", "c"));
}

TEST_P(LinesContract, NoMoreLinesAreDeletedThanThereAre) {
  const auto module = Open({"a", "b", "c"});
  module->DeleteLines(2, 99);
  EXPECT_THAT(LinesOf(*module), ElementsAre("a"));
  module->DeleteLines(5, 1);
  EXPECT_THAT(LinesOf(*module), ElementsAre("a"));
  module->DeleteLines(1, 1);
  EXPECT_THAT(LinesOf(*module), IsEmpty());
}

TEST_P(LinesContract, AReplacementMayHaveSeveralLines) {
  const auto module = Open({"a", "b", "c"});
  module->ReplaceLine(2, "x");
  module->ReplaceLine(1, "y\r\nz");
  EXPECT_THAT(LinesOf(*module), ElementsAre("y", "z", "x", "c"));
}

TEST_P(LinesContract, ALineThatIsNotThereIsNotReplaced) {
  const auto module = Open({"a"});
  EXPECT_EQ(NumberOfErrorIn([&] { module->ReplaceLine(2, "x"); }), 9);
  EXPECT_THAT(LinesOf(*module), ElementsAre("a"));
}

TEST_P(LinesContract, EveryCharacterComesBack) {
  const TextLines lines = {"\tx = \"Größe\"  ", "日本 ' Ж", "\xF0\x9F\x98\x80", ""};
  const auto module = Open({});
  module->InsertLines(1, lines[0] + "\r\n" + lines[1] + "\r\n" + lines[2] + "\r\n" + lines[3]);
  EXPECT_EQ(LinesOf(*module), lines);
}

TEST_P(LinesContract, AModuleBearsItsNameAndAnIdentityOfItsOwn) {
  const auto one = TheEnvironment().Open("modOne", {"a"});
  const auto identity = one->Module()->Identity();
  const auto other = TheEnvironment().Open("modOther", {"a"});
  EXPECT_EQ(one->Module()->Name(), "modOne");
  EXPECT_EQ(one->Module()->Identity(), identity);
  EXPECT_NE(other->Module()->Identity(), identity);
  EXPECT_EQ(Vbe().ActiveCodePane()->Module()->Identity(), other->Module()->Identity());
}

}  // namespace brimwork::contract

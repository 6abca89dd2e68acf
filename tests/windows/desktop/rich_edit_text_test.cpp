#include "windows/desktop/rich_edit_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "memory/rich_text.h"

namespace brimwork::windows {
namespace rich_edit_text_test {

using testing::ElementsAre;

template <class Question>
std::vector<int> ForEachPosition(const RichEditText& text, Question question) {
  std::vector<int> answers;
  for (int position = 0; position <= text.Size(); ++position) {
    answers.push_back(static_cast<int>(question(position)));
  }
  return answers;
}

TEST(RichEditText, CountsALineEndAsTwoCharactersAndAPairAsOne) {
  EXPECT_EQ(RichEditText(L"ab\rc").Size(), 5);
  EXPECT_EQ(RichEditText(L"\U0001F600x").Size(), 2);
  EXPECT_EQ(RichEditText().Size(), 0);
}

TEST(RichEditText, FindsTheUnitsOfPositions) {
  const RichEditText text(L"a\r\U0001F600b\r");
  EXPECT_THAT(ForEachPosition(text, [&](int at) { return text.UnitAt(at); }),
              ElementsAre(0, 1, 1, 2, 4, 5, 5, 6));
  EXPECT_THAT(ForEachPosition(text, [&](int at) { return text.UnitBehind(at); }),
              ElementsAre(0, 1, 2, 2, 4, 5, 6, 6));
}

TEST(RichEditText, DrawsPositionsOutsideTheTextBackIntoIt) {
  const RichEditText text(L"a\rb");
  EXPECT_EQ(text.UnitAt(-1), 0u);
  EXPECT_EQ(text.UnitAt(99), 3u);
  EXPECT_EQ(text.UnitBehind(99), 3u);
  EXPECT_EQ(text.LineAt(-1), 0);
  EXPECT_EQ(text.LineAt(99), 1);
}

TEST(RichEditText, KnowsItsLines) {
  const RichEditText text(L"ab\r\r\U0001F600c");
  EXPECT_EQ(text.LineCount(), 3);
  EXPECT_THAT(ForEachPosition(text, [&](int at) { return text.LineAt(at); }),
              ElementsAre(0, 0, 0, 0, 1, 1, 2, 2, 2));
  EXPECT_EQ(text.LineStart(2), 6);
  EXPECT_EQ(text.LineLength(2), 2);
  EXPECT_TRUE(text.Line(0) == L"ab");
  EXPECT_TRUE(text.Line(1).empty());
}

TEST(RichEditText, HasAnEmptyLineBehindItsLastLineEnd) {
  EXPECT_EQ(RichEditText().LineCount(), 1);
  const RichEditText text(L"a\r");
  EXPECT_EQ(text.LineCount(), 2);
  EXPECT_EQ(text.LineLength(1), 0);
  EXPECT_EQ(text.LineStart(1), 3);
}

TEST(ControlUnits, MakesEveryLineEndOneCr) {
  EXPECT_TRUE(ControlUnits("a\r\nb\rc\nd\r\r\n\n") == L"a\rb\rc\rd\r\r\r");
  EXPECT_TRUE(ControlUnits("") == L"");
}

TEST(TextOfUnits, GivesEveryLineEndItsTwoCharacters) {
  EXPECT_EQ(TextOfUnits(L"ä\r\r\U0001F600"), "ä\r\n\r\n😀");
}

/// The same text as plain data, which answers the same questions.
void ExpectAlike(const RichEditText& text, const RichText& model) {
  ASSERT_EQ(TextOfUnits(text.Units()), model.Text());
  ASSERT_EQ(text.Size(), model.Size());
  ASSERT_EQ(text.LineCount(), model.LineCount());
  for (int position = text.Size(); position >= 0; --position) {
    ASSERT_EQ(text.LineAt(position), model.LineAt(position)) << position;
    ASSERT_EQ(text.LineStart(text.LineAt(position)), model.LineStart(model.LineAt(position)));
    ASSERT_EQ(text.LineLength(text.LineAt(position)), model.LineLength(model.LineAt(position)));
  }
}

TEST(RichEditText, AnswersLikePlainDataAfterAnyReplacement) {
  constexpr std::string_view kPieces[] = {"a",    "Dim x", "\r\n", "\n",
                                          "日本", "😀",     "",     "é\r\n\r\nb"};
  std::mt19937 random(1);
  const auto below = [&](int limit) {
    return static_cast<int>(random() % static_cast<unsigned>(limit));
  };
  RichEditText text;
  RichText model;
  for (int i = 0; i < 300; ++i) {
    const TextRange range = {below(model.Size() + 1), below(6)};
    const std::string_view piece = kPieces[static_cast<std::size_t>(below(std::size(kPieces)))];
    const std::size_t start = text.UnitAt(range.start);
    const std::size_t end = range.length == 0 ? start : text.UnitBehind(range.start + range.length);
    text.Replace({start, end}, ControlUnits(piece));
    model.Replace(range, piece);
    ASSERT_NO_FATAL_FAILURE(ExpectAlike(text, model)) << i;
  }
}

}  // namespace rich_edit_text_test
}  // namespace brimwork::windows

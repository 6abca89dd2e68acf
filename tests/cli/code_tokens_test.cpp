#include "cli/code_tokens.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brimwork {
namespace code_tokens_test {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::string> Texts(std::string_view line, Continues above = Continues::kNothing) {
  std::vector<std::string> texts;
  for (const CodeToken& token : TokensOf(line, above)) texts.emplace_back(token.text);
  return texts;
}

TokenKind LastKind(std::string_view line, Continues above = Continues::kNothing) {
  return TokensOf(line, above).back().kind;
}

Continues Below(std::string_view line, Continues above = Continues::kNothing) {
  CodeTokenizer tokenizer(line, above);
  while (tokenizer.Next()) {
  }
  return tokenizer.Below();
}

bool Same(std::string_view a, std::string_view b, Continues above = Continues::kNothing) {
  return SameTokens(a, b, above);
}

TEST(CodeTokens, ABlankLineHasNone) { EXPECT_THAT(Texts(" \t "), IsEmpty()); }

TEST(CodeTokens, NamesNumbersAndOperatorsStandApart) {
  EXPECT_THAT(Texts("\tx=a1 + 2.5*( y<=3 )"),
              ElementsAre("x", "=", "a1", "+", "2.5", "*", "(", "y", "<=", "3", ")"));
}

TEST(CodeTokens, ANameKeepsItsTypeCharacterAndItsBrackets) {
  EXPECT_THAT(Texts("a$ = [my field] & b%"), ElementsAre("a$", "=", "[my field]", "&", "b%"));
}

TEST(CodeTokens, AnExclamationMarkPartsTwoNamesOrTypesOne) {
  EXPECT_THAT(Texts("rs!Name + rs![a b] + x! + 1"),
              ElementsAre("rs", "!", "Name", "+", "rs", "!", "[a b]", "+", "x!", "+", "1"));
}

TEST(CodeTokens, LettersBeyondAsciiBelongToNames) {
  EXPECT_THAT(Texts("Größe = 1"), ElementsAre("Größe", "=", "1"));
}

TEST(CodeTokens, NumbersTakeExponentsRadixesAndTypeCharacters) {
  EXPECT_THAT(Texts("1.5E-3 &HFF& &o17 .5 2D10 7# 8e"),
              ElementsAre("1.5E-3", "&HFF&", "&o17", ".5", "2D10", "7#", "8", "e"));
}

TEST(CodeTokens, AStringKeepsItsBlanksAndItsDoubledQuotes) {
  EXPECT_THAT(Texts("s = \"a  \"\"b\"\" ' c\" & t"),
              ElementsAre("s", "=", "\"a  \"\"b\"\" ' c\"", "&", "t"));
}

TEST(CodeTokens, AStringThatIsNotClosedGoesToTheLinesEnd) {
  EXPECT_THAT(Texts("s = \"a ' b  "), ElementsAre("s", "=", "\"a ' b"));
}

TEST(CodeTokens, ADateIsOneToken) {
  EXPECT_THAT(Texts("d = #1/2/2026 10:20:30 AM#"), ElementsAre("d", "=", "#1/2/2026 10:20:30 AM#"));
  EXPECT_EQ(LastKind("d = # Jan 1, 2026 #"), TokenKind::kDate);
}

TEST(CodeTokens, FileNumbersAreNoDates) {
  EXPECT_THAT(Texts("Close #1, #2"), ElementsAre("Close", "#", "1", ",", "#", "2"));
}

TEST(CodeTokens, ACommentGoesToTheLastCharacterThatIsNoBlank) {
  EXPECT_THAT(Texts("x = 1  ' a  b \t"), ElementsAre("x", "=", "1", "' a  b"));
}

TEST(CodeTokens, RemIsACommentWhereAStatementStarts) {
  EXPECT_THAT(Texts("Rem a  b"), ElementsAre("Rem a  b"));
  EXPECT_THAT(Texts("x = 1: rem a  b"), ElementsAre("x", "=", "1", ":", "rem a  b"));
  EXPECT_THAT(Texts("10 Rem a  b"), ElementsAre("10", "Rem a  b"));
  EXPECT_THAT(Texts("If x Then Rem a  b"), ElementsAre("If", "x", "Then", "Rem a  b"));
}

TEST(CodeTokens, RemElsewhereIsAName) {
  EXPECT_THAT(Texts("x = Rem + Remark"), ElementsAre("x", "=", "Rem", "+", "Remark"));
  EXPECT_THAT(Texts("Rem + 1", Continues::kStatement), ElementsAre("Rem", "+", "1"));
}

TEST(CodeTokens, AnUnderscoreBehindABlankContinuesTheStatement) {
  EXPECT_EQ(Below("x = 1 + _"), Continues::kStatement);
  EXPECT_EQ(Below("x = 1 + _  "), Continues::kStatement);
  EXPECT_EQ(LastKind("x = 1 + _"), TokenKind::kContinuation);
  EXPECT_EQ(Below("x_"), Continues::kNothing);
  EXPECT_EQ(Below("s = \"a _"), Continues::kNothing);
}

TEST(CodeTokens, ACommentIsContinuedAsComment) {
  EXPECT_EQ(Below("x = 1 ' a _"), Continues::kComment);
  EXPECT_EQ(Below("more _", Continues::kComment), Continues::kComment);
  EXPECT_EQ(Below("more", Continues::kComment), Continues::kNothing);
}

TEST(CodeTokens, WhatContinuesACommentIsCommentAsItStands) {
  EXPECT_THAT(Texts("  x =  1 ", Continues::kComment), ElementsAre("x =  1"));
}

TEST(CodeTokens, BlanksBetweenTokensDoNotCount) {
  EXPECT_TRUE(Same("x=1", "  x =\t1 "));
  EXPECT_TRUE(Same("x = 1 _", "x = 1 _  "));
  EXPECT_TRUE(Same("x = 1'a", "x = 1   'a  "));
}

TEST(CodeTokens, BlanksInLiteralsAndCommentsCount) {
  EXPECT_FALSE(Same("s = \"a b\"", "s = \"a  b\""));
  EXPECT_FALSE(Same("x = 1 'a b", "x = 1 'a  b"));
  EXPECT_FALSE(Same("x =  1", "x = 1", Continues::kComment));
}

TEST(CodeTokens, ABlankThatJoinsOrPartsWordsCounts) {
  EXPECT_FALSE(Same("End Sub", "EndSub"));
  EXPECT_FALSE(Same("x = 1 2", "x = 12"));
  EXPECT_FALSE(Same("a & b", "a& b"));
}

TEST(CodeTokens, ABlankInFrontOfAMemberMarkCounts) {
  EXPECT_FALSE(Same("Show .Left", "Show.Left"));
  EXPECT_FALSE(Same("Show !Left", "Show!Left"));
}

TEST(CodeTokens, CaseCounts) { EXPECT_FALSE(Same("x = Y", "x = y")); }

TEST(CodeTokens, AMissingOrExtraTokenIsSeen) {
  EXPECT_FALSE(Same("x = 1", "x = 1 + 2"));
  EXPECT_FALSE(Same("x = 1 _", "x = 1"));
  EXPECT_FALSE(Same("", "x"));
}

TEST(CodeTokens, EveryCharacterIsInSomeToken) {
  const std::string line = "~x^2 \\ #a; \"q\" & [b] ?: _y \x80\xff (&HG &O) #";
  std::string joined;
  for (const std::string& text : Texts(line)) joined += text;
  std::string expected = line;
  std::erase(expected, ' ');
  EXPECT_EQ(joined, expected);
}

}  // namespace code_tokens_test
}  // namespace brimwork

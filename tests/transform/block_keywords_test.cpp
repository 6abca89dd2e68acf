#include "transform/block_keywords.h"

#include <gtest/gtest.h>

#include <string>

namespace brimwork {
namespace block_keywords_test {

TEST(BlockKeywords, ProcedureOpenersAreAllFormsOfADeclarationsStart) {
  const KeywordTokens& openers = GetBlockKeywords().procedureOpeners;
  for (const char* modifiers :
       {"", "Static ", "Private ", "Private Static ", "Public ", "Public Static "}) {
    for (const char* word : {"Sub", "Function", "Property"}) {
      const std::string opener = std::string(modifiers) + word;
      EXPECT_EQ(openers.CountAtStart(opener + " "), 1) << opener;
    }
  }
  EXPECT_EQ(openers.CountAtStart("Friend Sub A()"), 0);
  EXPECT_EQ(openers.CountAtStart("Static Private Sub A()"), 0);
}

TEST(BlockKeywords, ProcedureClosersAreTheThreeEndStatements) {
  const KeywordTokens& closers = GetBlockKeywords().procedureClosers;
  EXPECT_EQ(closers.CountAtStart("End Sub "), 1);
  EXPECT_EQ(closers.CountAtStart("End Function "), 1);
  EXPECT_EQ(closers.CountAtStart("End Property "), 1);
  EXPECT_EQ(closers.CountAtStart("End If "), 0);
}

TEST(BlockKeywords, BlockOpenersCountOnceEach) {
  const KeywordTokens& openers = GetBlockKeywords().blockOpeners;
  for (const char* opener :
       {"If", "ElseIf", "Else", "#If", "#ElseIf", "#Else", "Case", "Type", "Public Type",
        "Private Type", "Enum", "Public Enum", "Private Enum", "With", "For", "Do", "While"}) {
    EXPECT_EQ(openers.CountAtStart(std::string(opener) + " "), 1) << opener;
  }
  for (const char* other : {"End If", "Loop", "Next", "Wend", "Select", "GoSub", "Set"}) {
    EXPECT_EQ(openers.CountAtStart(std::string(other) + " "), 0) << other;
  }
}

TEST(BlockKeywords, BlockClosersCountOnceEach) {
  const KeywordTokens& closers = GetBlockKeywords().blockClosers;
  for (const char* closer : {"ElseIf", "Else", "End If", "#ElseIf", "#Else", "#End If", "Case",
                             "End Type", "End Enum", "End With", "Next", "Loop", "Wend"}) {
    EXPECT_EQ(closers.CountAtStart(std::string(closer) + " "), 1) << closer;
  }
  EXPECT_EQ(closers.CountAtStart("If "), 0);
  EXPECT_EQ(closers.CountAtStart("End Sub "), 0);
}

TEST(BlockKeywords, SelectCaseAndEndSelectCountTwice) {
  EXPECT_EQ(GetBlockKeywords().blockOpeners.CountAtStart("Select Case x "), 2);
  EXPECT_EQ(GetBlockKeywords().blockClosers.CountAtStart("End Select "), 2);
  EXPECT_EQ(GetBlockKeywords().blockClosers.CountBehindColons("x = 1: End Select "), 2);
}

TEST(BlockKeywords, ATokenMatchesInAnyCaseAndNeedsTheBlankBehindIt) {
  const KeywordTokens tokens("End If,Do");
  EXPECT_EQ(tokens.CountAtStart("eND iF "), 1);
  EXPECT_EQ(tokens.CountAtStart("do until x"), 1);
  EXPECT_EQ(tokens.CountAtStart("End If"), 0);
  EXPECT_EQ(tokens.CountAtStart("Done = 1 "), 0);
  EXPECT_EQ(tokens.CountAtStart(" Do "), 0);
  EXPECT_EQ(tokens.CountAtStart(""), 0);
  EXPECT_EQ(tokens.CountAtStart("ä"), 0);
}

TEST(BlockKeywords, BehindColonsATokenCountsOnceHoweverOftenItStandsThere) {
  const KeywordTokens tokens("Next,Loop");
  EXPECT_EQ(tokens.CountBehindColons("x = 1: next : Next "), 1);
  EXPECT_EQ(tokens.CountBehindColons("x = 1: Next : LOOP "), 2);
  EXPECT_EQ(tokens.CountBehindColons("x = 1:Next "), 0);
  EXPECT_EQ(tokens.CountBehindColons("Next "), 0);
}

TEST(BlockKeywords, AnEntryListedTwiceCountsTwice) {
  EXPECT_EQ(KeywordTokens("Do,Do").CountAtStart("Do "), 2);
  EXPECT_EQ(KeywordTokens("Do,Do").CountBehindColons("x: Do "), 2);
}

}  // namespace block_keywords_test
}  // namespace brimwork

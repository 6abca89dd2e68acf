#include "spelling/words.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace brimwork {
namespace words_test {

using testing::ElementsAre;
using testing::IsEmpty;

/// The words of a text that are worth looking up.
std::vector<std::string> ProseOf(std::string_view text) {
  std::vector<std::string> words;
  for (const TextWord& word : CutWords(text)) {
    if (word.isProse) words.emplace_back(text.substr(word.offset, word.size));
  }
  return words;
}

std::vector<std::string> PartsOfFirst(std::string_view text) {
  std::vector<std::string> parts;
  for (const TextWord& part : PartsOf(text, CutWords(text).at(0))) {
    parts.emplace_back(text.substr(part.offset, part.size));
  }
  return parts;
}

TEST(Words, AreCutAtBlanksAndPunctuation) {
  EXPECT_THAT(ProseOf("The file, (it) was: lost! Try \"again\"?"),
              ElementsAre("The", "file", "it", "was", "lost", "Try", "again"));
  EXPECT_THAT(ProseOf("one/two=three;four...five\tsix"),
              ElementsAre("one", "two", "three", "four", "five", "six"));
}

TEST(Words, AreNoneInATextWithoutLetters) {
  EXPECT_THAT(CutWords(""), IsEmpty());
  EXPECT_THAT(CutWords(" =-=-= ' & '' -- &&"), IsEmpty());
  EXPECT_THAT(ProseOf(" =-=-= ' & '' -- && _ 42 3.14"), IsEmpty());
}

TEST(Words, TellWhereTheyStandInBytes) {
  EXPECT_THAT(CutWords("für uns"),
              ElementsAre(TextWord{0, 4, true, false}, TextWord{5, 3, true, false}));
}

TEST(Words, AreLettersOfAnyScriptWithBlanksBetweenItsWords) {
  EXPECT_THAT(ProseOf("Größe, naïve; Ελλάδα «привет» 한국어"),
              ElementsAre("Größe", "naïve", "Ελλάδα", "привет", "한국어"));
}

TEST(Words, HaveNoCharactersOfScriptsWithoutBlanks) {
  EXPECT_THAT(CutWords("日本語のテキスト ภาษาไทย"), IsEmpty());
}

TEST(Words, EndAtDamagedTextAndAtCharactersThatAreNoLetters) {
  EXPECT_THAT(ProseOf("one\xFFtwo three—four\uE001five"),
              ElementsAre("one", "two", "three", "four", "five"));
}

TEST(Words, HoldApostrophesInside) {
  EXPECT_THAT(ProseOf("don't 'quoted' the users' isn’t"),
              ElementsAre("don't", "quoted", "the", "users", "isn’t"));
}

TEST(Words, HoldHyphensInside) {
  EXPECT_THAT(ProseOf("well-known -dash- pre- post"),
              ElementsAre("well-known", "dash", "pre", "post"));
  EXPECT_TRUE(CutWords("well-known").at(0).isCompound);
  EXPECT_FALSE(CutWords("known").at(0).isCompound);
}

TEST(Words, OfACompoundAreItsParts) {
  EXPECT_THAT(PartsOfFirst("up-to-date"), ElementsAre("up", "to", "date"));
  const std::string_view text = "so 32-bit";
  EXPECT_THAT(PartsOf(text, CutWords(text).at(1)),
              ElementsAre(TextWord{3, 2, false, false}, TextWord{6, 3, true, false}));
}

TEST(Words, HoldTheAccessKeysOfCaptions) {
  EXPECT_THAT(ProseOf("E&xit &File Save &As"), ElementsAre("E&xit", "&File", "Save", "&As"));
}

TEST(Words, EndAtADoubledAmpersand) {
  EXPECT_THAT(ProseOf("Save && Exit Cut&&Paste"), ElementsAre("Save", "Exit", "Cut", "Paste"));
}

TEST(Words, EndAtAnAmpersandWithoutALetterBehindIt) {
  EXPECT_THAT(ProseOf("this& that& 3"), ElementsAre("this", "that"));
}

TEST(Words, WithDigitsOrUnderscoresAreNoProse) {
  EXPECT_THAT(ProseOf("total_2 abc1 _start x64 end_"), IsEmpty());
}

TEST(Words, WithCapitalsInsideAreNoProse) {
  EXPECT_THAT(ProseOf("cmdSave MsgBox frmÄrger McDonald"), IsEmpty());
}

TEST(Words, InCapitalsOnlyAreNoProse) { EXPECT_THAT(ProseOf("SQL ÄÖÜ ПРИ A1 NaN"), IsEmpty()); }

TEST(Words, OfOneLetterAreNoProse) { EXPECT_THAT(ProseOf("I a ß &x"), IsEmpty()); }

TEST(Words, OfOneLetterRepeatedAreNoProse) {
  EXPECT_THAT(ProseOf("dd/mm/yyyy hh:nn xxx"), IsEmpty());
}

TEST(Words, ThatAreNoProseAreStillWords) {
  EXPECT_THAT(CutWords("cmdSave"), ElementsAre(TextWord{0, 7, false, false}));
}

TEST(Words, AreNoneInAddresses) {
  EXPECT_THAT(CutWords("http://example.com/a/b?c=d www.example.com www.localhost "
                       "ann@example.com mailto:ann ftp://host"),
              IsEmpty());
}

TEST(Words, AreNoneInPathsAndNamesOfFiles) {
  EXPECT_THAT(CutWords("C:\\teh\\wrod.txt \\\\server\\share readme.txt *.bas ../up ./here "
                       "/usr/share ~/mine 'C:\\teh.'"),
              IsEmpty());
}

TEST(Words, AreNoneInNamesOfMembers) {
  EXPECT_THAT(ProseOf("Form1.Caption rs.Fields .Text"), IsEmpty());
}

TEST(Words, AreNoneInFormatCodesAndNumbers) {
  EXPECT_THAT(ProseOf("%s %ld \\n %TEMP% &HFF &hff&"), IsEmpty());
  EXPECT_THAT(ProseOf("&nbsp; &eacute;"), IsEmpty());
}

TEST(Words, AreNoneInGuids) {
  EXPECT_THAT(CutWords("{abcdefab-cdef-abcd-efab-cdefabcdefab}"), IsEmpty());
}

TEST(Words, StandBehindWhatIsNone) {
  EXPECT_THAT(ProseOf("see readme.txt, then (C:\\x) and www.example.com. Done."),
              ElementsAre("see", "then", "and", "Done"));
}

TEST(Words, EndSentencesAlsoBehindTypographicQuotes) {
  EXPECT_THAT(ProseOf("the “end.” now"), ElementsAre("the", "end", "now"));
}

}  // namespace words_test
}  // namespace brimwork

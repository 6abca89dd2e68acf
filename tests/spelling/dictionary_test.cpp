#include "spelling/dictionary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "support/small_dictionary.h"

namespace brimwork {
namespace dictionary_test {

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;

std::string ErrorOf(const DictionaryFiles& files) {
  try {
    const Dictionary dictionary(files);
    return "no error";
  } catch (const DictionaryError& error) {
    return error.what();
  }
}

TEST(Dictionary, KnowsItsWords) {
  const TemporaryFolder folder;
  Dictionary dictionary(WriteDictionary(folder.Path(), "small", {"receive", "Monday"}));
  EXPECT_TRUE(dictionary.Knows("receive"));
  EXPECT_TRUE(dictionary.Knows("Receive"));
  EXPECT_TRUE(dictionary.Knows("Monday"));
  EXPECT_FALSE(dictionary.Knows("monday"));
  EXPECT_FALSE(dictionary.Knows("recieve"));
}

TEST(Dictionary, SuggestsWhatWasMeant) {
  const TemporaryFolder folder;
  Dictionary dictionary(WriteDictionary(folder.Path(), "small", {"receive", "monday"}));
  EXPECT_THAT(dictionary.Suggestions("recieve"), Contains("receive"));
  EXPECT_THAT(dictionary.Suggestions("qqqqqqqq"), IsEmpty());
}

TEST(Dictionary, SpeaksUtf8WhateverItsOwnEncoding) {
  const TemporaryFolder folder;
  Dictionary dictionary(WriteDictionary(folder.Path(), "small",
                                        {"Gr\xF6\xDF"
                                         "e"},
                                        "ISO8859-1"));
  EXPECT_TRUE(dictionary.Knows("Größe"));
  EXPECT_FALSE(dictionary.Knows("Grösse"));
  EXPECT_THAT(dictionary.Suggestions("Grööße"), Contains("Größe"));
}

TEST(Dictionary, KnowsNoWordThatItsEncodingHasNot) {
  const TemporaryFolder folder;
  Dictionary dictionary(WriteDictionary(folder.Path(), "small", {"one"}, "ISO8859-1"));
  EXPECT_FALSE(dictionary.Knows("привет"));
  EXPECT_THAT(dictionary.Suggestions("привет"), IsEmpty());
}

TEST(Dictionary, UnderstandsTheNamesThatDictionariesHaveForEncodings) {
  const TemporaryFolder folder;
  Dictionary dictionary(
      WriteDictionary(folder.Path(), "small", {"\xEF\xF0\xE8\xE2\xE5\xF2"}, "microsoft-cp1251"));
  EXPECT_TRUE(dictionary.Knows("привет"));
}

TEST(Dictionary, InAnUnknownEncodingIsRefused) {
  const TemporaryFolder folder;
  const DictionaryFiles files = WriteDictionary(folder.Path(), "small", {"one"}, "ISCII-NOWHERE");
  EXPECT_THAT(ErrorOf(files), HasSubstr("ISCII-NOWHERE"));
}

TEST(Dictionary, ThatCannotBeReadIsRefused) {
  const TemporaryFolder folder;
  const DictionaryFiles files = WriteDictionary(folder.Path(), "small", {"one"});
  WriteBytes(files.words, "");
  EXPECT_THAT(ErrorOf(files), HasSubstr(files.words.string()));
}

std::optional<DictionaryFiles> SystemDictionary() {
  try {
    return FindDictionary(kFallbackDictionary);
  } catch (const DictionaryError&) {
    return std::nullopt;
  }
}

TEST(Dictionary, OfTheSystemKnowsAndSuggestsEnglishWords) {
  const auto files = SystemDictionary();
  if (!files) GTEST_SKIP() << "the spelling dictionary en_US is not installed";
  Dictionary dictionary(*files);
  EXPECT_TRUE(dictionary.Knows("house"));
  EXPECT_TRUE(dictionary.Knows("don't"));
  EXPECT_FALSE(dictionary.Knows("recieve"));
  EXPECT_THAT(dictionary.Suggestions("recieve"), Contains("receive"));
}

}  // namespace dictionary_test
}  // namespace brimwork

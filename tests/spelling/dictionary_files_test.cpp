#include "spelling/dictionary_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/scoped_variable.h"
#include "support/small_dictionary.h"

namespace brimwork {
namespace dictionary_files_test {

using testing::AllOf;
using testing::HasSubstr;

struct DictionaryFilesTest : testing::Test {
  static std::string ErrorFor(const std::string& name) {
    try {
      FindDictionary(name);
      return "no error";
    } catch (const DictionaryError& error) {
      return error.what();
    }
  }

  TemporaryFolder folder;
  ScopedVariable dicPath{"DICPATH",
                         (folder / "first").string() + ":" + (folder / "second").string()};
};

struct Locale {
  ScopedVariable all;
  ScopedVariable messages;
  ScopedVariable language;

  explicit Locale(const std::string& name)
      : all("LC_ALL", std::nullopt),
        messages("LC_MESSAGES", std::nullopt),
        language("LANG", name) {}
};

TEST_F(DictionaryFilesTest, AreFoundByNameInTheFoldersOfDicpath) {
  WriteDictionary(folder / "second", "xx_YY", {"one"});
  const DictionaryFiles files = FindDictionary("xx_YY");
  EXPECT_EQ(files.name, "xx_YY");
  EXPECT_EQ(files.affixes, folder / "second" / "xx_YY.aff");
  EXPECT_EQ(files.words, folder / "second" / "xx_YY.dic");
}

TEST_F(DictionaryFilesTest, AreThoseOfTheFirstFolder) {
  WriteDictionary(folder / "second", "xx_YY", {"one"});
  WriteDictionary(folder / "first", "xx_YY", {"one"});
  EXPECT_EQ(FindDictionary("xx_YY").words, folder / "first" / "xx_YY.dic");
}

TEST_F(DictionaryFilesTest, AreFoundByTheirPath) {
  const DictionaryFiles written = WriteDictionary(folder / "third", "mine", {"one"});
  for (const std::string ending : {"", ".dic", ".aff"}) {
    EXPECT_EQ(FindDictionary((folder / "third" / "mine").string() + ending).words, written.words);
  }
}

TEST_F(DictionaryFilesTest, BothMustBeThere) {
  const DictionaryFiles files = WriteDictionary(folder / "first", "xx_YY", {"one"});
  std::filesystem::remove(files.affixes);
  EXPECT_THAT(ErrorFor("xx_YY"), HasSubstr("no spelling dictionary \"xx_YY\""));
  EXPECT_THAT(ErrorFor(files.words.string()), HasSubstr(files.affixes.string()));
}

TEST_F(DictionaryFilesTest, ThatAreMissingAreToldWithTheFoldersAndWhatIsThere) {
  WriteDictionary(folder / "first", "xx_YY", {"one"});
  EXPECT_THAT(ErrorFor("zz_ZZ"),
              AllOf(HasSubstr((folder / "first").string()), HasSubstr("/usr/share/hunspell"),
                    HasSubstr("--dictionary"), HasSubstr("xx_YY")));
}

TEST_F(DictionaryFilesTest, AreThoseOfTheLocale) {
  const Locale locale("xx_YY.UTF-8@variant");
  WriteDictionary(folder / "first", "xx_YY", {"one"});
  WriteDictionary(folder / "first", "en_US", {"one"});
  EXPECT_EQ(LocaleDictionaryName(), "xx_YY");
  EXPECT_EQ(FindLocaleDictionary().name, "xx_YY");
}

TEST_F(DictionaryFilesTest, AreEnglishForALocaleWithoutADictionary) {
  const Locale locale("xx_YY.UTF-8");
  WriteDictionary(folder / "first", "en_US", {"one"});
  EXPECT_EQ(FindLocaleDictionary().words, folder / "first" / "en_US.dic");
}

TEST_F(DictionaryFilesTest, AreEnglishForALocaleWithoutALanguage) {
  for (const char* name : {"C", "POSIX", "C.UTF-8", ""}) {
    const Locale locale(name);
    EXPECT_EQ(LocaleDictionaryName(), "en_US") << name;
  }
}

TEST(LocaleDictionaryName, IsThatOfTheVariableThatCountsMost) {
  const ScopedVariable language("LANG", "aa_AA");
  const ScopedVariable messages("LC_MESSAGES", "bb_BB.UTF-8");
  {
    const ScopedVariable all("LC_ALL", "");
    EXPECT_EQ(LocaleDictionaryName(), "bb_BB");
  }
  const ScopedVariable all("LC_ALL", "cc_CC");
  EXPECT_EQ(LocaleDictionaryName(), "cc_CC");
}

}  // namespace dictionary_files_test
}  // namespace brimwork

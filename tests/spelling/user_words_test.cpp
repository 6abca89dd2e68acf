#include "spelling/user_words.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <string>
#include <vector>

#include "support/scoped_variable.h"
#include "support/temporary_folder.h"

namespace brimwork {
namespace user_words_test {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct UserWordsTest : testing::Test {
  static std::string Error(const std::function<void()>& step) {
    try {
      step();
      return "no error";
    } catch (const UserWordsError& error) {
      return error.what();
    }
  }

  TemporaryFolder folder;
  std::filesystem::path file = folder / "words.txt";
};

TEST_F(UserWordsTest, AreNoneWithoutAFile) { EXPECT_THAT(ReadUserWords(file), IsEmpty()); }

TEST_F(UserWordsTest, StandOneALine) {
  WriteBytes(file,
             "\xEF\xBB\xBF"
             "one\r\n\n  two \nGröße");
  EXPECT_THAT(ReadUserWords(file), ElementsAre("one", "two", "Größe"));
}

TEST_F(UserWordsTest, AreAddedBehindTheOthers) {
  WriteBytes(file, "one\ntwo");
  AddUserWord(file, "three");
  EXPECT_EQ(ReadBytes(file), "one\ntwo\nthree\n");
}

TEST_F(UserWordsTest, AreAddedOnce) {
  AddUserWord(file, "one");
  AddUserWord(file, "one");
  EXPECT_EQ(ReadBytes(file), "one\n");
}

TEST_F(UserWordsTest, MakeTheirFileAndItsFolder) {
  AddUserWord(folder / "new" / "words.txt", "one");
  EXPECT_EQ(ReadBytes(folder / "new" / "words.txt"), "one\n");
}

TEST_F(UserWordsTest, AreKeptBehindALink) {
  WriteBytes(file, "one\n");
  std::filesystem::create_symlink(file, folder / "link.txt");
  AddUserWord(folder / "link.txt", "two");
  EXPECT_TRUE(std::filesystem::is_symlink(folder / "link.txt"));
  EXPECT_EQ(ReadBytes(file), "one\ntwo\n");
}

TEST_F(UserWordsTest, OfProcessesSideBySideAreAllKept) {
  constexpr int kProcesses = 4;
  constexpr int kWords = 20;
  std::vector<pid_t> children;
  for (int process = 0; process < kProcesses; ++process) {
    children.push_back(fork());
    if (children.back() != 0) continue;
    for (int word = 0; word < kWords; ++word) {
      AddUserWord(file, std::to_string(process) + "-" + std::to_string(word));
    }
    _exit(0);
  }
  for (const pid_t child : children) {
    int status = -1;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
  }
  EXPECT_EQ(ReadUserWords(file).size(), static_cast<std::size_t>(kProcesses * kWords));
}

TEST_F(UserWordsTest, ThatCannotBeReadOrWrittenAreAnErrorThatNamesTheFile) {
  std::filesystem::create_directory(file);
  EXPECT_THAT(Error([&] { ReadUserWords(file); }), HasSubstr(file.string()));
  EXPECT_THAT(Error([&] { AddUserWord(file, "one"); }), HasSubstr(file.string()));
  WriteBytes(folder / "plain", "");
  EXPECT_THAT(Error([&] { AddUserWord(folder / "plain" / "words.txt", "one"); }),
              HasSubstr((folder / "plain" / "words.txt").string()));
}

TEST_F(UserWordsTest, HaveNoPlaceWhereTheUserHasNoFolder) {
  EXPECT_THAT(ReadUserWords({}), IsEmpty());
  EXPECT_THAT(Error([] { AddUserWord({}, "one"); }), HasSubstr("HOME"));
}

TEST(DefaultUserWordsPath, IsBesideTheSettings) {
  const ScopedVariable settings("BRIMWORK_SETTINGS", "/some/folder/settings.json");
  EXPECT_EQ(DefaultUserWordsPath(), "/some/folder/words.txt");
}

TEST(DefaultUserWordsPath, IsInTheConfigFolder) {
  const ScopedVariable settings("BRIMWORK_SETTINGS", std::nullopt);
  const ScopedVariable config("XDG_CONFIG_HOME", "/config");
  EXPECT_EQ(DefaultUserWordsPath(), "/config/brimwork/words.txt");
  const ScopedVariable noConfig("XDG_CONFIG_HOME", std::nullopt);
  const ScopedVariable noHome("HOME", std::nullopt);
  EXPECT_EQ(DefaultUserWordsPath(), "");
}

}  // namespace user_words_test
}  // namespace brimwork

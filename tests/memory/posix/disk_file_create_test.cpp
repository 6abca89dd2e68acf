// A file that is made: whole or not at all, and never over another one.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>

#include "memory/disk_file.h"
#include "support/disk_file_fixture.h"
#include "support/posix/refused_calls.h"

namespace brimwork {
namespace disk_file_create_test {

namespace fs = std::filesystem;
using testing::ElementsAre;

constexpr const char* kTaken = ": there is a file of that name by now; it was left as it is";

class NewFile : public DiskFileFixture {};

TEST_F(NewFile, HasThePermissionsThatTheUserGivesNewFiles) {
  const mode_t before = umask(0027);
  CreateWholeFile(In("a.txt"), Writing("a"));
  umask(before);
  struct stat status;
  ASSERT_EQ(stat(In("a.txt").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, 0640u);
}

TEST_F(NewFile, NeverTakesThePlaceOfALinkToNothing) {
  fs::create_symlink("gone.txt", folder_ / "a.txt");
  EXPECT_EQ(ErrorOf([&] { CreateWholeFile(In("a.txt"), Writing("new")); }), In("a.txt") + kTaken);
  EXPECT_THAT(Names(), ElementsAre("a.txt"));
}

TEST_F(NewFile, IsNotThereBeforeItIsWhole) {
  CreateWholeFile(In("a.txt"), [&](const ByteSink& sink) {
    sink("half");
    EXPECT_THAT(Names(), ElementsAre());
  });
}

TEST_F(NewFile, IsNotThereWhenTheProcessIsKilledWhileItWrites) {
  const pid_t child = fork();
  if (child == 0) {
    CreateWholeFile(In("a.txt"), [](const ByteSink& sink) {
      sink("half");
      raise(SIGKILL);
    });
    _exit(0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_TRUE(WIFSIGNALED(status));
  EXPECT_THAT(Names(), ElementsAre());
}

TEST_F(NewFile, NeedsAFolder) {
  EXPECT_EQ(
      ErrorOf([&] { CreateWholeFile(In("none/a.txt"), Writing("a")); }),
      In("none") + ": cannot make a temporary file in this folder: No such file or directory");
}

/// On systems that know no nameless files, with renameat2 and without it.
class NewFileOnAnOlderSystem : public NewFile,
                               public testing::WithParamInterface<std::vector<RefusedCall>> {
 protected:
  /// What comes of making a.txt there; isTaken: another one comes in between.
  std::string OutcomeOfMaking(bool isTaken) {
    const int result = InProcessWithout(GetParam(), [&] {
      const mode_t before = umask(0022);
      const std::string error = ErrorOf([&] {
        CreateWholeFile(In("a.txt"), [&](const ByteSink& sink) {
          sink("new");
          if (isTaken) WriteBytes(In("a.txt"), "theirs");
        });
      });
      umask(before);
      if (error == "no error") return 0;
      return error == In("a.txt") + kTaken ? 1 : 2;
    });
    const char* outcomes[] = {"no error", "taken", "another error"};
    return result == kNothingRefused ? "nothing refused" : outcomes[result < 0 ? 2 : result];
  }
};

TEST_P(NewFileOnAnOlderSystem, IsMadeAllTheSame) {
  const std::string outcome = OutcomeOfMaking(false);
  if (outcome == "nothing refused") GTEST_SKIP() << "this kernel filters no system calls";
  EXPECT_EQ(outcome, "no error");
  EXPECT_EQ(ReadBytes(In("a.txt")), "new");
  struct stat status;
  ASSERT_EQ(stat(In("a.txt").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, 0644u);
  EXPECT_THAT(Names(), ElementsAre("a.txt"));
}

TEST_P(NewFileOnAnOlderSystem, NeverTakesThePlaceOfAnother) {
  const std::string outcome = OutcomeOfMaking(true);
  if (outcome == "nothing refused") GTEST_SKIP() << "this kernel filters no system calls";
  EXPECT_EQ(outcome, "taken");
  EXPECT_EQ(ReadBytes(In("a.txt")), "theirs");
  EXPECT_THAT(Names(), ElementsAre("a.txt"));
}

INSTANTIATE_TEST_SUITE_P(OfTwoKinds, NewFileOnAnOlderSystem,
                         testing::Values(std::vector<RefusedCall>{RefusedCall::kOpenNameless},
                                         std::vector<RefusedCall>{RefusedCall::kOpenNameless,
                                                                  RefusedCall::kRenameToFree}));

class LookingAtAFile : public NewFile {};

TEST_F(LookingAtAFile, FollowsLinks) {
  WriteBytes(In("a.txt"), "old");
  fs::create_symlink("a.txt", folder_ / "b.txt");
  EXPECT_EQ(LookAtFile(In("b.txt")), LookAtFile(In("a.txt")));
}

TEST_F(LookingAtAFile, RefusesWhatCannotBeReplaced) {
  fs::create_symlink("gone.txt", folder_ / "link.txt");
  ASSERT_EQ(mkfifo(In("pipe").c_str(), 0600), 0);
  EXPECT_EQ(ErrorOf([&] { LookAtFile(folder_.Path().string()); }),
            folder_.Path().string() + ": this is a folder; name a file");
  EXPECT_EQ(ErrorOf([&] { LookAtFile(In("pipe")); }),
            In("pipe") + ": this is no regular file; only regular files can be replaced");
  EXPECT_EQ(ErrorOf([&] { LookAtFile(In("link.txt")); }),
            In("link.txt") + ": stat: No such file or directory");
  EXPECT_EQ(ErrorOf([&] { LookAtFile(In("pipe/a.txt")); }),
            In("pipe/a.txt") + ": lstat: Not a directory");
}

}  // namespace disk_file_create_test
}  // namespace brimwork

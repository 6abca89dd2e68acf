// A file that is made: whole or not at all, and never over another one.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <functional>

#include "memory/disk_file.h"
#include "memory/source_error.h"
#include "support/posix/refused_calls.h"
#include "support/temporary_folder.h"

namespace brimwork {
namespace disk_file_create_test {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

std::string ErrorOf(const std::function<void()>& call) {
  try {
    call();
  } catch (const SourceError& error) {
    return error.what();
  }
  return "no error";
}

FileComposer Writing(std::string bytes) {
  return [bytes = std::move(bytes)](const ByteSink& sink) { sink(bytes); };
}

constexpr const char* kTaken = ": there is a file of that name by now; it was left as it is";

class NewFile : public testing::Test {
 protected:
  std::string In(const std::string& name) { return (folder_ / name).string(); }

  std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder_.Path()))
      names.push_back(entry.path().filename().string());
    return names;
  }

  TemporaryFolder folder_;
};

TEST_F(NewFile, HoldsTheComposedBytes) {
  CreateWholeFile(In("a.txt"), [](const ByteSink& sink) {
    sink("new ");
    sink("bytes");
  });
  EXPECT_EQ(ReadBytes(In("a.txt")), "new bytes");
  EXPECT_THAT(Names(), ElementsAre("a.txt"));
}

TEST_F(NewFile, HasThePermissionsThatTheUserGivesNewFiles) {
  const mode_t before = umask(0027);
  CreateWholeFile(In("a.txt"), Writing("a"));
  umask(before);
  struct stat status;
  ASSERT_EQ(stat(In("a.txt").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, 0640u);
}

TEST_F(NewFile, MayStandInTheWorkingFolder) {
  const fs::path before = fs::current_path();
  fs::current_path(folder_.Path());
  CreateWholeFile("a.txt", Writing("a"));
  fs::current_path(before);
  EXPECT_EQ(ReadBytes(In("a.txt")), "a");
}

TEST_F(NewFile, NeverTakesThePlaceOfAnother) {
  WriteBytes(In("a.txt"), "old");
  EXPECT_EQ(ErrorOf([&] { CreateWholeFile(In("a.txt"), Writing("new")); }), In("a.txt") + kTaken);
  EXPECT_EQ(ReadBytes(In("a.txt")), "old");
  EXPECT_THAT(Names(), ElementsAre("a.txt"));
}

TEST_F(NewFile, NeverTakesThePlaceOfALinkToNothing) {
  fs::create_symlink("gone.txt", folder_ / "a.txt");
  EXPECT_EQ(ErrorOf([&] { CreateWholeFile(In("a.txt"), Writing("new")); }), In("a.txt") + kTaken);
  EXPECT_THAT(Names(), ElementsAre("a.txt"));
}

TEST_F(NewFile, NeverTakesThePlaceOfOneThatCameInBetween) {
  const std::string error = ErrorOf([&] {
    CreateWholeFile(In("a.txt"), [&](const ByteSink& sink) {
      sink("ours");
      WriteBytes(In("a.txt"), "theirs");
    });
  });
  EXPECT_EQ(error, In("a.txt") + kTaken);
  EXPECT_EQ(ReadBytes(In("a.txt")), "theirs");
  EXPECT_THAT(Names(), ElementsAre("a.txt"));
}

TEST_F(NewFile, IsNotThereWhenItsBytesCannotBeComposed) {
  const std::string error = ErrorOf([&] {
    CreateWholeFile(In("a.txt"), [](const ByteSink& sink) {
      sink("half");
      throw SourceError("m.bas", 3, 4, "no such character");
    });
  });
  EXPECT_EQ(error, "m.bas:3:4: no such character");
  EXPECT_THAT(Names(), ElementsAre());
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

TEST_F(LookingAtAFile, GivesWhatReplacesIt) {
  WriteBytes(In("a.txt"), "old");
  const auto snapshot = LookAtFile(In("a.txt"));
  ASSERT_TRUE(snapshot.has_value());
  EXPECT_EQ(*snapshot, ReadWholeFile(In("a.txt")).snapshot);
  WriteWholeFile(In("a.txt"), *snapshot, Writing("new"));
  EXPECT_EQ(ReadBytes(In("a.txt")), "new");
}

TEST_F(LookingAtAFile, FollowsLinks) {
  WriteBytes(In("a.txt"), "old");
  fs::create_symlink("a.txt", folder_ / "b.txt");
  EXPECT_EQ(LookAtFile(In("b.txt")), LookAtFile(In("a.txt")));
}

TEST_F(LookingAtAFile, GivesNothingWhereNothingIs) {
  EXPECT_EQ(LookAtFile(In("a.txt")), std::nullopt);
  EXPECT_EQ(LookAtFile(In("none/a.txt")), std::nullopt);
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

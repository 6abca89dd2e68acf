// Input that is no source file, cannot be read, or changes under way: a clear error or a defined
// result, and nothing is lost.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>

#include "end_to_end/sources.h"
#include "end_to_end/workplace.h"

namespace brimwork {
namespace bad_input_test {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

class BadInput : public testing::Test {
 protected:
  /// The one error line of a run that fails.
  std::string ErrorOf(const Words& words) const {
    const ProgramResult result = place.Run(words);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(LinesOf(result.error).size(), 1u) << result.error;
    return result.error;
  }

  Workplace place;
};

TEST_F(BadInput, AMissingFileIsNamed) {
  EXPECT_THAT(ErrorOf({"indent", "gone.bas"}), StartsWith("brimwork: gone.bas: "));
}

TEST_F(BadInput, ABinaryFileIsRefusedAndStays) {
  const std::string bytes("MZ\x90\0\x03\0\0\0\x04\n", 10);
  place.Write("a.bas", bytes);
  EXPECT_THAT(ErrorOf({"header", "--write", "a.bas"}),
              AllOf(StartsWith("brimwork: a.bas:1:"), HasSubstr("binary")));
  EXPECT_EQ(place.Read("a.bas"), bytes);
}

TEST_F(BadInput, AnEmptyFileStaysEmpty) {
  place.Write("a.bas", "");
  for (const char* command : {"indent", "number", "unnumber", "comment", "error-handling"}) {
    const ProgramResult result = place.Run({command, "a.bas"});
    EXPECT_EQ(result.exitCode, 0) << command << result.error;
    EXPECT_EQ(result.out, "") << command;
    EXPECT_EQ(place.Run({command, "--check", "a.bas"}).exitCode, 0) << command;
  }
}

TEST_F(BadInput, AnEmptyFileTakesAHeader) {
  place.Write("a.bas", "");
  EXPECT_EQ(place.Run({"header", "--set", "Header='H", "--write", "a.bas"}).exitCode, 0);
  EXPECT_THAT(LinesOf(place.Read("a.bas")), ElementsAre(StartsWith("'H")));
}

TEST_F(BadInput, APipeOrADeviceIsRefusedWithoutWaiting) {
  ASSERT_EQ(mkfifo((place / "pipe.bas").c_str(), 0600), 0);
  EXPECT_THAT(ErrorOf({"indent", "pipe.bas"}), HasSubstr("pipe.bas: "));
  EXPECT_THAT(ErrorOf({"indent", "/dev/zero"}), HasSubstr("/dev/zero: "));
}

TEST_F(BadInput, ALinkToNothingOrToItselfIsAnError) {
  fs::create_symlink("gone.bas", place / "dangling.bas");
  fs::create_symlink("loop.bas", place / "loop.bas");
  EXPECT_THAT(ErrorOf({"indent", "dangling.bas"}), HasSubstr("dangling.bas: "));
  EXPECT_THAT(ErrorOf({"indent", "loop.bas"}), HasSubstr("loop.bas: "));
}

TEST_F(BadInput, AFormThatIsCutOffIsAnErrorAtTheOpenBlock) {
  const std::string bytes = "VERSION 5.00\nBegin VB.Form F\n   Caption = \"x\"\n";
  place.Write("f.frm", bytes);
  EXPECT_THAT(ErrorOf({"header", "--write", "f.frm"}), HasSubstr("f.frm:2:"));
  EXPECT_EQ(place.Read("f.frm"), bytes);
}

TEST_F(BadInput, AnUnreadableFileIsNamedAndTheOthersAreDone) {
  place.Write("a.bas", kMessy);
  place.Write("b.bas", kMessy);
  fs::permissions(place / "a.bas", fs::perms::none);
  ASSERT_EQ(chmod(place.Folder().c_str(), 0777), 0);
  std::string asUser;
  if (geteuid() == 0) {
    asUser = "setpriv --reuid=65534 --regid=65534 --clear-groups ";
    if (place.Shell(asUser + "\"$brimwork\" --version").exitCode != 0) {
      GTEST_SKIP() << "root reads every file, and setpriv cannot run the command as nobody here";
    }
  }
  const ProgramResult result =
      place.Shell(asUser + "\"$brimwork\" indent --check --quiet a.bas b.bas");
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.out, "b.bas\n");
  EXPECT_THAT(result.error, StartsWith("brimwork: a.bas: "));
}

TEST_F(BadInput, ALineOf100MegabytesIsWorkedOnInBoundedTime) {
  constexpr std::size_t kSize = 100'000'000;
  place.Write("long.bas", "Sub A()\ns = \"" + std::string(kSize, 'x') + "\"\nEnd Sub\n");
  const auto start = std::chrono::steady_clock::now();
  const ProgramResult result = place.Run({"indent", "--write", "long.bas"});
  const auto took = std::chrono::steady_clock::now() - start;
  EXPECT_EQ(result.exitCode, 0) << result.error;
  EXPECT_LT(took, std::chrono::seconds(20));
  EXPECT_EQ(fs::file_size(place / "long.bas"), kSize + 27);
  EXPECT_EQ(place.Shell("head -c 20 long.bas").out, "Sub A()\n    s = \"xxx");
}

TEST_F(BadInput, AFileThatChangesUnderWayKeepsWhatTheOtherWrote) {
  // Another program appends as fast as it can, so that each run meets a change or comes in between.
  place.Write("a.bas", kMessy);
  ProgramCall call = place.CallOf({});
  call.words = {"/bin/sh", "-c",
                "while [ -e going ]; do echo \"' more\" >> a.bas; sleep 0.002; done"};
  place.Write("going", "");
  {
    RunningProgram other(call);
    for (int run = 0; run < 30; ++run) {
      const ProgramResult result = place.Run({"indent", "--write", "--quiet", "a.bas"});
      if (result.exitCode == 2) {
        EXPECT_THAT(result.error, AllOf(StartsWith("brimwork: a.bas: "), HasSubstr("changed")));
      } else {
        EXPECT_EQ(result.exitCode, 0) << result.error;
      }
    }
    place.Remove("going");
    other.Wait();
  }
  const std::string content = place.Read("a.bas");
  EXPECT_THAT(content, testing::AnyOf(StartsWith(kMessy), StartsWith(kIndented)));
  EXPECT_THAT(content, testing::EndsWith("' more\n"));
  EXPECT_THAT(place.Names(), ElementsAre("a.bas"));
}

class FullDisk : public BadInput {
 protected:
  /// Runs the command with files limited to 512-byte blocks, as a full disk limits them.
  ProgramResult RunWithin(int blocks, const std::string& words) const {
    return place.Shell("trap '' XFSZ; ulimit -f " + std::to_string(blocks) + "; \"$brimwork\" " +
                       words);
  }

  static std::string LongModule() {
    std::string module;
    for (int i = 0; i < 200; ++i) module += kMessy;
    return module;
  }
};

TEST_F(FullDisk, LeavesTheFileAndNoOtherBehind) {
  place.Write("a.bas", LongModule());
  const ProgramResult result = RunWithin(4, "indent --write a.bas");
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.error, StartsWith("brimwork: a.bas: "));
  EXPECT_EQ(LinesOf(result.error).size(), 1u) << result.error;
  EXPECT_EQ(place.Read("a.bas"), LongModule());
  EXPECT_THAT(place.Names(), ElementsAre("a.bas"));
}

TEST_F(FullDisk, LeavesAFileOfSeveralNamesAsItWas) {
  place.Write("a.bas", LongModule());
  fs::create_hard_link(place / "a.bas", place / "b.bas");
  EXPECT_EQ(RunWithin(4, "indent --write a.bas").exitCode, 2);
  EXPECT_EQ(place.Read("b.bas"), LongModule());
  EXPECT_THAT(place.Names(), ElementsAre("a.bas", "b.bas"));
}

TEST_F(FullDisk, LeavesTheSettingsAsTheyWere) {
  place.Run({"settings", "set", "Header", "'short"});
  const std::string before = place.Read("settings.json");
  const std::string longValue(3000, 'x');
  const ProgramResult result = RunWithin(1, "settings set Separator \"'" + longValue + "\"");
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.error, HasSubstr("settings.json"));
  EXPECT_EQ(place.Read("settings.json"), before);
}

TEST_F(FullDisk, UnderStandardOutputIsAnError) {
  place.Write("a.bas", kMessy);
  for (const char* words : {"indent a.bas", "indent --diff a.bas", "indent --check a.bas",
                            "settings list", "commands"}) {
    const ProgramResult result =
        place.Shell("\"$brimwork\" " + std::string(words) + " > /dev/full");
    EXPECT_EQ(result.exitCode, 2) << words;
    EXPECT_THAT(result.error, StartsWith("brimwork: ")) << words;
    EXPECT_EQ(LinesOf(result.error).size(), 1u) << words << ": " << result.error;
  }
}

}  // namespace bad_input_test
}  // namespace brimwork

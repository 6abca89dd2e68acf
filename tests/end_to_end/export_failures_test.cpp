// Exports that fail or are broken off: every target is as it was or whole, and nothing else lies
// about.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>

#include <chrono>
#include <filesystem>
#include <thread>

#include "end_to_end/workplace.h"

namespace brimwork {
namespace export_failures_test {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::StartsWith;

std::string LongModule() {
  std::string module;
  for (int i = 0; i < 2000; ++i) module += "Call Work(" + std::to_string(i) + ")\n";
  return module;
}

class ExportOnAFullDisk : public testing::Test {
 protected:
  ExportOnAFullDisk() { place.Write("a.bas", LongModule()); }

  /// Runs the command with files limited to 512-byte blocks, as a full disk limits them.
  ProgramResult RunWithin(int blocks, const std::string& words) const {
    return place.Shell("trap '' XFSZ; ulimit -f " + std::to_string(blocks) +
                       "; \"$brimwork\" export -q " + words);
  }

  Workplace place;
};

TEST_F(ExportOnAFullDisk, MakesNoHalfFile) {
  for (const char* format : {"text", "html", "rtf"}) {
    const ProgramResult result =
        RunWithin(4, "--format " + std::string(format) + " -o out.x a.bas");
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.error, "brimwork: out.x: write: File too large\n");
    EXPECT_THAT(place.Names(), ElementsAre("a.bas"));
  }
}

TEST_F(ExportOnAFullDisk, LeavesTheOldFile) {
  place.Write("out.txt", "old");
  const ProgramResult result = RunWithin(4, "--format text --force -o out.txt a.bas");
  EXPECT_EQ(result.error, "brimwork: out.txt: write: File too large\n");
  EXPECT_EQ(place.Read("out.txt"), "old");
  EXPECT_THAT(place.Names(), ElementsAre("a.bas", "out.txt"));
}

TEST_F(ExportOnAFullDisk, LeavesTheOldQuickExport) {
  place.Write("Exported Code.txt", "old");
  EXPECT_EQ(RunWithin(4, "--quick a.bas").exitCode, 2);
  EXPECT_EQ(place.Read("Exported Code.txt"), "old");
  EXPECT_THAT(place.Names(), ElementsAre("Exported Code.txt", "a.bas"));
}

TEST_F(ExportOnAFullDisk, WritesTheFilesOfAProjectThatHaveRoom) {
  place.Write("b.bas", "x = 1\n");
  place.Write("p.vbp", "Module=A; a.bas\nModule=B; b.bas\n");
  const ProgramResult result = RunWithin(4, "--format text -o out p.vbp");
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.error, "brimwork: out/a.txt: write: File too large\n");
  EXPECT_EQ(place.Read("out/b.txt"), "x = 1");
  EXPECT_THAT(place.Names(), ElementsAre("a.bas", "b.bas", "out", "out/b.txt", "p.vbp"));
}

TEST_F(ExportOnAFullDisk, IsToldWhenTheIndexPageHasNoRoom) {
  for (int i = 0; i < 40; ++i) {
    place.Write("src/module" + std::to_string(i) + ".bas", "x = 1\n");
  }
  const ProgramResult result = RunWithin(4, "--format html -o out src");
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.error, "brimwork: out/index.htm: write: File too large\n");
  EXPECT_FALSE(fs::exists(place / "out/index.htm"));
  EXPECT_TRUE(fs::exists(place / "out/module39.htm"));
}

TEST_F(ExportOnAFullDisk, UnderStandardOutputIsAnError) {
  for (const char* format : {"text", "html", "rtf"}) {
    const ProgramResult result = place.Shell("\"$brimwork\" export -q --format " +
                                             std::string(format) + " a.bas > /dev/full");
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.error, StartsWith("brimwork: standard output: write: "));
    EXPECT_EQ(LinesOf(result.error).size(), 1u) << result.error;
  }
}

TEST(ExportWhoseFolderTakesNoFiles, SaysSo) {
  Workplace place;
  place.Write("a.bas", "x = 1\n");
  fs::create_directory(place / "out");
  fs::permissions(place / "out", fs::perms::owner_read | fs::perms::owner_exec);
  fs::permissions(place.Folder(), fs::perms::all);
  std::string asUser;
  if (geteuid() == 0) {
    asUser = "setpriv --reuid=65534 --regid=65534 --clear-groups ";
    if (place.Shell(asUser + "\"$brimwork\" --version").exitCode != 0) {
      GTEST_SKIP() << "root writes everywhere, and setpriv cannot run the command as nobody here";
    }
    fs::permissions(place / "out", fs::perms::all & ~fs::perms::others_write);
  }
  const ProgramResult result =
      place.Shell(asUser + "\"$brimwork\" export --format text -o out a.bas");
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.error,
            "brimwork: out: cannot make a temporary file in this folder: Permission denied\n");
}

TEST(ExportThatIsBrokenOff, LeavesEveryFileWholeAndNothingElse) {
  constexpr int kFiles = 150;
  const std::string expected = WithCrLfEnds(LongModule()).substr(0, LongModule().size() + 2000 - 2);
  bool wasUnderWay = false;
  for (int milliseconds = 2; milliseconds < 400 && !wasUnderWay; milliseconds *= 2) {
    Workplace place;
    for (int i = 0; i < kFiles; ++i)
      place.Write("src/m" + std::to_string(i) + ".bas", LongModule());
    RunningProgram running(place.CallOf({"export", "--format", "text", "-q", "-o", "out", "src"}));
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
    running.Send(SIGINT);
    running.Wait();
    int written = 0;
    for (const std::string& name : place.Names()) {
      if (!name.starts_with("out/")) continue;
      ++written;
      EXPECT_TRUE(name.ends_with(".txt")) << name << " was left behind";
      EXPECT_EQ(place.Read(name), expected) << name;
    }
    wasUnderWay = written > 0 && written < kFiles;
  }
  if (!wasUnderWay) GTEST_SKIP() << "no run was broken off between its first and its last file";
}

}  // namespace export_failures_test
}  // namespace brimwork

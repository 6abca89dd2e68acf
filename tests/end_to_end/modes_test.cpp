// Where a result goes: standard output, the file, a list of names or a diff.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "end_to_end/sources.h"
#include "end_to_end/workplace.h"

namespace brimwork {
namespace modes_test {

using testing::AllOf;
using testing::HasSubstr;

TEST(Modes, WithoutOneTheResultGoesToStandardOutputAndTheFileStays) {
  Workplace place;
  place.Write("a.bas", kMessy);
  const ProgramResult result = place.Run({"indent", "a.bas"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.out, kIndented);
  EXPECT_EQ(result.error, "");
  EXPECT_EQ(place.Read("a.bas"), kMessy);
}

TEST(Modes, WithoutOneAnUnchangedFileIsPrintedAsItIs) {
  Workplace place;
  place.Write("a.bas", kIndented);
  EXPECT_EQ(place.Run({"indent", "a.bas"}).out, kIndented);
}

TEST(Modes, WriteChangesTheFileAndSaysHowMuch) {
  Workplace place;
  place.Write("a.bas", kMessy);
  const ProgramResult result = place.Run({"indent", "-w", "a.bas"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.error, "a.bas: 3 lines changed, 0 added, 0 removed\n");
  EXPECT_EQ(place.Read("a.bas"), kIndented);
}

TEST(Modes, WriteSpeaksOfOneLineAsOne) {
  Workplace place;
  place.Write("a.bas", "Sub A()\nx = 1\nEnd Sub\n");
  EXPECT_EQ(place.Run({"indent", "-w", "a.bas"}).error,
            "a.bas: 1 line changed, 0 added, 0 removed\n");
}

TEST(Modes, CheckListsTheFilesThatWouldChangeAndExitsWith1) {
  Workplace place;
  place.Write("a.bas", kMessy);
  place.Write("b.bas", kIndented);
  place.Write("c.bas", kMessy);
  const ProgramResult result = place.Run({"indent", "--check", "a.bas", "b.bas", "c.bas"});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.out, "a.bas\nc.bas\n");
  EXPECT_EQ(place.Read("a.bas"), kMessy);
}

TEST(Modes, CheckExitsWith0WhenNothingWouldChange) {
  Workplace place;
  place.Write("b.bas", kIndented);
  const ProgramResult result = place.Run({"indent", "--check", "b.bas"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.out, "");
}

TEST(Modes, DiffShowsTheChangesAsAUnifiedDiff) {
  Workplace place;
  place.Write("a.bas", kMessy);
  const ProgramResult result = place.Run({"indent", "--diff", "a.bas"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.out,
            "--- a.bas\n"
            "+++ a.bas\n"
            "@@ -1,5 +1,5 @@\n"
            " Sub Main()\n"
            "-If Ready Then\n"
            "-Work\n"
            "-End If\n"
            "+    If Ready Then\n"
            "+        Work\n"
            "+    End If\n"
            " End Sub\n");
  EXPECT_EQ(place.Read("a.bas"), kMessy);
}

TEST(Modes, DiffKeepsTheCarriageReturnsOfTheFileSoThatPatchTakesIt) {
  Workplace place;
  place.Write("a.bas", WithCrLfEnds(kMessy));
  const ProgramResult result = place.Run({"indent", "--diff", "a.bas"});
  EXPECT_THAT(result.out, AllOf(HasSubstr("-Work\r\n"), HasSubstr("+        Work\r\n")));
}

TEST(Modes, CheckAndDiffShowTheChangesAndExitWith1) {
  Workplace place;
  place.Write("a.bas", kMessy);
  const ProgramResult result = place.Run({"indent", "--check", "--diff", "a.bas"});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_THAT(result.out, HasSubstr("+        Work\n"));
}

TEST(Modes, WriteAndDiffWriteTheFileAndShowWhatChanged) {
  Workplace place;
  place.Write("a.bas", kMessy);
  const ProgramResult result = place.Run({"indent", "--write", "--diff", "a.bas"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_THAT(result.out, HasSubstr("+        Work\n"));
  EXPECT_EQ(place.Read("a.bas"), kIndented);
}

TEST(Modes, WriteAndCheckTogetherAreRefused) {
  Workplace place;
  place.Write("a.bas", kMessy);
  const ProgramResult result = place.Run({"indent", "--write", "--check", "a.bas"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.error, AllOf(HasSubstr("--write"), HasSubstr("--check")));
  EXPECT_EQ(place.Read("a.bas"), kMessy);
}

TEST(Modes, SeveralFilesWithoutOneAreAnErrorThatNamesTheModes) {
  Workplace place;
  place.Write("a.bas", kMessy);
  place.Write("b.bas", kMessy);
  place.Write("p.vbp", "Module=A; a.bas\n");
  for (const Words& files : {Words{"a.bas", "b.bas"}, Words{"p.vbp"}, Words{"."}}) {
    Words words{"indent"};
    words.insert(words.end(), files.begin(), files.end());
    const ProgramResult result = place.Run(words);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(LinesOf(result.error).size(), 1u) << result.error;
    EXPECT_THAT(result.error,
                AllOf(HasSubstr("--write"), HasSubstr("--check"), HasSubstr("--diff")));
  }
}

TEST(Modes, NoFileAtAllIsAnError) {
  const ProgramResult result = Workplace().Run({"indent"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.error, HasSubstr("no files given"));
}

TEST(StandardInput, IsReadForADash) {
  const ProgramResult result = Workplace().Run({"indent", "-"}, kMessy);
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.out, kIndented);
}

TEST(StandardInput, IsReadWholeFromAPipe) {
  Workplace place;
  std::string longModule;
  for (int i = 0; i < 20000; ++i) longModule += kMessy;
  place.Write("a.bas", longModule);
  const ProgramResult result = place.Shell("cat a.bas | \"$brimwork\" indent -");
  EXPECT_EQ(result.out, place.Run({"indent", "a.bas"}).out);
  EXPECT_EQ(result.out.size(), std::string(kIndented).size() * 20000);
}

TEST(StandardInput, HasAPreambleWhateverItsNameIs) {
  const std::string module = "Attribute VB_Name = \"M\"\n" + std::string(kMessy);
  const ProgramResult result = Workplace().Run({"header", "--set", "Header='H", "-"}, module);
  EXPECT_EQ(result.out, "Attribute VB_Name = \"M\"\n'H\n" + std::string(kMessy));
}

TEST(StandardInput, IsNamedAsTheUserSaysInMessagesAndDiffs) {
  Workplace place;
  const ProgramResult diff =
      place.Run({"indent", "--diff", "--stdin-filename", "src/M.bas", "-"}, kMessy);
  EXPECT_THAT(diff.out, testing::StartsWith("--- src/M.bas\n+++ src/M.bas\n"));
  const ProgramResult failed =
      place.Run({"indent", "--stdin-filename", "src/M.bas", "-"}, "x = \"\x81\"\n");
  EXPECT_EQ(failed.exitCode, 2);
  EXPECT_THAT(failed.error, HasSubstr("src/M.bas:1:6: "));
}

TEST(StandardInput, IsCalledStandardInputWithoutAName) {
  const ProgramResult failed = Workplace().Run({"indent", "-"}, "\x81\n");
  EXPECT_THAT(failed.error, HasSubstr("<standard input>:1:1: "));
}

TEST(StandardInput, CannotBeWrittenBack) {
  const ProgramResult result = Workplace().Run({"indent", "--write", "-"}, kMessy);
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.out, "");
  EXPECT_THAT(result.error, HasSubstr("--write"));
}

TEST(StandardInput, CanBeChecked) {
  const ProgramResult result =
      Workplace().Run({"indent", "--check", "--stdin-filename", "M.bas", "-"}, kMessy);
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.out, "M.bas\n");
}

}  // namespace modes_test
}  // namespace brimwork

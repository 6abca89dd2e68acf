// Runs over several files: folders, order, jobs, what is told, and one bad file among good ones.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "end_to_end/sources.h"
#include "end_to_end/workplace.h"

namespace brimwork {
namespace many_files_test {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

class ManyFiles : public testing::Test {
 protected:
  Workplace place;
};

TEST_F(ManyFiles, OneBadFileDoesNotStopTheOthers) {
  place.Write("a.bas", kMessy);
  place.Write("b.bas", "x = \x81\n");
  place.Write("d.bas", kMessy);
  const ProgramResult result =
      place.Run({"indent", "--write", "--quiet", "a.bas", "b.bas", "missing.bas", "d.bas"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(place.Read("a.bas"), kIndented);
  EXPECT_EQ(place.Read("b.bas"), "x = \x81\n");
  EXPECT_EQ(place.Read("d.bas"), kIndented);
  const auto errors = LinesOf(result.error);
  ASSERT_EQ(errors.size(), 2u) << result.error;
  EXPECT_THAT(errors[0], testing::StartsWith("brimwork: b.bas:1:5: "));
  EXPECT_THAT(errors[1], testing::StartsWith("brimwork: missing.bas: "));
}

TEST_F(ManyFiles, AnErrorOutweighsWhatCheckFound) {
  place.Write("a.bas", kMessy);
  place.Write("b.bas", "\x81\n");
  const ProgramResult result = place.Run({"indent", "--check", "a.bas", "b.bas"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.out, "a.bas\n");
}

TEST_F(ManyFiles, AFolderIsSearchedForSourcesOfEveryKind) {
  for (const char* name : {"a.bas", "b.CLS", "c.frm", "d.ctl", "sub/e.pag", "sub/deep/f.dob",
                           "g.Dsr", "readme.txt", "a.frx", ".git/h.bas"}) {
    place.Write(name, kMessy);
  }
  const ProgramResult result = place.Run({"indent", "--check", "."});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.out,
            "./a.bas\n./b.CLS\n./c.frm\n./d.ctl\n./g.Dsr\n./sub/deep/f.dob\n./sub/e.pag\n");
}

TEST_F(ManyFiles, AFolderWithoutSourcesIsToldAndNoError) {
  place.Write("docs/readme.txt", "hello\n");
  const ProgramResult result = place.Run({"indent", "--check", "docs"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.error, "docs: holds no Visual Basic source files\n");
}

TEST_F(ManyFiles, AFileNamedInTwoWaysIsWorkedOnOnce) {
  place.Write("src/a.bas", kMessy);
  const ProgramResult result = place.Run({"indent", "--check", "src/a.bas", "src", "./src/a.bas"});
  EXPECT_EQ(result.out, "src/a.bas\n");
}

TEST_F(ManyFiles, MoreJobsGiveTheSameOutputInTheSameOrder) {
  for (int i = 0; i < 40; ++i) {
    std::string module = "Sub P" + std::to_string(i) + "()\nGoTo 20\n20: x = 1\nEnd Sub\n";
    for (int more = 0; more < i % 7 * 50; ++more) module += kMessy;
    if (i == 17) module += "\x81\n";
    place.Write("m" + std::to_string(10 + i) + ".bas", module);
  }
  const ProgramResult one = place.Run({"number", "--diff", "--verbose", "--jobs", "1", "."});
  const ProgramResult eight = place.Run({"number", "--diff", "--verbose", "--jobs", "8", "."});
  EXPECT_EQ(one.exitCode, 2);
  EXPECT_EQ(eight.exitCode, one.exitCode);
  EXPECT_EQ(eight.out, one.out);
  EXPECT_EQ(eight.error, one.error);
  EXPECT_THAT(one.out, HasSubstr("--- ./m49.bas\n"));
}

TEST_F(ManyFiles, MoreJobsWriteTheSameFiles) {
  for (int i = 0; i < 20; ++i) place.Write("m" + std::to_string(i) + ".bas", kMessy);
  const ProgramResult result = place.Run({"indent", "--write", "--jobs", "8", "."});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_THAT(result.error, testing::EndsWith("20 files, 20 changed\n"));
  for (int i = 0; i < 20; ++i) {
    EXPECT_EQ(place.Read("m" + std::to_string(i) + ".bas"), kIndented);
  }
}

class WhatIsTold : public ManyFiles {
 protected:
  WhatIsTold() {
    place.Write("a.bas", kMessy);
    place.Write("b.bas", kIndented);
    place.Write("c.bas", "Sub A()\nGoTo 20\n20: x = 1\nEnd Sub\n");
  }
};

TEST_F(WhatIsTold, IsALineForEachChangedFileAndTheTotal) {
  const ProgramResult result = place.Run({"indent", "--write", "a.bas", "b.bas"});
  EXPECT_EQ(result.error, "a.bas: 3 lines changed, 0 added, 0 removed\n2 files, 1 changed\n");
}

TEST_F(WhatIsTold, IsAlsoTheUnchangedFilesWithVerbose) {
  const ProgramResult result = place.Run({"indent", "--write", "--verbose", "a.bas", "b.bas"});
  EXPECT_THAT(result.error, HasSubstr("b.bas: unchanged\n"));
}

TEST_F(WhatIsTold, IsOnlyWarningsAndErrorsWithQuiet) {
  const ProgramResult result =
      place.Run({"unnumber", "--write", "--quiet", "a.bas", "b.bas", "c.bas"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_THAT(result.error, testing::StartsWith("c.bas:3: warning: "));
  EXPECT_EQ(LinesOf(result.error).size(), 1u) << result.error;
}

TEST_F(WhatIsTold, LeavesWarningsOutOnRequest) {
  const Words words{"unnumber", "--check", "--quiet", "c.bas"};
  EXPECT_THAT(place.Run(words).error, HasSubstr("warning"));
  const ProgramResult result =
      place.Run({"unnumber", "--check", "--quiet", "--no-warnings", "c.bas"});
  EXPECT_EQ(result.error, "");
  EXPECT_EQ(result.exitCode, 1);
}

TEST_F(WhatIsTold, OfWarningsLeavesTheExitCodeAlone) {
  EXPECT_EQ(place.Run({"unnumber", "c.bas"}).exitCode, 0);
  EXPECT_EQ(place.Run({"unnumber", "--write", "c.bas"}).exitCode, 0);
}

}  // namespace many_files_test
}  // namespace brimwork

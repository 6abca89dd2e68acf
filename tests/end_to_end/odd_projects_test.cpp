// Projects and groups with odd entries.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "end_to_end/sources.h"
#include "end_to_end/workplace.h"

namespace brimwork {
namespace odd_projects_test {

using testing::HasSubstr;
using testing::StartsWith;

TEST(OddProjects, AnEntryWithoutAPathIsAnErrorOfItsLineAndTheOthersAreDone) {
  for (const char* entry : {"Module=", "Module=X;", "Form=", "Module=X; ."}) {
    Workplace place;
    place.Write("a.bas", kMessy);
    place.Write("p.vbp", std::string(entry) + "\nModule=A; a.bas\n");
    const ProgramResult result = place.Run({"indent", "--write", "--quiet", "p.vbp"});
    EXPECT_EQ(result.exitCode, 2) << entry;
    EXPECT_EQ(LinesOf(result.error).size(), 1u) << result.error;
    EXPECT_THAT(result.error, HasSubstr("p.vbp")) << entry;
    EXPECT_EQ(place.Read("a.bas"), kIndented) << entry;
  }
}

TEST(OddProjects, AGroupThatNamesItselfOrAnotherGroupComesToAnEnd) {
  Workplace place;
  place.Write("a.bas", kMessy);
  place.Write("p.vbp", "Module=A; a.bas\n");
  place.Write("g.vbg", "Project=g.vbg\nProject=h.vbg\nProject=p.vbp\n");
  place.Write("h.vbg", "Project=g.vbg\n");
  const ProgramResult result = place.Run({"indent", "--check", "g.vbg"});
  EXPECT_LE(result.exitCode, 2);
  EXPECT_EQ(result.out, "a.bas\n");
}

TEST(OddProjects, AProjectIsReadWithTheEncodingOfTheRun) {
  Workplace place;
  place.Write("\xD0\x94\xD0\xB0.bas", "Sub A()\nEnd Sub\n");
  place.Write("p.vbp", "Module=M; \xC4\xE0.bas\nName=\"\xC4\xE0\"\n");
  const Words options{"--encoding", "cp1251", "--set", "ErrorHandling='CURRENTFULLPROCEDUREPATH"};
  Words words{"error-handling", "--diff"};
  words.insert(words.end(), options.begin(), options.end());
  words.push_back("p.vbp");
  const ProgramResult ofProject = place.Run(words);
  EXPECT_EQ(ofProject.exitCode, 0) << ofProject.error;
  EXPECT_THAT(ofProject.out, HasSubstr("+'\xC4\xE0.\xC4\xE0.A\n"));
  words.back() = "\xD0\x94\xD0\xB0.bas";
  EXPECT_THAT(place.Run(words).out, HasSubstr("+'\xC4\xE0.\xC4\xE0.A\n"));
}

}  // namespace odd_projects_test
}  // namespace brimwork

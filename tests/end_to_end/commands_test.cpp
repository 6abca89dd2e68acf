// Commands by their captions and by their friendly names.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "end_to_end/sources.h"
#include "end_to_end/workplace.h"

namespace brimwork {
namespace commands_test {

using testing::AllOf;
using testing::HasSubstr;

constexpr const char* kNow = "2026-11-21T10:20:30";

constexpr const char* kModule =
    "Option Explicit\n"
    "Sub Main()\n"
    "10: If Ready Then\n"
    "Work\n"
    "End If\n"
    "End Sub\n"
    "Sub Other()\n"
    "Work\n"
    "End Sub\n";

class Commands : public testing::Test {
 protected:
  Commands() { place.Write("m.bas", kModule); }

  std::string Output(Words words) const {
    words.insert(words.end(), {"--now", kNow, "m.bas"});
    const ProgramResult result = place.Run(words);
    EXPECT_EQ(result.exitCode, 0) << result.error;
    EXPECT_NE(result.out, kModule) << "nothing was changed, so nothing is compared";
    return result.out;
  }

  Workplace place;
};

TEST_F(Commands, FriendlyNamesOnTheModuleAreTheSameAsTheirCaptions) {
  EXPECT_EQ(Output({"indent"}), Output({"run", "Indent All Procedures"}));
  EXPECT_EQ(Output({"number"}), Output({"run", "Add Line Numbers"}));
  EXPECT_EQ(Output({"unnumber"}), Output({"run", "Remove Line Numbers"}));
  EXPECT_EQ(Output({"comment"}), Output({"run", "Comment All Procedures"}));
  EXPECT_EQ(Output({"error-handling"}), Output({"run", "Insert Error Handling"}));
  EXPECT_EQ(Output({"header"}), Output({"run", "Standard Header"}));
  EXPECT_EQ(Output({"header", "--adapted"}), Output({"run", "Adapted Header"}));
  EXPECT_EQ(Output({"cleanup"}), Output({"run", "Code Clean Up"}));
}

TEST_F(Commands, FriendlyNamesAtAPlaceAreTheSameAsTheirCaptions) {
  const auto with = [](Words words) {
    words.insert(words.end(), {"--line", "8"});
    return words;
  };
  EXPECT_EQ(Output(with({"number"})), Output(with({"run", "Add Line Numbers"})));
  EXPECT_EQ(Output(with({"unnumber"})), Output(with({"run", "Remove Line Numbers"})));
  EXPECT_EQ(Output(with({"comment"})), Output(with({"run", "Comment Procedure"})));
  EXPECT_EQ(Output(with({"error-handling"})), Output(with({"run", "Insert Error Handling"})));
  EXPECT_EQ(Output(with({"timestamp"})), Output(with({"run", "Insert Time Stamp"})));
}

TEST_F(Commands, APlaceMakesTheDifferenceBetweenAllProceduresAndOne) {
  EXPECT_NE(Output({"number"}), Output({"number", "--line", "8"}));
  EXPECT_EQ(Output({"number", "--procedure", "Other"}), Output({"number", "--line", "8"}));
}

TEST_F(Commands, AnUnknownCaptionIsAnErrorThatNamesTheNearestOne) {
  const ProgramResult result = place.Run({"run", "Indent All Procedure", "m.bas"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.out, "");
  EXPECT_THAT(result.error, AllOf(HasSubstr("\"Indent All Procedure\""),
                                  HasSubstr("did you mean \"Indent All Procedures\"?")));
  EXPECT_EQ(LinesOf(result.error).size(), 1u);
}

TEST_F(Commands, ACaptionIsExactDownToItsLetterCase) {
  const ProgramResult result = place.Run({"run", "code clean up", "m.bas"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.error, HasSubstr("did you mean \"Code Clean Up\"?"));
}

TEST_F(Commands, CaptionsOfTheEditorAreRefused) {
  for (const char* caption : {"Full Screen", "Close Windows", "MsgBox Creator", "About Brimwork",
                              "Clear Immediate Window"}) {
    const ProgramResult result = place.Run({"run", caption, "m.bas"});
    EXPECT_EQ(result.exitCode, 2) << caption;
    EXPECT_EQ(result.out, "") << caption;
    EXPECT_THAT(result.error, HasSubstr(caption));
    EXPECT_THAT(result.error, testing::Not(HasSubstr("did you mean")));
  }
}

TEST_F(Commands, ACaptionOnTheWholeModuleTakesNoPlace) {
  for (const Words& words : {Words{"run", "Indent All Procedures", "--line", "3", "m.bas"},
                             Words{"run", "Code Clean Up", "--procedure", "Main", "m.bas"}}) {
    const ProgramResult result = place.Run(words);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.error, HasSubstr("whole module"));
  }
}

TEST_F(Commands, ACaptionOfOneProcedureNeedsAPlace) {
  const ProgramResult result = place.Run({"run", "Comment Procedure", "m.bas"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.error, AllOf(HasSubstr("--line"), HasSubstr("--procedure")));
}

TEST_F(Commands, AreListedWithWhatTheyWorkOnAndTheirFriendlyNames) {
  const ProgramResult result = place.Run({"commands"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_THAT(result.out, testing::ContainsRegex("Code Clean Up +module +cleanup\n"));
  EXPECT_THAT(result.out, testing::ContainsRegex("Full Screen +in the editor only\n"));
}

}  // namespace commands_test
}  // namespace brimwork

#include "cli/command_request.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brimwork {
namespace command_request_test {

using testing::HasSubstr;

PlaceRequest AtLine(int line) {
  PlaceRequest place;
  place.line = line;
  return place;
}

PlaceRequest InProcedure(const std::string& name) {
  PlaceRequest place;
  place.procedure = name;
  return place;
}

std::string ErrorOf(std::string_view caption, const PlaceRequest& place) {
  try {
    MakeCommandRequest(caption, place);
  } catch (const UsageError& error) {
    return error.what();
  }
  return "no error";
}

TEST(CommandRequest, WithoutAPlaceIsOnTheWholeModule) {
  const CommandRequest request = MakeCommandRequest("Add Line Numbers", {});
  EXPECT_EQ(request.caption, "Add Line Numbers");
  EXPECT_TRUE(request.wholeModule);
}

TEST(CommandRequest, AtAPlaceIsOnOneProcedure) {
  EXPECT_FALSE(MakeCommandRequest("Add Line Numbers", AtLine(3)).wholeModule);
  const CommandRequest request = MakeCommandRequest("Comment Procedure", InProcedure("Main"));
  EXPECT_FALSE(request.wholeModule);
  EXPECT_EQ(request.place.procedure, "Main");
}

TEST(CommandRequest, OfAHeaderNeedsNoPlaceAndIsNoWalk) {
  EXPECT_FALSE(MakeCommandRequest("Standard Header", {}).wholeModule);
  EXPECT_FALSE(MakeCommandRequest("Adapted Header", {}).wholeModule);
}

TEST(CommandRequest, ComparesCaptionsExactly) {
  EXPECT_THAT(ErrorOf("add line numbers", {}), HasSubstr("did you mean \"Add Line Numbers\"?"));
  EXPECT_THAT(ErrorOf("Add Line Numbers ", {}), HasSubstr("there is no command"));
  EXPECT_THAT(ErrorOf("", {}), HasSubstr("brimwork commands"));
}

TEST(CommandRequest, RefusesWhatOpensAWindow) {
  for (const std::string caption : {"Contents", "Index", "About Brimwork", "Vantrel Web Site"}) {
    const std::string expected = '"' + caption + "\" opens a window, and the command line has none";
    EXPECT_EQ(ErrorOf(caption, {}), expected);
    EXPECT_EQ(ErrorOf(caption, AtLine(1)), expected);
  }
}

TEST(CommandRequest, NamesTheCommandsThatStandInForAWindow) {
  EXPECT_EQ(ErrorOf("MsgBox Creator", {}),
            "\"MsgBox Creator\" opens a window: run brimwork msgbox");
  EXPECT_EQ(ErrorOf("Configure Brimwork", AtLine(1)),
            "\"Configure Brimwork\" opens a window: run brimwork setup");
}

TEST(CommandRequest, RefusesWhatActsOnWindows) {
  for (const std::string caption : {"Full Screen", "Clear Immediate Window", "Close Windows"}) {
    const std::string expected =
        '"' + caption + "\" acts on the environment's windows, and the command line has none";
    EXPECT_EQ(ErrorOf(caption, {}), expected);
    EXPECT_EQ(ErrorOf(caption, AtLine(1)), expected);
  }
}

TEST(CommandRequest, NamesTheExportInsteadOfItsCaptions) {
  const std::pair<std::string, std::string> exports[] = {{"Text", "--format text"},
                                                         {"RTF", "--format rtf"},
                                                         {"Web Page", "--format html"},
                                                         {"Quick Export", "--quick"}};
  for (const auto& [caption, options] : exports) {
    const std::string expected =
        '"' + caption + "\" makes another file of the module: run brimwork export " + options;
    EXPECT_EQ(ErrorOf(caption, {}), expected);
    EXPECT_EQ(ErrorOf(caption, AtLine(1)), expected);
  }
}

TEST(CommandRequest, RefusesAPlaceForTheWholeModule) {
  EXPECT_THAT(ErrorOf("Indent All Procedures", AtLine(1)), HasSubstr("whole module"));
  EXPECT_THAT(ErrorOf("Code Clean Up", InProcedure("Main")), HasSubstr("whole module"));
}

TEST(CommandRequest, AsksForAPlaceWhereOneIsNeeded) {
  EXPECT_THAT(ErrorOf("Comment Procedure", {}), HasSubstr("--line N"));
  EXPECT_THAT(ErrorOf("Insert Time Stamp", {}), HasSubstr("--line N"));
}

TEST(CommandRequest, RefusesPlacesThatContradictEachOther) {
  PlaceRequest both = AtLine(1);
  both.procedure = "Main";
  EXPECT_THAT(ErrorOf("Add Line Numbers", both), HasSubstr("--line and --procedure"));
  PlaceRequest columnAlone;
  columnAlone.column = 1;
  EXPECT_THAT(ErrorOf("Add Line Numbers", columnAlone), HasSubstr("--column needs --line"));
  EXPECT_THAT(ErrorOf("Insert Time Stamp", InProcedure("Main")), HasSubstr("--line N"));
}

TEST(FriendlyNames, StandForCaptionsAndBack) {
  EXPECT_EQ(CaptionOf("cleanup"), "Code Clean Up");
  EXPECT_EQ(CaptionOf("comment"), "Comment All Procedures");
  EXPECT_EQ(CaptionOf("nothing"), "");
  EXPECT_EQ(CommandNameOf("Comment All Procedures"), "comment");
  EXPECT_EQ(CommandNameOf("Comment Procedure"), "comment");
  EXPECT_EQ(CommandNameOf("Adapted Header"), "header --adapted");
  EXPECT_EQ(CommandNameOf("Web Page"), "export --format html");
  EXPECT_EQ(CommandNameOf("Full Screen"), "");
}

}  // namespace command_request_test
}  // namespace brimwork

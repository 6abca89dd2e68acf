// brimwork msgbox: the code of a message box.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "end_to_end/workplace.h"

namespace brimwork {
namespace msgbox_test {

using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kNeedsModule =
    "this code calls the module modCustomMsgBox: --add-to FILE.vbp adds it to a project\n";

struct MsgBoxCommand : testing::Test {
  ProgramResult Run(const Words& options) const {
    Words words{"msgbox", "--text", "x"};
    words.insert(words.end(), options.begin(), options.end());
    return place.Run(words);
  }

  void ExpectCode(const Words& options, const std::string& code) const {
    const ProgramResult result = Run(options);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out, code + "\r\n");
    const bool isCustom = code.find("CreateSpecialMsgBox") != std::string::npos;
    EXPECT_EQ(result.error, isCustom ? kNeedsModule : "");
  }

  Workplace place;
};

TEST_F(MsgBoxCommand, PrintsAPlainMessageBox) {
  ExpectCode({}, "MsgBox \"x\",0,\"\"");
  ExpectCode({"--title", " T "}, "MsgBox \"x\",0,\"T\"");
  EXPECT_THAT(place.Names(), IsEmpty());
}

TEST_F(MsgBoxCommand, TakesAnyText) {
  for (const auto& [text, literal] : std::vector<std::pair<std::string, std::string>>{
           {"", "\"\""},
           {"say \"a\"\nand b\n", "\"say \" & chr(34) & \"a\" & chr(34) & vbCrLf & \"and b\""},
           {"[a,b]", "\"[a,b]\""},
           {"%s \\n", "\"%s \\n\""},
           {"gr\xC3\xBCn", "\"gr\xC3\xBCn\""}}) {
    EXPECT_EQ(place.Run({"msgbox", "--text", text}).out, "MsgBox " + literal + ",0,\"\"\r\n");
  }
  EXPECT_EQ(place.Run({"msgbox", "--text=--x"}).out, "MsgBox \"--x\",0,\"\"\r\n");
}

TEST_F(MsgBoxCommand, HasAnOptionForEachPartOfTheStyle) {
  ExpectCode({"--buttons", "yes-no", "--icon", "question"}, "MsgBox \"x\",36,\"\"");
  ExpectCode({"--buttons", "vbYesNoCancel"}, "MsgBox \"x\",3,\"\"");
  ExpectCode({"--icon", "vbInformation"}, "MsgBox \"x\",64,\"\"");
  ExpectCode({"--buttons", "ok-cancel", "--default", "2"}, "MsgBox \"x\",257,\"\"");
  ExpectCode({"--modal", "system"}, "MsgBox \"x\",4096,\"\"");
  ExpectCode({"--help-button"}, "MsgBox \"x\",16384,\"\"");
  ExpectCode({"--right-aligned"}, "MsgBox \"x\",524288,\"\"");
  ExpectCode({"--right-to-left"}, "MsgBox \"x\",1048576,\"\"");
  ExpectCode({"--foreground"}, "MsgBox \"x\",65536,\"\"");
}

TEST_F(MsgBoxCommand, HasAnOptionForEachCustomFeature) {
  ExpectCode({"--timeout", "5"}, "CreateSpecialMsgBox \"x\",0,\"\",5,-1,-1,\"\",,1,\"\",\"OK\"");
  ExpectCode({"--position", "7,-8"},
             "CreateSpecialMsgBox \"x\",0,\"\",-1,7,-8,\"\",,1,\"\",\"OK\"");
  ExpectCode({"--check-box", "Again"},
             "Dim CheckBoxValue As Boolean\r\n"
             "CreateSpecialMsgBox \"x\",0,\"\",-1,-1,-1,\"Again\", CheckBoxValue,1,\"\",\"OK\"");
  ExpectCode({"--buttons", "yes-no", "--captions", ",Never"},
             "CreateSpecialMsgBox \"x\",4,\"\",-1,-1,-1,\"\",,2,\"&Yes,Never\",\"&Yes,&No\"");
}

TEST_F(MsgBoxCommand, KeepsToTheCodeWithQuiet) {
  EXPECT_EQ(Run({"--timeout", "5", "-q"}).error, "");
  EXPECT_EQ(Run({"--add-to", "p.vbp", "--quiet"}).error, "");
}

TEST_F(MsgBoxCommand, WarnsOfWhatCountsAsNotSet) {
  const ProgramResult result = Run({"--timeout", "ten", "--position", "a,5", "-q"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.out, "MsgBox \"x\",0,\"\"\r\n");
  EXPECT_EQ(result.error,
            "brimwork: warning: --timeout \"ten\" counts as not set: write 1 to 32\n"
            "brimwork: warning: --position \"a,5\" counts as not set: write two whole numbers, as "
            "in 100,50\n");
}

TEST_F(MsgBoxCommand, RefusesValuesThatAreNone) {
  for (const Words& options :
       {Words{"--buttons", "yes"}, Words{"--icon", "x"}, Words{"--default", "2"},
        Words{"--default", "no"}, Words{"--modal", "x"}, Words{"--position", "5"},
        Words{"--captions", "A,B"}, Words{"--captions", ""}, Words{"--add-to", ""},
        Words{"--bogus"}, Words{"more"}, Words{"--title"}}) {
    const ProgramResult result = Run(options);
    EXPECT_EQ(result.exitCode, 2) << options.front();
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(result.error, HasSubstr(options.front()));
    EXPECT_EQ(LinesOf(result.error).size(), 1u) << result.error;
  }
}

TEST_F(MsgBoxCommand, NeedsAText) {
  const ProgramResult result = place.Run({"msgbox", "--title", "T"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.error, HasSubstr("--text"));
}

TEST_F(MsgBoxCommand, IsNamedInPlaceOfItsCaption) {
  place.Write("m.bas", "x = 1\n");
  EXPECT_EQ(place.Run({"run", "MsgBox Creator", "m.bas"}).error,
            "brimwork: \"MsgBox Creator\" opens a window: run brimwork msgbox\n");
  EXPECT_THAT(place.Run({"commands"}).out,
              testing::ContainsRegex("MsgBox Creator +a new message box +msgbox\n"));
}

}  // namespace msgbox_test
}  // namespace brimwork

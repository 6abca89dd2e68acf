// brimwork settings: the user's own settings file.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

#include "end_to_end/workplace.h"

namespace brimwork {
namespace end_to_end_settings_test {

using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

class SettingsCommand : public testing::Test {
 protected:
  std::string Value(const std::string& key) const {
    return place.Run({"settings", "get", key}).out;
  }

  Workplace place;
};

TEST_F(SettingsCommand, GetGivesTheDefaultUntilAValueIsSet) {
  EXPECT_EQ(Value("ErrorHandling"), "TEST HANDLE\n");
  EXPECT_EQ(place.Run({"settings", "set", "ErrorHandling", "Resume Next"}).exitCode, 0);
  EXPECT_EQ(Value("ErrorHandling"), "Resume Next\n");
}

TEST_F(SettingsCommand, AKeyMayBeInAnyLetterCase) {
  place.Run({"settings", "set", "separator", "'--"});
  EXPECT_EQ(Value("SEPARATOR"), "'--\n");
}

TEST_F(SettingsCommand, AnEmptyTextIsAValue) {
  place.Run({"settings", "set", "ErrorHandling", ""});
  EXPECT_EQ(Value("ErrorHandling"), "\n");
}

TEST_F(SettingsCommand, AValueThatStartsWithADashIsTaken) {
  EXPECT_EQ(place.Run({"settings", "set", "--", "ToolbarLeft", "-4"}).exitCode, 0);
  EXPECT_EQ(Value("ToolbarLeft"), "-4\n");
}

TEST_F(SettingsCommand, LinesOfAValueAreStoredWithCarriageReturns) {
  place.Run({"settings", "set", "Header", "'1\n'2"});
  EXPECT_EQ(Value("Header"), "'1\r\n'2\n");
  EXPECT_THAT(place.Read("settings.json"), HasSubstr("'1\\r\\n'2"));
}

TEST_F(SettingsCommand, AStoredValueIsWhatTheCommandsTake) {
  place.Write("m.bas", "Sub A()\nEnd Sub\n");
  place.Run({"settings", "set", "Separator", "'--"});
  EXPECT_EQ(place.Run({"comment", "m.bas"}).out, "'--\nSub A()\nEnd Sub 'A()\n'--\n");
}

TEST_F(SettingsCommand, ListShowsEveryKeyAndWhichAreSet) {
  place.Run({"settings", "set", "Header", "'1\n'2"});
  const std::string list = place.Run({"settings", "list"}).out;
  EXPECT_EQ(LinesOf(list).size(), 19u);
  EXPECT_THAT(list, AllOf(HasSubstr("Header='1\\n'2\n"), HasSubstr("AutoLoad (default)=False\n"),
                          HasSubstr("CleanUpCodeOptions (default)=Header,Error,Indent,Comment,"
                                    "LineNumber\n")));
}

TEST_F(SettingsCommand, AnUnknownKeyIsAnErrorThatNamesTheNearestOne) {
  for (const Words& words :
       {Words{"settings", "get", "AutoLaod"}, Words{"settings", "set", "AutoLaod", "True"}}) {
    const ProgramResult result = place.Run(words);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(result.error, HasSubstr("did you mean \"AutoLoad\"?"));
  }
  EXPECT_TRUE(place.Names().empty());
}

TEST_F(SettingsCommand, PathNamesTheFileOfTheVariable) {
  EXPECT_EQ(place.Run({"settings", "path"}).out, (place / "settings.json").string() + "\n");
}

TEST_F(SettingsCommand, PathIsBelowTheConfigurationFolderElse) {
  place.UnsetVariable("BRIMWORK_SETTINGS");
  EXPECT_EQ(place.Run({"settings", "path"}).out,
            (place / ".config/brimwork/settings.json").string() + "\n");
  place.SetVariable("XDG_CONFIG_HOME", (place / "conf").string());
  EXPECT_EQ(place.Run({"settings", "path"}).out,
            (place / "conf/brimwork/settings.json").string() + "\n");
  EXPECT_EQ(place.Run({"settings", "set", "Header", "'x"}).exitCode, 0);
  EXPECT_THAT(place.Read("conf/brimwork/settings.json"), HasSubstr("'x"));
}

TEST_F(SettingsCommand, SetSaysNothingWhenAllWentWell) {
  EXPECT_EQ(place.Run({"settings", "set", "Header", "'x"}).error, "");
}

TEST_F(SettingsCommand, RunsSideBySideLoseNoValue) {
  const Words keys{"Header",      "AdaptedHeader",   "ErrorHandling", "KeyWordList", "Separator",
                   "ToolbarLeft", "ToolbarPosition", "ToolbarIndex",  "ToolbarTop"};
  for (int round = 0; round < 5; ++round) {
    std::vector<std::unique_ptr<RunningProgram>> running;
    for (const std::string& key : keys) {
      const Words words{"settings", "set", key, key + std::to_string(round)};
      running.push_back(std::make_unique<RunningProgram>(place.CallOf(words)));
    }
    for (const auto& program : running) EXPECT_EQ(program->Wait().exitCode, 0);
    const std::string list = place.Run({"settings", "list"}).out;
    for (const std::string& key : keys) {
      EXPECT_THAT(list, HasSubstr(key + "=" + key + std::to_string(round) + "\n"));
    }
  }
}

class DamagedSettings : public SettingsCommand {
 protected:
  DamagedSettings() {
    place.Write("settings.json", kDamaged);
    place.Write("m.bas", kModule);
  }

  static constexpr const char* kDamaged = "{ \"Brimwork\": { \"Settings\": { \"Header\": ";
  static constexpr const char* kModule = "Sub A()\nx = 1\nEnd Sub\n";
};

TEST_F(DamagedSettings, StopARunBeforeAnythingIsWritten) {
  const ProgramResult result = place.Run({"indent", "--write", "m.bas"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.out, "");
  EXPECT_THAT(result.error, HasSubstr("settings.json"));
  EXPECT_EQ(LinesOf(result.error).size(), 1u) << result.error;
  EXPECT_EQ(place.Read("m.bas"), kModule);
  EXPECT_EQ(place.Read("settings.json"), kDamaged);
}

TEST_F(DamagedSettings, AreNeitherReadNorOverwritten) {
  for (const Words& words : {Words{"settings", "list"}, Words{"settings", "get", "Header"},
                             Words{"settings", "set", "Header", "'new"}}) {
    const ProgramResult result = place.Run(words);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(result.error, HasSubstr("settings.json"));
    EXPECT_EQ(place.Read("settings.json"), kDamaged);
  }
}

TEST_F(DamagedSettings, DoNotKeepThePathFromBeingTold) {
  EXPECT_EQ(place.Run({"settings", "path"}).exitCode, 0);
}

}  // namespace end_to_end_settings_test
}  // namespace brimwork

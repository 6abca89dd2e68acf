// brimwork setup: the setup dialog at a terminal, over the user's own settings file.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>

#include <chrono>
#include <thread>

#include "end_to_end/workplace.h"
#include "settings/setting_defaults.h"

namespace brimwork {
namespace setup_test {

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr std::size_t kQuestions = 13;  // when Enter keeps everything

struct SetupCommand : testing::Test {
  ProgramCall CallWith(const Words& answers) const {
    std::string typed;
    for (const std::string& answer : answers) typed += answer + '\n';
    ProgramCall call = place.CallOf({"setup"}, std::move(typed));
    call.inputIsTerminal = call.errorIsTerminal = true;
    return call;
  }

  ProgramResult Answer(const Words& answers) const { return RunProgram(CallWith(answers)); }

  std::string Value(const std::string& key) const {
    return place.Run({"settings", "get", key}).out;
  }

  std::string SettingsList() const { return place.Run({"settings", "list"}).out; }

  Workplace place;
};

TEST_F(SetupCommand, StoresTheDefaultsWithoutAsking) {
  const ProgramResult result = place.Run({"setup", "--defaults"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.error,
            "The settings are stored in " + (place / "settings.json").string() + "\n");
  EXPECT_EQ(Value("Header"), std::string(kStandardHeaderTemplate) + "\n");
  EXPECT_EQ(Value("AdaptedHeader"), std::string(kAdaptedHeaderTemplate) + "\n");
  EXPECT_EQ(Value("ErrorHandling"), std::string(kOfferedErrorHandling) + "\n");
  EXPECT_EQ(Value("KeyWordList"), std::string(kBuiltInKeyWordList) + "\n");
  EXPECT_EQ(Value("Separator"), std::string(kSeparatorLine) + "\n");
  EXPECT_EQ(Value("QuickExportPath"), place.Folder().string() + "\n");
  EXPECT_EQ(Value("CleanUpCodeOptions"), "Header,Error,Indent,Comment,LineNumber\n");
  EXPECT_THAT(SettingsList(),
              AllOf(HasSubstr("\nAutoLoad=False\n"), HasSubstr("\nSplashScreen=True\n"),
                    HasSubstr("\nFirstRun=False\n"), HasSubstr("\nSeperator (default)="),
                    HasSubstr("\nToolbarLeft (default)=0\n")));
}

TEST_F(SetupCommand, LeavesWhatIsStoredWithDefaults) {
  const std::pair<const char*, const char*> kStored[] = {
      {"Header", "'1\n'2"},        {"KeyWordList", "Dim,Dim"}, {"Separator", ""},
      {"AutoLoad", "True"},        {"SplashScreen", "False"},  {"CleanUpCodeOptions", "Indent"},
      {"QuickExportPath", "x:\\"}, {"ToolbarLeft", "7"}};
  for (const auto& [key, value] : kStored) place.Run({"settings", "set", key, value});
  EXPECT_EQ(place.Run({"setup", "--defaults"}).exitCode, 0);
  for (const auto& [key, value] : kStored) {
    EXPECT_EQ(WithLfEnds(Value(key)), std::string(value) + "\n") << key;
  }
  EXPECT_EQ(Value("FirstRun"), "False\n");
}

TEST_F(SetupCommand, LeavesADamagedSettingsFile) {
  place.Write("settings.json", "{");
  const ProgramResult result = place.Run({"setup", "--defaults"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.error, HasSubstr("the settings file is damaged"));
  EXPECT_EQ(place.Read("settings.json"), "{");
}

TEST_F(SetupCommand, NeedsATerminalToAskOn) {
  const ProgramResult result = place.Run({"setup"}, std::string(kQuestions, '\n'));
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.error,
            "brimwork: there is no terminal to ask on: \"brimwork setup --defaults\" asks nothing, "
            "\"brimwork settings set KEY VALUE\" stores one setting\n");
  EXPECT_THAT(place.Names(), IsEmpty());
}

TEST_F(SetupCommand, IsNamedInPlaceOfItsCaption) {
  place.Write("m.bas", "x = 1\n");
  EXPECT_EQ(place.Run({"run", "Configure Brimwork", "m.bas"}).error,
            "brimwork: \"Configure Brimwork\" opens a window: run brimwork setup\n");
}

struct SetupAtATerminal : SetupCommand {
  void SetUp() override {
    if (!HasPseudoTerminal()) GTEST_SKIP() << "this system opens no pseudo-terminal";
  }
};

TEST_F(SetupAtATerminal, StoresOnEnterWhatDefaultsStores) {
  const ProgramResult result = Answer(Words(kQuestions, ""));
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.out, "");
  EXPECT_THAT(result.terminal, EndsWith("The settings are stored in " +
                                        (place / "settings.json").string() + "\r\n"));
  const std::string asked = SettingsList();
  place.Remove("settings.json");
  place.Run({"setup", "--defaults"});
  EXPECT_EQ(asked, SettingsList());
}

TEST_F(SetupAtATerminal, StoresTheAnswers) {
  const ProgramResult result =
      Answer({"Stop", ".",   "'1",   "",  "'2", ".", ".", "a Foo", "r", "y", "d Input",
              "",     "'--", "/out", "1", "n",  "n", "n", "y",     "n", "n"});
  EXPECT_EQ(result.exitCode, 0) << result.terminal;
  EXPECT_EQ(Value("ErrorHandling"), "Stop\n");
  EXPECT_EQ(Value("Header"), "'1\r\n\r\n'2\n");
  EXPECT_THAT(Value("KeyWordList"), AllOf(EndsWith(",With,Write\n"), HasSubstr(",Line,Loc,")));
  EXPECT_EQ(Value("Separator"), "'--\n");
  EXPECT_EQ(Value("QuickExportPath"), "/out\n");
  EXPECT_EQ(Value("CleanUpCodeOptions"), "Indent\n");
  EXPECT_THAT(SettingsList(), AllOf(HasSubstr("\nAdaptedHeader=\n"), HasSubstr("\nAutoLoad=True\n"),
                                    HasSubstr("\nSplashScreen=False\n")));
}

TEST_F(SetupAtATerminal, StoresNothingWhenTheInputEnds) {
  for (const std::size_t answers : {std::size_t{0}, std::size_t{4}, kQuestions - 1}) {
    const ProgramResult result = Answer(Words(answers, ""));
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.terminal,
                EndsWith("\r\nbrimwork: the answers ended before the last question: nothing was "
                         "stored\r\n"));
    EXPECT_THAT(place.Names(), IsEmpty());
  }
}

TEST_F(SetupAtATerminal, StoresNothingWhenItIsBrokenOff) {
  ProgramCall call = CallWith({});
  call.inputIsTerminal = false;  // nobody types on this terminal
  call.words = {"/bin/sh", "-c", "exec \"$brimwork\" setup <&2"};
  call.variables["brimwork"] = BRIMWORK_COMMAND;
  RunningProgram running(call);
  std::this_thread::sleep_for(std::chrono::milliseconds(200));
  running.Send(SIGINT);
  EXPECT_EQ(running.Wait().exitCode, 128 + SIGINT);
  EXPECT_THAT(place.Names(), IsEmpty());
}

TEST_F(SetupAtATerminal, SaysWhenTheSettingsCannotBeStored) {
  place.SetVariable("BRIMWORK_SETTINGS", "/dev/null/settings.json");
  const ProgramResult result = Answer(Words(kQuestions, ""));
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.terminal, HasSubstr("brimwork: /dev/null/settings.json: the settings file"));
}

}  // namespace setup_test
}  // namespace brimwork

#include "cli/app_options.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <CLI/CLI.hpp>
#include <algorithm>

#include "memory/date_time.h"
#include "support/scoped_variable.h"
#include "support/temporary_folder.h"

namespace brimwork {
namespace app_options_test {

using testing::ElementsAre;
using testing::HasSubstr;

/// Parses words as those behind a command and makes a run of them, with settings of its own.
class AppOptionsTest : public testing::Test {
 protected:
  AppOptions Parse(std::vector<std::string> words) const {
    CLI::App app;
    AppOptions options;
    AddRunOptions(app, options);
    AddPlaceOptions(app, options);
    std::ranges::reverse(words);
    app.parse(words);
    return options;
  }

  RunOptions Run(const std::vector<std::string>& words) const {
    return MakeRunOptions("Add Line Numbers", Parse(words));
  }

  std::string ErrorOf(const AppOptions& options) const {
    try {
      MakeRunOptions("Code Clean Up", options);
    } catch (const std::exception& error) {
      return error.what();
    }
    return "no error";
  }

  void Store(const std::string& json) const { WriteBytes(folder / "settings.json", json); }

  TemporaryFolder folder;
  ScopedVariable file{"BRIMWORK_SETTINGS", (folder / "settings.json").string()};
  ScopedVariable epoch{"SOURCE_DATE_EPOCH", std::nullopt};
};

TEST_F(AppOptionsTest, PrintTheResultWithWindows1252AndWarningsUnlessTold) {
  const RunOptions run = Run({"a.bas"});
  EXPECT_TRUE(run.PrintsResult());
  EXPECT_EQ(run.encoding, "WINDOWS-1252");
  EXPECT_TRUE(run.warnings);
  EXPECT_FALSE(run.isUnsafe);
  EXPECT_FALSE(run.tabWidth.has_value());
  EXPECT_FALSE(run.jobs.has_value());
  EXPECT_THAT(run.paths, ElementsAre("a.bas"));
}

TEST_F(AppOptionsTest, TakeTheModes) {
  EXPECT_TRUE(Run({"-w", "a.bas"}).write);
  EXPECT_TRUE(Run({"--write", "a.bas"}).write);
  EXPECT_TRUE(Run({"--check", "a.bas"}).check);
  EXPECT_TRUE(Run({"--diff", "a.bas"}).diff);
  EXPECT_FALSE(Run({"--diff", "a.bas"}).PrintsResult());
}

TEST_F(AppOptionsTest, TakeOneWordForEachSetting) {
  const RunOptions run = Run({"--set", "Header='1", "a.bas", "--set", "Separator='2", "b.bas"});
  EXPECT_EQ(run.settings.at("Header"), "'1");
  EXPECT_EQ(run.settings.at("Separator"), "'2");
  EXPECT_THAT(run.paths, ElementsAre("a.bas", "b.bas"));
}

TEST_F(AppOptionsTest, SpellAKeyAsTheTableDoesAndEndItsLinesInCrLf) {
  const RunOptions run = Run({"--set", "hEADER='1\n'2", "a.bas"});
  EXPECT_EQ(run.settings.at("Header"), "'1\r\n'2");
}

TEST_F(AppOptionsTest, PutTheSettingsOfTheRunInFrontOfTheStoredOnes) {
  Store(R"({"Brimwork": {"Settings": {"Header": "'stored", "Separator": "'kept"}}})");
  const RunOptions run = Run({"--set", "Header='run", "a.bas"});
  EXPECT_EQ(run.settings.at("Header"), "'run");
  EXPECT_EQ(run.settings.at("Separator"), "'kept");
}

TEST_F(AppOptionsTest, RefuseSettingsThatAreNone) {
  EXPECT_THROW(Run({"--set", "Header", "a.bas"}), UsageError);
  EXPECT_THROW(Run({"--set", "Heading='1", "a.bas"}), UsageError);
  EXPECT_THROW(Run({"--set", "=1", "a.bas"}), UsageError);
}

TEST_F(AppOptionsTest, RefuseToRunOnDamagedSettings) {
  Store("{");
  EXPECT_THAT(ErrorOf(Parse({"a.bas"})), HasSubstr("settings.json"));
}

TEST_F(AppOptionsTest, SpellTheStepsAsTheSettingDoes) {
  AppOptions options = Parse({"a.bas"});
  options.steps = " indent , COMMENT,";
  const RunOptions run = MakeRunOptions("Code Clean Up", options);
  EXPECT_EQ(run.settings.at("CleanUpCodeOptions"), "Indent,Comment");
}

TEST_F(AppOptionsTest, RefuseAnUnknownStep) {
  AppOptions options = Parse({"a.bas"});
  options.steps = "Indent,Coment";
  EXPECT_THAT(ErrorOf(options), HasSubstr("did you mean \"Comment\"?"));
}

TEST_F(AppOptionsTest, TakeTheMomentOfTheRun) {
  const RunOptions run = Run({"--now", "2026-11-21T10:20:30", "a.bas"});
  EXPECT_EQ(run.now, (DateTime{2026, 11, 21, 10, 20, 30}));
  EXPECT_THROW(Run({"--now", "noon", "a.bas"}), DateTimeError);
}

TEST_F(AppOptionsTest, TakeThePlace) {
  const RunOptions run = Run({"--line", "7", "--column", "3", "a.bas"});
  EXPECT_EQ(run.command.place.line, 7);
  EXPECT_EQ(run.command.place.column, 3);
  EXPECT_FALSE(run.command.wholeModule);
  EXPECT_EQ(Run({"--procedure", "Main", "a.bas"}).command.place.procedure, "Main");
}

TEST_F(AppOptionsTest, RefuseNumbersOutOfRange) {
  EXPECT_THROW(Parse({"--line", "0"}), CLI::ParseError);
  EXPECT_THROW(Parse({"--column", "-1"}), CLI::ParseError);
  EXPECT_THROW(Parse({"--tab-width", "33"}), CLI::ParseError);
  EXPECT_THROW(Parse({"--jobs", "0"}), CLI::ParseError);
  EXPECT_THROW(Parse({"--color", "sometimes"}), CLI::ParseError);
}

TEST_F(AppOptionsTest, TakeTheChoiceOfColours) {
  EXPECT_EQ(Parse({}).color, ColorChoice::kAuto);
  EXPECT_EQ(Parse({"--color", "always"}).color, ColorChoice::kAlways);
  EXPECT_EQ(Parse({"--color", "never"}).color, ColorChoice::kNever);
}

TEST_F(AppOptionsTest, RefuseAnUnknownEncodingBeforeAnyFileIsRead) {
  EXPECT_THAT(ErrorOf(Parse({"--encoding", "cp99999", "a.bas"})), HasSubstr("\"cp99999\""));
}

}  // namespace app_options_test
}  // namespace brimwork

#include "cli/export_options.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "settings/setting_keys.h"
#include "support/temporary_folder.h"

namespace brimwork {
namespace export_options_test {

class OptionsOfAnExport : public testing::Test {
 protected:
  // The user's own settings stay out of it.
  OptionsOfAnExport() { setenv("BRIMWORK_SETTINGS", (folder_ / "settings.json").c_str(), 1); }
  ~OptionsOfAnExport() override { unsetenv("BRIMWORK_SETTINGS"); }

  ExportRequest Request() { return MakeExportRequest(options, exporting); }

  std::string Error() {
    try {
      Request();
    } catch (const UsageError& error) {
      return error.what();
    }
    return "no error";
  }

  AppOptions options;
  ExportOptions exporting;

 private:
  TemporaryFolder folder_;
};

TEST_F(OptionsOfAnExport, ChooseTheCommandOfTheFormat) {
  for (const auto& [format, caption] :
       {std::pair{"text", "Text"}, {"rtf", "RTF"}, {"html", "Web Page"}}) {
    exporting.format = format;
    EXPECT_EQ(Request().run.command.caption, caption);
    EXPECT_TRUE(Request().run.command.wholeModule);
  }
}

TEST_F(OptionsOfAnExport, ChooseTheCommandOnTheSelectionForLines) {
  exporting.format = "html";
  exporting.lines = "2:5";
  EXPECT_FALSE(Request().run.command.wholeModule);
  EXPECT_EQ(Request().lines, (LineRange{2, 5}));
}

TEST_F(OptionsOfAnExport, NeedAFormat) {
  EXPECT_EQ(Error(), "say what to export: --format text, rtf or html");
  exporting.format = "htm";
  EXPECT_EQ(Error(),
            "--format: there is no format \"htm\", did you mean \"html\"?; the formats are text, "
            "rtf and html");
}

TEST_F(OptionsOfAnExport, PrintTheResultWithoutAPlace) {
  exporting.format = "text";
  EXPECT_TRUE(Request().PrintsResult());
  exporting.output = "-";
  EXPECT_TRUE(Request().PrintsResult());
  exporting.output = "a.txt";
  EXPECT_FALSE(Request().PrintsResult());
  exporting.output = "";
  EXPECT_EQ(Error(), "--output needs the name of a file or a folder");
}

TEST_F(OptionsOfAnExport, ReplaceFilesWithForceOnly) {
  exporting.format = "text";
  EXPECT_FALSE(Request().mayReplace);
  exporting.force = true;
  EXPECT_TRUE(Request().mayReplace);
}

TEST_F(OptionsOfAnExport, MakeAQuickExportTextThatReplaces) {
  exporting.quick = true;
  EXPECT_EQ(Request().run.command.caption, "Quick Export");
  EXPECT_EQ(Request().format.name, "text");
  EXPECT_TRUE(Request().mayReplace);
  EXPECT_FALSE(Request().PrintsResult());
  exporting.format = "text";
  EXPECT_EQ(Request().run.command.caption, "Quick Export");
}

TEST_F(OptionsOfAnExport, RefuseWhatDoesNotGoWithAQuickExport) {
  exporting.quick = true;
  exporting.format = "html";
  EXPECT_EQ(Error(), "--quick exports text: leave out --format html");
  exporting.format.reset();
  exporting.output = "-";
  EXPECT_EQ(Error(),
            "--quick writes to the folder of the setting QuickExportPath: leave out --output");
  exporting.output.reset();
  exporting.force = true;
  EXPECT_EQ(Error(), "--quick replaces its file without asking: leave out --force");
}

TEST_F(OptionsOfAnExport, TakeKeywordsForThisRunBeforeEveryOther) {
  exporting.format = "html";
  options.settings = {"KeyWordList=Stored"};
  EXPECT_EQ(Request().run.settings.at(std::string(setting::kKeyWordList)), "Stored");
  exporting.keywords = "If,Then";
  EXPECT_EQ(Request().run.settings.at(std::string(setting::kKeyWordList)), "If,Then");
}

TEST(LineRanges, AreTwoNumbersInOrder) {
  EXPECT_EQ(ParseLineRange("1:1"), (LineRange{1, 1}));
  EXPECT_EQ(ParseLineRange("10:250"), (LineRange{10, 250}));
}

TEST(LineRanges, AreNothingElse) {
  for (const char* text : {"", ":", "5", "5:", ":5", "5:4", "0:4", "-1:4", "1:4x", "1:4:5", "a:b",
                           " 1:2", "1: 2", "1:99999999999", "99999999999:1", "1-2"}) {
    try {
      ParseLineRange(text);
      ADD_FAILURE() << text;
    } catch (const UsageError& error) {
      EXPECT_EQ(error.what(), "--lines " + std::string(text) +
                                  ": write it as A:B, the first and the last line, as in 10:25");
    }
  }
}

}  // namespace export_options_test
}  // namespace brimwork

// Quick Export: one text file in the user's own place, replaced without asking.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "end_to_end/sources.h"
#include "end_to_end/workplace.h"

namespace brimwork {
namespace export_quick_test {

namespace fs = std::filesystem;
using testing::HasSubstr;

constexpr const char* kMessyAsText = "Sub Main()\r\nIf Ready Then\r\nWork\r\nEnd If\r\nEnd Sub";

class QuickExport : public testing::Test {
 protected:
  QuickExport() { place.Write("m.bas", kMessy); }

  std::string Note(Words words = {}) const {
    words.insert(words.begin(), {"export", "--quick", "m.bas"});
    const ProgramResult result = place.Run(words);
    EXPECT_EQ(result.exitCode, 0) << result.error;
    EXPECT_EQ(result.out, "");
    return result.error;
  }

  std::string ErrorOf(Words words) const {
    words.insert(words.begin(), {"export", "--quick"});
    const ProgramResult result = place.Run(words);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(LinesOf(result.error).size(), 1u) << result.error;
    return result.error;
  }

  std::string In(const std::string& name) const { return (place / name).string(); }

  Workplace place;
};

TEST_F(QuickExport, GoesToTheDesktopWhenNoFolderIsSet) {
  fs::create_directory(place / "Desktop");
  EXPECT_EQ(Note(), "m.bas: exported to " + In("Desktop/Exported Code.txt") + "\n");
  EXPECT_EQ(place.Read("Desktop/Exported Code.txt"), kMessyAsText);
}

TEST_F(QuickExport, GoesToTheDesktopThatTheUserHasChosen) {
  place.Write(".config/user-dirs.dirs", "XDG_DESKTOP_DIR=\"$HOME/My Desk\"\n");
  fs::create_directory(place / "My Desk");
  Note();
  EXPECT_EQ(place.Read("My Desk/Exported Code.txt"), kMessyAsText);
}

TEST_F(QuickExport, GoesToTheFolderOfTheSetting) {
  fs::create_directory(place / "out");
  place.Run({"settings", "set", "QuickExportPath", In("out")});
  Note();
  EXPECT_EQ(place.Read("out/Exported Code.txt"), kMessyAsText);
  fs::create_directory(place / "once");
  Note({"--set", "QuickExportPath=" + In("once") + "/"});
  EXPECT_EQ(place.Read("once/Exported Code.txt"), kMessyAsText);
}

TEST_F(QuickExport, ReplacesItsFileTheSecondTime) {
  Note();
  EXPECT_EQ(place.Read("Exported Code.txt"), kMessyAsText);
  place.Write("m.bas", "x = 1\n");
  EXPECT_EQ(Note(), "m.bas: exported to " + In("Exported Code.txt") + "\n");
  EXPECT_EQ(place.Read("Exported Code.txt"), "x = 1");
}

TEST_F(QuickExport, TakesLinesAndStandardInput) {
  Note({"--lines", "3:4"});
  EXPECT_EQ(place.Read("Exported Code.txt"), "Work\r\nEnd If");
  EXPECT_EQ(place.Run({"export", "--quick", "-q", "-"}, "y = 2\n").error, "");
  EXPECT_EQ(place.Read("Exported Code.txt"), "y = 2");
}

TEST_F(QuickExport, IsTextAlsoWhenThatIsSaid) {
  Note({"--format", "text"});
  EXPECT_EQ(place.Read("Exported Code.txt"), kMessyAsText);
}

TEST_F(QuickExport, NeedsItsFolder) {
  EXPECT_EQ(ErrorOf({"--set", "QuickExportPath=/none/such", "m.bas"}),
            "brimwork: /none/such: there is no such folder; make it, or name another with "
            "\"brimwork settings set QuickExportPath FOLDER\"\n");
  EXPECT_THAT(ErrorOf({"--set", "QuickExportPath=" + In("m.bas"), "m.bas"}),
              HasSubstr("m.bas: this is no folder; "));
  place.UnsetVariable("HOME");
  EXPECT_EQ(ErrorOf({"m.bas"}),
            "brimwork: the folder for Quick Export is not known: set HOME, or \"brimwork settings "
            "set QuickExportPath FOLDER\"\n");
}

TEST_F(QuickExport, NeverReplacesTheSource) {
  place.Write("Exported Code.txt", kMessy);
  EXPECT_THAT(ErrorOf({"Exported Code.txt"}), HasSubstr("this is the file that is exported"));
  EXPECT_EQ(place.Read("Exported Code.txt"), kMessy);
}

TEST_F(QuickExport, WritesNothingWhenTheModuleCannotBeRead) {
  place.Write("b.bas", "\x81\n");
  EXPECT_THAT(ErrorOf({"b.bas"}), testing::StartsWith("brimwork: b.bas:1:1: "));
  EXPECT_FALSE(fs::exists(place / "Exported Code.txt"));
}

TEST_F(QuickExport, RefusesOptionsThatDoNotGoWithIt) {
  EXPECT_EQ(ErrorOf({"--format", "rtf", "m.bas"}),
            "brimwork: --quick exports text: leave out --format rtf\n");
  EXPECT_THAT(ErrorOf({"-o", "x.txt", "m.bas"}), HasSubstr("leave out --output"));
  EXPECT_THAT(ErrorOf({"--force", "m.bas"}), HasSubstr("leave out --force"));
  const std::string oneFile =
      "brimwork: --quick exports one file: name one file, not a folder or a project\n";
  EXPECT_EQ(ErrorOf({"m.bas", "n.bas"}), oneFile);
  EXPECT_EQ(ErrorOf({"."}), oneFile);
}

}  // namespace export_quick_test
}  // namespace brimwork

#include "memory/xdg_shell_folders.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>

#include "environment/run_time_error.h"
#include "support/scoped_variable.h"
#include "support/temporary_folder.h"

namespace brimwork {
namespace xdg_shell_folders_test {

struct XdgShellFoldersTest : testing::Test {
  void Configure(std::string_view lines) {
    std::filesystem::create_directories(home / ".config");
    WriteBytes(home / ".config/user-dirs.dirs", lines);
  }

  std::string Desktop() { return XdgShellFolders().SpecialFolderPath(0); }

  TemporaryFolder home;
  ScopedVariable homeVariable{"HOME", home.Path().string()};
  ScopedVariable configVariable{"XDG_CONFIG_HOME", std::nullopt};
};

TEST_F(XdgShellFoldersTest, TheDesktopIsTheFolderThatTheUserHasConfigured) {
  Configure("# my folders\nXDG_DESKTOP_DIR=\"$HOME/Schreibtisch\"\nXDG_MUSIC_DIR=\"/music\"\n");
  EXPECT_EQ(Desktop(), (home / "Schreibtisch").string());
}

TEST_F(XdgShellFoldersTest, AnAbsolutePathIsTakenAsItStands) {
  Configure("XDG_DESKTOP_DIR=\"/data/desk\"\n");
  EXPECT_EQ(Desktop(), "/data/desk");
}

TEST_F(XdgShellFoldersTest, EscapedCharactersAndBlanksAreRead) {
  Configure("  XDG_DESKTOP_DIR = \"/data/\\\"my\\\" \\$desk\\\\\"  ");
  EXPECT_EQ(Desktop(), "/data/\"my\" $desk\\");
}

TEST_F(XdgShellFoldersTest, APathHasNoTrailingSlash) {
  Configure("XDG_DESKTOP_DIR=\"$HOME/\"\n");
  EXPECT_EQ(Desktop(), home.Path().string());
  Configure("XDG_DESKTOP_DIR=\"/\"\n");
  EXPECT_EQ(Desktop(), "/");
}

TEST_F(XdgShellFoldersTest, TheLastLineThatSetsTheFolderCounts) {
  Configure("XDG_DESKTOP_DIR=\"/one\"\nXDG_DESKTOP_DIR=\"/two\"\n");
  EXPECT_EQ(Desktop(), "/two");
}

TEST_F(XdgShellFoldersTest, LinesThatSetNoUsablePathDoNotCount) {
  std::filesystem::create_directory(home / "Desktop");
  Configure(
      "XDG_DESKTOP_DIR=\"relative\"\n"
      "XDG_DESKTOP_DIR=\"/not closed\n"
      "XDG_DESKTOP_DIR=/not/quoted\n"
      "XDG_DESKTOP_DIR=\"$HOMELESS/x\"\n"
      "XDG_DESKTOP_DIRS=\"/other\"\n"
      "#XDG_DESKTOP_DIR=\"/comment\"\n");
  EXPECT_EQ(Desktop(), (home / "Desktop").string());
}

TEST_F(XdgShellFoldersTest, TheConfigurationFolderMayBeElsewhere) {
  std::filesystem::create_directory(home / "conf");
  WriteBytes(home / "conf/user-dirs.dirs", "XDG_DESKTOP_DIR=\"/elsewhere\"\n");
  const ScopedVariable elsewhere("XDG_CONFIG_HOME", (home / "conf").string());
  EXPECT_EQ(Desktop(), "/elsewhere");
}

TEST_F(XdgShellFoldersTest, WithoutConfigurationItIsDesktopInTheHomeFolderWhenThatExists) {
  std::filesystem::create_directory(home / "Desktop");
  EXPECT_EQ(Desktop(), (home / "Desktop").string());
}

TEST_F(XdgShellFoldersTest, WithoutAnyDesktopItIsTheHomeFolder) {
  EXPECT_EQ(Desktop(), home.Path().string());
}

TEST_F(XdgShellFoldersTest, AnotherFolderRaisesErrorFive) {
  try {
    XdgShellFolders().SpecialFolderPath(5);
    FAIL() << "no error was raised";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Number(), error_number::kInvalidProcedureCall);
    EXPECT_STREQ(error.what(), "there is no special folder 5");
  }
}

TEST_F(XdgShellFoldersTest, AnUnknownHomeFolderRaisesErrorFive) {
  for (const std::optional<std::string>& value : {std::optional<std::string>(), {"relative"}}) {
    const ScopedVariable unset("HOME", value);
    EXPECT_THROW(Desktop(), RunTimeError);
  }
}

}  // namespace xdg_shell_folders_test
}  // namespace brimwork

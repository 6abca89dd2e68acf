#include "windows/desktop/system_shell.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "environment/resume_next.h"

namespace brimwork::windows {
namespace system_shell_test {

TEST(SystemShellFolders, KnowsTheDesktopsFolder) {
  const std::string path = SystemShellFolders().SpecialFolderPath(0);
  EXPECT_TRUE(std::filesystem::is_directory(path)) << path;
}

TEST(SystemShellFolders, RaisesErrorFiveForAFolderThatThereIsNot) {
  const auto error = ResumeNext([] { SystemShellFolders().SpecialFolderPath(0x3FF); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Number(), 5);
}

TEST(SystemShell, RaisesErrorFiveForAFileThatThereIsNot) {
  const auto error =
      ResumeNext([] { SystemShell().ShellExecute("Open", "C:\\none\\such.txt", "", ""); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Number(), 5);
}

TEST(ModuleApp, IsInTheFolderOfItsFile) {
  ModuleApp app(GetModuleHandleW(nullptr));
  wchar_t path[MAX_PATH];
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  EXPECT_EQ(std::filesystem::path(app.Path()), std::filesystem::path(path).parent_path());
  EXPECT_EQ(app.Instance(), reinterpret_cast<InstanceHandle>(GetModuleHandleW(nullptr)));
}

}  // namespace system_shell_test
}  // namespace brimwork::windows

#include "core/recent_project.h"

#include "core/entry_builder.h"
#include "environment/text.h"
#include "settings/modRegistry.h"

namespace brimwork {
namespace {

constexpr std::string_view kOptionsKey = "Software\\Microsoft\\Visual Basic\\6.0";
constexpr int kFirstRecentProject = 15;  // of the "File" menu's controls

std::string ReadOption(Registry& registry, std::string_view name) {
  std::string value;
  ReadRegistryValue(registry, kHiveCurrentUser, kOptionsKey, name, value);
  return value;
}

/// What stands before the last backslash, "" when there is none.
std::string_view FolderOf(std::string_view path) {
  const std::size_t end = path.rfind('\\');
  return end == std::string_view::npos ? std::string_view() : path.substr(0, end);
}

}  // namespace

StartOptions ReadStartOptions(Registry& registry) {
  return {.promptForProject = ReadOption(registry, "PromptForProjectOnStartup"),
          .templatesDirectory = ReadOption(registry, "TemplatesDirectory")};
}

bool LiesBesideProgram(std::string_view folder, std::string_view programPath) {
  const std::string programFolder = FoldName(FolderOf(programPath));
  if (programFolder.empty()) return false;
  return (FoldName(TrimRight(folder, "\\")) + '\\').starts_with(programFolder + '\\');
}

void OpenRecentProject(VBE& vbe) {
  BarOfName(vbe, "File")->Controls()->Item(kFirstRecentProject)->Execute();
}

}  // namespace brimwork

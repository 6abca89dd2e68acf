#include "memory/xdg_shell_folders.h"

#include <filesystem>
#include <fstream>
#include <optional>

#include "environment/run_time_error.h"
#include "environment/text.h"
#include "memory/user_folders.h"

namespace brimwork {
namespace {

namespace fs = std::filesystem;

constexpr int kDesktop = 0;
constexpr std::string_view kDesktopVariable = "XDG_DESKTOP_DIR";

/// The text between the quotes that value starts with, a backslash taking the next character as it
/// is; nothing without both quotes.
std::optional<std::string> Unquoted(std::string_view value) {
  if (!value.starts_with('"')) return std::nullopt;
  std::string text;
  for (std::size_t at = 1; at < value.size(); ++at) {
    if (value[at] == '"') return text;
    if (value[at] == '\\' && at + 1 < value.size()) ++at;
    text += value[at];
  }
  return std::nullopt;
}

/// The folder that a line of the file sets for the desktop; nothing for every other line, and for
/// a path that is neither absolute nor below $HOME.
std::optional<std::string> DesktopInLine(std::string_view line, const std::string& home) {
  constexpr std::string_view kHomeVariable = "$HOME";
  line = TrimBlanksAndTabs(line);
  if (!line.starts_with(kDesktopVariable)) return std::nullopt;
  line = TrimBlanksAndTabs(line.substr(kDesktopVariable.size()));
  if (!line.starts_with('=')) return std::nullopt;
  const std::optional<std::string> path = Unquoted(TrimBlanksAndTabs(line.substr(1)));
  if (!path) return std::nullopt;
  if (path->starts_with('/')) return path;
  if (*path == kHomeVariable) return home;
  if (path->starts_with(std::string(kHomeVariable) + "/"))
    return home + path->substr(kHomeVariable.size());
  return std::nullopt;
}

/// As in a shell, the last line that sets the folder counts.
std::optional<std::string> ConfiguredDesktop(const std::string& home) {
  std::ifstream file(ConfigFolder() / "user-dirs.dirs");
  std::optional<std::string> desktop;
  for (std::string line; std::getline(file, line);) {
    if (auto found = DesktopInLine(line, home)) desktop = std::move(found);
  }
  return desktop;
}

std::string WithoutTrailingSlash(std::string path) {
  while (path.size() > 1 && path.ends_with('/')) path.pop_back();
  return path;
}

[[noreturn]] void Refuse(const std::string& problem) {
  throw RunTimeError(error_number::kInvalidProcedureCall, problem);
}

}  // namespace

std::string XdgShellFolders::SpecialFolderPath(int folderId) {
  if (folderId != kDesktop) Refuse("there is no special folder " + std::to_string(folderId));
  const std::string home = WithoutTrailingSlash(HomeFolder().string());
  if (home.empty()) Refuse("the home folder is not known: set HOME");
  if (auto desktop = ConfiguredDesktop(home)) return WithoutTrailingSlash(std::move(*desktop));
  std::error_code ignored;
  const fs::path usual = fs::path(home) / "Desktop";
  return fs::is_directory(usual, ignored) ? usual.string() : home;
}

}  // namespace brimwork

#include "memory/project_file.h"

#include <algorithm>
#include <filesystem>

#include "environment/text.h"
#include "memory/disk_file.h"
#include "memory/listed_path.h"
#include "memory/project_lines.h"
#include "memory/source_text.h"
#include "memory/utf8_path.h"

namespace brimwork {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kGroupKeys[] = {"StartupProject", "Project"};
constexpr std::string_view kSourceExtensions[] = {".bas", ".cls", ".frm", ".ctl",
                                                  ".pag", ".dob", ".dsr"};

template <typename Names>
bool IsAmong(std::string_view name, const Names& names) {
  return std::any_of(std::begin(names), std::end(names),
                     [name](std::string_view each) { return EqualNames(each, name); });
}

std::string ExtensionOf(std::string_view path) { return TextOf(PathOf(path).extension()); }

fs::path FolderOf(const std::string& path) { return PathOf(path).parent_path(); }

ListedFile Listed(const ProjectLine& line, const fs::path& folder) {
  const std::string_view listedAs = ComponentIn(line.value).file;
  const ResolvedPath resolved = ResolveListedPath(folder, listedAs);
  return {std::string(listedAs), TextOf(resolved.path), resolved.outside, line.number};
}

std::string ReadText(const std::string& path, const std::string& encoding) {
  return DecodeSource(ReadWholeFile(path).bytes, path, encoding).text;
}

std::string NameIn(std::string_view text, const std::string& path) {
  std::string name;
  for (const ProjectLine& line : ProjectLinesOf(text)) {
    if (EqualNames(line.key, "Name")) name = Unquoted(line.value);
  }
  return name.empty() ? TextOf(PathOf(path).stem()) : name;
}

/// Project files of a folder, sorted; none when it cannot be listed.
std::vector<std::string> ProjectsIn(const fs::path& folder) {
  std::vector<std::string> projects;
  std::error_code ignored;
  const fs::path listed = folder.empty() ? fs::path(".") : folder;
  for (fs::directory_iterator entry(listed, ignored), end; entry != end; entry.increment(ignored)) {
    const std::string path = TextOf(entry->path());
    if (EqualNames(ExtensionOf(path), ".vbp")) projects.push_back(path);
  }
  std::sort(projects.begin(), projects.end());
  return projects;
}

bool NamesFile(std::string_view text, const fs::path& folder, const fs::path& source) {
  const std::string fileName = TextOf(source.filename());
  const auto names = [&](const ProjectLine& line) {
    if (!NamesComponent(line)) return false;
    // Looking for a file on the disk costs more than comparing names.
    if (!EqualNames(ListedFileName(ComponentIn(line.value).file), fileName)) return false;
    std::error_code ignored;
    return fs::equivalent(PathOf(Listed(line, folder).path), source, ignored);
  };
  return std::ranges::any_of(ProjectLinesOf(text), names);
}

class SourceFileSearch {
 public:
  explicit SourceFileSearch(const std::function<void(const SourceError&)>& report)
      : report_(report) {}

  void Search(const fs::path& folder) {
    std::error_code error;
    fs::directory_iterator entry(folder, error);
    if (error) throw SourceError(TextOf(folder), "cannot list the folder: " + error.message());
    for (const fs::directory_iterator end; entry != end;) {
      Take(*entry);
      entry.increment(error);
      if (error) throw SourceError(TextOf(folder), "cannot list the folder: " + error.message());
    }
  }

  std::vector<std::string> Sorted() {
    std::sort(files_.begin(), files_.end());
    return std::move(files_);
  }

 private:
  void Take(const fs::directory_entry& entry) {
    std::error_code ignored;
    const std::string name = TextOf(entry.path().filename());
    if (entry.is_directory(ignored)) {
      if (name.starts_with('.') || entry.is_symlink(ignored)) return;
      try {
        Search(entry.path());
      } catch (const SourceError& error) {
        report_(error);
      }
    } else if (IsSourceFileName(name)) {
      files_.push_back(TextOf(entry.path()));
    }
  }

  const std::function<void(const SourceError&)>& report_;
  std::vector<std::string> files_;
};

}  // namespace

Project ReadProject(const std::string& path, const std::string& encoding) {
  const std::string text = ReadText(path, encoding);
  Project project{NameIn(text, path), path, {}};
  const fs::path folder = FolderOf(path);
  for (const ProjectLine& line : ProjectLinesOf(text)) {
    if (NamesComponent(line)) project.modules.push_back(Listed(line, folder));
  }
  return project;
}

std::vector<ListedFile> ReadProjectGroup(const std::string& path, const std::string& encoding) {
  const std::string text = ReadText(path, encoding);
  std::vector<ListedFile> projects;
  for (const ProjectLine& line : ProjectLinesOf(text)) {
    if (IsAmong(line.key, kGroupKeys)) projects.push_back(Listed(line, FolderOf(path)));
  }
  return projects;
}

bool IsSourceFileName(std::string_view path) {
  return IsAmong(ExtensionOf(path), kSourceExtensions);
}

std::vector<std::string> FindSourceFiles(const std::string& folder,
                                         const std::function<void(const SourceError&)>& report) {
  SourceFileSearch search(report);
  search.Search(PathOf(folder));
  return search.Sorted();
}

std::string ProjectNameFor(const std::string& sourcePath, const std::string& encoding) {
  const fs::path folder = FolderOf(sourcePath);
  for (const std::string& project : ProjectsIn(folder)) {
    try {
      const std::string text = ReadText(project, encoding);
      if (NamesFile(text, folder, PathOf(sourcePath))) return NameIn(text, project);
    } catch (const SourceError&) {
      // A damaged project names no file; the source file itself can be worked on all the same.
    }
  }
  return {};
}

}  // namespace brimwork

#include "cli/module_addition.h"

#include <algorithm>
#include <filesystem>

#include "environment/text.h"
#include "memory/disk_file.h"
#include "memory/listed_path.h"
#include "memory/project_lines.h"
#include "memory/source_error.h"
#include "memory/source_file.h"

namespace brimwork {
namespace {

namespace fs = std::filesystem;

constexpr const char* kEncoding = "WINDOWS-1252";

void RequireProjectName(const std::string& path) {
  const std::string extension = fs::path(path).extension().string();
  if (EqualNames(extension, ".vbp")) return;
  throw SourceError(path, EqualNames(extension, ".vbg")
                              ? "this is a project group; name one of its projects (.vbp)"
                              : "this is no project; name a .vbp file");
}

FileContent ReadProjectFile(const std::string& path) {
  FileContent content = ReadWholeFile(path);
  if (!IsProjectText(content.bytes)) {
    throw SourceError(path,
                      "this is no project: no line of it names a type, a reference or a file");
  }
  return content;
}

/// The name that a file gives the component in it; "" for a file that cannot be read, which is no
/// hindrance to adding another one.
std::string NameInFile(const fs::path& path) {
  try {
    return SourceFile::Parse(ReadWholeFile(path.string()).bytes, path.string(), kEncoding)
        .ModuleName();
  } catch (const SourceError&) {
    return {};
  }
}

fs::path FolderOf(const std::string& path) { return fs::path(path).parent_path(); }

bool HasComponent(std::string_view project, const std::string& projectPath, std::string_view name) {
  const fs::path folder = FolderOf(projectPath);
  return std::ranges::any_of(ListedComponents(project), [&](const ListedComponent& component) {
    if (!component.name.empty()) return EqualNames(component.name, name);
    return EqualNames(NameInFile(ResolveListedPath(folder, component.file).path), name);
  });
}

std::string FileBytes(std::string_view name, std::string_view text) {
  return std::string("Attribute VB_Name = \"").append(name).append("\"\r\n").append(text) + "\r\n";
}

/// The module's file beside a project: made unless it is there already with the same bytes, and
/// taken away again unless it is kept.
class ModuleFile {
 public:
  /// Throws SourceError for a file of that name, in any letter case, that holds other bytes.
  ModuleFile(const fs::path& folder, const std::string& fileName, const std::string& bytes)
      : path_((folder / fileName).string()) {
    const fs::path found = ResolveListedPath(folder, fileName).path;
    if (found.empty()) {
      CreateWholeFile(path_, [&](const ByteSink& sink) { sink(bytes); });
      isOurs_ = true;
    } else {
      RequireBytes(found.string(), bytes);
    }
  }
  ModuleFile(const ModuleFile&) = delete;
  ModuleFile& operator=(const ModuleFile&) = delete;
  ~ModuleFile() {
    std::error_code ignored;
    if (isOurs_) fs::remove(path_, ignored);
  }

  void Keep() { isOurs_ = false; }

 private:
  static void RequireBytes(const std::string& path, const std::string& bytes) {
    if (ReadWholeFile(path).bytes == bytes) return;
    throw SourceError(path,
                      "there is another file of this name already; rename it or move it away, "
                      "then run again");
  }

  std::string path_;
  bool isOurs_ = false;
};

}  // namespace

ModuleAddition AddModuleToProject(const std::string& projectPath, std::string_view name,
                                  std::string_view text) {
  RequireProjectName(projectPath);
  const FileContent project = ReadProjectFile(projectPath);
  if (HasComponent(project.bytes, projectPath, name)) return ModuleAddition::kWasThere;
  const std::string fileName = std::string(name) + ".bas";
  ModuleFile file(FolderOf(projectPath), fileName, FileBytes(name, text));
  try {
    WriteWholeFile(projectPath, project.snapshot, [&](const ByteSink& sink) {
      sink(WithModuleLine(project.bytes, name, fileName));
    });
  } catch (const SourceError&) {
    // Another run may have listed the file that this one has made.
    if (HasComponent(ReadProjectFile(projectPath).bytes, projectPath, name)) file.Keep();
    throw;
  }
  file.Keep();
  return ModuleAddition::kAdded;
}

}  // namespace brimwork

#include "cli/inputs.h"

#include <algorithm>
#include <filesystem>
#include <set>

#include "environment/text.h"
#include "memory/project_file.h"

namespace brimwork {
namespace {

namespace fs = std::filesystem;

/// What the editor calls a project that nobody named.
constexpr const char* kUnnamedProject = "Project1";

bool HasExtension(const fs::path& path, std::string_view extension) {
  return EqualNames(path.extension().string(), extension);
}

std::function<std::string()> NameOfProjectAround(const std::string& sourcePath,
                                                 const std::string& encoding) {
  return [sourcePath, encoding] {
    const std::string name = sourcePath.empty() ? "" : ProjectNameFor(sourcePath, encoding);
    return name.empty() ? std::string(kUnnamedProject) : name;
  };
}

class Collector {
 public:
  Collector(std::string stdinFileName, std::string encoding)
      : stdinFileName_(std::move(stdinFileName)), encoding_(std::move(encoding)) {}

  /// What goes wrong with one path is an error of its own and leaves the others alone.
  void Add(const std::string& path) {
    try {
      AddPath(path);
    } catch (const std::exception& error) {
      inputs_.errors.push_back(error.what());
    }
  }

  Inputs Finish(bool oneNamed) {
    inputs_.namesOneFile = oneNamed && !fromList_;
    return std::move(inputs_);
  }

 private:
  void AddPath(const std::string& path) {
    std::error_code ignored;
    if (path == kStandardInputPath) {
      AddFile(path, NameOfProjectAround(stdinFileName_, encoding_));
    } else if (fs::is_directory(path, ignored)) {
      AddFolder(path);
    } else if (HasExtension(path, ".vbp")) {
      AddProject(path);
    } else if (HasExtension(path, ".vbg")) {
      AddGroup(path);
    } else {
      AddFile(path, NameOfProjectAround(path, encoding_));
    }
  }

  void AddFolder(const std::string& path) {
    fromList_ = true;
    const auto found = FindSourceFiles(
        path, [this](const SourceError& error) { inputs_.errors.push_back(error.what()); });
    for (const std::string& file : found) AddFile(file, NameOfProjectAround(file, encoding_));
    if (found.empty()) inputs_.notes.push_back(path + ": holds no Visual Basic source files");
  }

  void AddProject(const std::string& path) {
    fromList_ = true;
    const Project project = ReadProject(path, encoding_);
    for (const ListedFile& module : project.modules) {
      if (!IsUsable(path, module)) continue;
      AddFile(module.path, [name = project.name] { return name; });
    }
  }

  void AddGroup(const std::string& path) {
    fromList_ = true;
    if (!IsNew(path)) return;  // a group may name itself
    for (const ListedFile& project : ReadProjectGroup(path, encoding_)) {
      if (IsUsable(path, project)) Add(project.path);
    }
  }

  bool IsUsable(const std::string& listedIn, const ListedFile& file) {
    const std::string where = listedIn + ':' + std::to_string(file.line) + ": ";
    if (file.outside) {
      inputs_.notes.push_back(where + "warning: \"" + file.listedAs +
                              "\" lies outside the folder and is left alone; name the file itself "
                              "to work on it");
    } else if (file.path.empty()) {
      inputs_.errors.push_back(where + "there is no file \"" + file.listedAs + '"');
    }
    return !file.outside && !file.path.empty();
  }

  void AddFile(const std::string& path, std::function<std::string()> projectName) {
    if (!IsNew(path)) return;
    inputs_.files.push_back({path, std::move(projectName)});
  }

  /// True the first time that a file is come upon, by whatever path.
  bool IsNew(const std::string& path) {
    std::error_code unknown;
    const fs::path canonical = fs::weakly_canonical(path, unknown);
    return seen_.insert(unknown ? path : canonical.string()).second;
  }

  std::string stdinFileName_;
  std::string encoding_;
  Inputs inputs_;
  std::set<std::string> seen_;
  bool fromList_ = false;
};

}  // namespace

Inputs CollectInputs(const std::vector<std::string>& paths, const std::string& stdinFileName,
                     const std::string& encoding) {
  Collector collector(stdinFileName, encoding);
  for (const std::string& path : paths) collector.Add(path);
  return collector.Finish(paths.size() == 1);
}

}  // namespace brimwork

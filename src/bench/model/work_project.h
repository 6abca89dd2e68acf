// An open project of the workbench: its components with the files that they came from.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "bench/model/work_component.h"
#include "memory/memory_project.h"

namespace brimwork::bench {

class WorkProject : public MemoryProject {
 public:
  /// Reads a .vbp file and the files that it names. Throws SourceError, naming file and line, for
  /// one that is not there or cannot be read.
  static std::shared_ptr<WorkProject> Read(const std::filesystem::path& path);

  /// A project of one source file. Throws SourceError.
  static std::shared_ptr<WorkProject> OfFile(const std::filesystem::path& path);

  explicit WorkProject(std::string name);

  /// Raises error 5 for a text that is no name.
  void SetName(std::string_view name);

  /// "" for one that was never saved.
  const std::filesystem::path& Path() const { return path_; }
  int Type() const {
    return type_;
  }  // 0 standard program, 1 ActiveX program, 2 ActiveX library, 3 controls

  /// True when a component is, or when the project file would be written with other bytes.
  bool IsDirty() const;

  /// Writes what changed, each file in one step. Throws SourceError for the first file that cannot
  /// be written; what comes behind it stays changed.
  void Save();

  /// In the order of the project file; added ones behind them.
  const std::vector<std::shared_ptr<WorkComponent>>& Components() const { return components_; }

  std::string description;
  std::string helpFile;

  // Told of each change of its kind; may be empty.

  std::function<void()> onChange;
  std::function<void(WorkComponent&)> onRemove;

 protected:
  std::shared_ptr<MemoryComponent> Make(std::string name, int type, std::string_view text) override;
  void NoteAdded() override;
  void NoteRemoved(MemoryComponent& component) override;
  void NoteRenamed(MemoryComponent& component) override;

 private:
  void Refresh();

  std::string projectName_;
  std::filesystem::path path_;
  int type_ = 0;
  std::vector<std::shared_ptr<WorkComponent>> components_;
};

}  // namespace brimwork::bench

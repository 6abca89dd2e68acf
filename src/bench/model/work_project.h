// An open project of the workbench: its components with the files that they came from.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "bench/model/project_document.h"
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
  explicit WorkProject(ProjectDocument document);

  /// Raises error 5 for a text that is no name.
  void SetName(std::string_view name);

  /// "" for one that was never saved.
  std::filesystem::path Path() const;
  int Type() const {
    return type_;
  }  // 0 standard program, 1 ActiveX program, 2 ActiveX library, 3 controls

  /// True when a component is, or when the project file says something else.
  bool IsDirty() const;

  /// Writes what changed, each file in one step; a new component gets a file of its name beside the
  /// project's. Throws SourceError for the first file that cannot be written; what comes behind it
  /// stays changed.
  void Save();

  /// The same for one of its components alone; a new one is not listed before the project is saved.
  void Save(WorkComponent& component);

  /// Makes the file a component of the project and hands it back; the file is left as it is. Raises
  /// error 32813 for a name that another component has, throws SourceError for what cannot be read.
  std::shared_ptr<WorkComponent> AddFile(const std::filesystem::path& path);

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
  void AddListed(const ProjectEntry& entry);
  std::shared_ptr<WorkComponent> CodeListed(const ProjectEntry& entry) const;
  std::shared_ptr<WorkComponent> FileListed(const ProjectEntry& entry) const;
  void Refresh();
  std::filesystem::path Folder() const;
  std::vector<ComponentListing> Listings() const;
  bool IsFileDirty() const;
  std::string FileText(const std::vector<ComponentListing>& listings) const;
  void SaveFile();

  std::string projectName_;
  std::unique_ptr<ProjectDocument> document_;  // null for a project without a file
  int type_ = 0;
  std::vector<std::shared_ptr<WorkComponent>> components_;
};

}  // namespace brimwork::bench

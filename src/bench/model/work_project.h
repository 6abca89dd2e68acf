// An open project of the workbench: its components with the files that they came from.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "memory/memory_project.h"
#include "memory/source_file.h"

namespace brimwork::bench {

class WorkComponent : public MemoryComponent {
 public:
  /// "" for one that was never saved.
  const std::filesystem::path& Path() const;

  /// True when its text differs from the file.
  bool IsDirty() const;

  /// True for forms and the like, which have a designer beside their code.
  bool HasDesigner() const;

  /// What Property pages show of it.
  std::string description;
};

class WorkProject : public MemoryProject {
 public:
  /// "" for one that was never saved.
  const std::filesystem::path& Path() const;
  int Type() const;  // 0 standard program, 1 ActiveX program, 2 ActiveX library, 3 controls
  bool IsDirty() const;

  /// In the order of the project file.
  const std::vector<std::shared_ptr<WorkComponent>>& Components() const;

  std::string description;
  std::string helpFile;
};

}  // namespace brimwork::bench

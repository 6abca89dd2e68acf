// A component of an open project with the file that it came from.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

#include "bench/model/component_file.h"
#include "bench/model/project_changes.h"
#include "memory/memory_project.h"

namespace brimwork::bench {

class WorkComponent : public MemoryComponent {
 public:
  /// One with code. file's text is in the module.
  WorkComponent(int type, std::shared_ptr<MemoryCodeModule> module, ComponentFile file);

  /// One without code: a resource file or a related document, under its file's name.
  WorkComponent(int type, std::string name, std::filesystem::path path);

  void SetName(std::string_view name) override;

  /// "" for one that was never saved.
  const std::filesystem::path& Path() const;

  /// True when its text or name differs from the file, or when there is no file yet.
  bool IsDirty() const;

  /// True for forms and the like, which have a designer beside their code.
  bool HasDesigner() const;

  /// Writes the file if anything in it changed, in one step. Throws SourceError when that fails, or
  /// when someone else changed the file since it was read; it is as it was then. The component has
  /// a path.
  void Save();

  /// Writes another file, which is the component's from now on; what is there is replaced. Pictures
  /// that a form keeps in a file beside its own go along. Raises error 438 for one without code,
  /// throws SourceError.
  void SaveAs(const std::filesystem::path& path);

  /// The same for a file that must not be there yet.
  void SaveAsNew(const std::filesystem::path& path);

  /// How its project's file lists it; no file while it does not.
  const Listing& Listed() const { return listed_; }
  void SetListed(Listing listing);

  /// How a project file in that folder is to list it.
  Listing ListingIn(const std::filesystem::path& folder) const;

  /// What Property pages show of it. Only the file's VB_Description gives it; a change is not
  /// saved.
  std::string description;

 private:
  ComponentFile& FileWithCode() const;

  std::unique_ptr<ComponentFile> file_;  // null for one without code
  std::filesystem::path path_;           // of one without code
  Listing listed_;
  std::filesystem::path listedPath_;  // what listed_ means
};

}  // namespace brimwork::bench

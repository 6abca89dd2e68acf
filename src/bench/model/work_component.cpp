#include "bench/model/work_component.h"

#include <system_error>
#include <utility>

#include "bench/model/component_kind.h"
#include "environment/run_time_error.h"
#include "environment/text.h"
#include "memory/listed_path.h"

namespace brimwork::bench {
namespace {

namespace fs = std::filesystem;

/// A path as project files write it: from their folder, with backslashes.
std::string ListedAs(const fs::path& path, const fs::path& folder) {
  const fs::path relative = path.lexically_relative(folder);
  const std::string listed = (relative.empty() ? path : relative).generic_string();
  return Replace(listed, "/", "\\");
}

/// A form's file names the file of its pictures without a folder, so that has to lie beside it.
void CopyPictures(const fs::path& from, const fs::path& to) {
  std::string name = from.filename().string();
  if (name.empty() || from.parent_path() == to.parent_path()) return;
  name.back() = 'x';  // .frx beside .frm, .ctx beside .ctl
  const fs::path pictures = ResolveListedPath(from.parent_path(), name).path;
  if (pictures.empty() || pictures == from) return;
  std::error_code ignored;
  fs::copy_file(pictures, to.parent_path() / pictures.filename(), fs::copy_options::skip_existing,
                ignored);
}

}  // namespace

WorkComponent::WorkComponent(int type, std::shared_ptr<MemoryCodeModule> module, ComponentFile file)
    : MemoryComponent(file.Source().ModuleName(), type, std::move(module)),
      file_(std::make_unique<ComponentFile>(std::move(file))) {
  Code()->GiveLinesBelowToTheLastProcedure();
}

WorkComponent::WorkComponent(int type, std::string name, fs::path path)
    : MemoryComponent(std::move(name), type, nullptr), path_(std::move(path)) {}

void WorkComponent::SetName(std::string_view name) {
  MemoryComponent::SetName(name);
  if (file_ != nullptr) file_->Source().SetModuleName(name);
}

const fs::path& WorkComponent::Path() const { return file_ != nullptr ? file_->Path() : path_; }

bool WorkComponent::IsDirty() const { return file_ != nullptr && file_->Differs(Code()->Text()); }

bool WorkComponent::HasDesigner() const { return HasDesignerFor(Kind()); }

void WorkComponent::Save() {
  if (IsDirty()) file_->Write(Code()->Text());
}

void WorkComponent::SaveAs(const fs::path& path) {
  const fs::path before = FileWithCode().Path();
  file_->WriteTo(path, Code()->Text());
  if (HasDesigner()) CopyPictures(before, path);
}

void WorkComponent::SaveAsNew(const fs::path& path) {
  const fs::path before = FileWithCode().Path();
  file_->WriteNew(path, Code()->Text());
  if (HasDesigner()) CopyPictures(before, path);
}

void WorkComponent::SetListed(Listing listing) {
  listed_ = std::move(listing);
  listedPath_ = Path();
}

Listing WorkComponent::ListingIn(const fs::path& folder) const {
  const bool isListed = !listed_.file.empty() && listedPath_ == Path();
  return {LastName(), isListed ? listed_.file : ListedAs(Path(), folder)};
}

ComponentFile& WorkComponent::FileWithCode() const {
  if (file_ != nullptr) return *file_;
  throw RunTimeError(error_number::kNotSupportedByObject,
                     "the component \"" + LastName() + "\" has no code");
}

}  // namespace brimwork::bench

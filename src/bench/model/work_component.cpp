#include "bench/model/work_component.h"

#include <utility>

#include "bench/model/component_kind.h"

namespace brimwork::bench {

namespace fs = std::filesystem;

WorkComponent::WorkComponent(int type, std::shared_ptr<MemoryCodeModule> module, ComponentFile file)
    : MemoryComponent(file.Source().ModuleName(), type, std::move(module)),
      file_(std::make_unique<ComponentFile>(std::move(file))) {}

WorkComponent::WorkComponent(int type, fs::path path)
    : MemoryComponent(path.filename().string(), type, nullptr), path_(std::move(path)) {}

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

void WorkComponent::SaveAs(const fs::path& path) { file_->WriteTo(path, Code()->Text()); }

void WorkComponent::SaveAsNew(const fs::path& path) { file_->WriteNew(path, Code()->Text()); }

}  // namespace brimwork::bench

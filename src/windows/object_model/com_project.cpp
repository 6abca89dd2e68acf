#include "windows/object_model/com_project.h"

#include "windows/object_model/com_code_module.h"

namespace brimwork::windows {

std::string ComComponent::Name() { return ToText(component_.Get(L"Name")); }

void ComComponent::SetName(std::string_view name) { component_.Put(L"Name", Argument(name)); }

int ComComponent::Type() { return ToNumber(component_.Get(L"Type")); }

std::shared_ptr<CodeModule> ComComponent::Module() {
  return component_.GetAs<ComCodeModule>(L"CodeModule");
}

std::string ComProject::Name() { return ToText(project_.Get(L"Name")); }

std::vector<std::shared_ptr<VBComponent>> ComProject::VBComponents() {
  return Components().Items<ComComponent, VBComponent>();
}

std::shared_ptr<VBComponent> ComProject::AddVBComponent(int type) {
  return Components().CallExisting<ComComponent>(L"Add", type);
}

DispatchObject ComProject::Components() const {
  return project_.Part(ObjectKind::kComponents, L"VBComponents");
}

}  // namespace brimwork::windows

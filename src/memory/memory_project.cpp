#include "memory/memory_project.h"

#include <algorithm>

#include "environment/run_time_error.h"
#include "environment/text.h"

namespace brimwork {

void MemoryComponent::SetName(std::string_view name) {
  const auto other = project_.ComponentOfName(name);
  if (other != nullptr && other.get() != this) {
    throw RunTimeError(error_number::kNameConflict,
                       "another component has the name \"" + std::string(name) + "\"");
  }
  name_ = name;
  if (module_ != nullptr) module_->SetName(name_);
}

std::vector<std::shared_ptr<VBComponent>> MemoryProject::VBComponents() {
  return {components_.begin(), components_.end()};
}

std::shared_ptr<VBComponent> MemoryProject::AddVBComponent(int type) {
  if (type != component_type::kStandardModule) {
    throw RunTimeError(error_number::kInvalidProcedureCall,
                       "components of type " + std::to_string(type) + " cannot be added");
  }
  return AddModule(UnusedName(), requiresDeclarations ? "Option Explicit\r\n" : "");
}

std::shared_ptr<MemoryComponent> MemoryProject::AddModule(std::string name, std::string_view text) {
  auto module = std::make_shared<MemoryCodeModule>(name, ModuleText::FromText(std::string(text)));
  components_.push_back(std::make_shared<MemoryComponent>(
      *this, std::move(name), component_type::kStandardModule, std::move(module)));
  return components_.back();
}

std::shared_ptr<MemoryComponent> MemoryProject::ComponentOfName(std::string_view name) const {
  const auto found = std::ranges::find_if(
      components_, [&](const auto& component) { return EqualNames(component->Name(), name); });
  return found == components_.end() ? nullptr : *found;
}

std::string MemoryProject::UnusedName() const {
  int number = 1;
  while (ComponentOfName("Module" + std::to_string(number)) != nullptr) ++number;
  return "Module" + std::to_string(number);
}

}  // namespace brimwork

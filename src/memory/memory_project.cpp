#include "memory/memory_project.h"

#include <algorithm>
#include <utility>

#include "environment/run_time_error.h"
#include "environment/text.h"

namespace brimwork {
namespace {

constexpr std::string_view kRequiredDeclarations = "Option Explicit\r\n";

bool IsInName(char c) {
  const char upper = ToUpperAscii(c);
  return (upper >= 'A' && upper <= 'Z') || IsDigit(c) || c == '_' || (c & '\x80') != 0;
}

std::string_view StemOf(int type) {
  return type == component_type::kClassModule ? "Class" : "Module";
}

}  // namespace

bool IsComponentName(std::string_view text) {
  return !text.empty() && !IsDigit(text[0]) && text[0] != '_' &&
         std::ranges::all_of(text, IsInName);
}

MemoryComponent::MemoryComponent(std::string name, int type,
                                 std::shared_ptr<MemoryCodeModule> module)
    : name_(std::move(name)), type_(type), module_(std::move(module)) {}

void MemoryComponent::SetName(std::string_view name) {
  if (!IsComponentName(name)) {
    throw RunTimeError(error_number::kInvalidProcedureCall,
                       '"' + std::string(name) + "\" is no name for a component");
  }
  const auto other = project_ != nullptr ? project_->ComponentOfName(name) : nullptr;
  if (other != nullptr && other.get() != this) {
    throw RunTimeError(error_number::kNameConflict,
                       "another component has the name \"" + std::string(name) + "\"");
  }
  name_ = name;
  if (module_ != nullptr) module_->SetName(name_);
  if (project_ != nullptr) project_->NoteRenamed(*this);
}

MemoryProject::~MemoryProject() {
  for (const auto& component : components_) component->project_ = nullptr;
}

std::vector<std::shared_ptr<VBComponent>> MemoryProject::VBComponents() {
  return {components_.begin(), components_.end()};
}

std::shared_ptr<VBComponent> MemoryProject::AddVBComponent(int type) {
  if (type != component_type::kStandardModule && type != component_type::kClassModule) {
    throw RunTimeError(error_number::kUnspecified,
                       "components of type " + std::to_string(type) + " cannot be added");
  }
  auto component = Make(UnusedName(type), type, requiresDeclarations ? kRequiredDeclarations : "");
  Add(component);
  return component;
}

std::shared_ptr<MemoryComponent> MemoryProject::AddModule(std::string name, std::string_view text) {
  Add(Make(std::move(name), component_type::kStandardModule, text));
  return components_.back();
}

void MemoryProject::Remove(VBComponent& component) {
  const auto found =
      std::ranges::find_if(components_, [&](const auto& held) { return held.get() == &component; });
  if (found == components_.end()) {
    throw RunTimeError(error_number::kInvalidProcedureCall,
                       "the project has no such component \"" + component.Name() + '"');
  }
  const auto removed = *found;
  components_.erase(found);
  removed->project_ = nullptr;
  NoteRemoved(*removed);
}

std::shared_ptr<MemoryComponent> MemoryProject::ComponentOfName(std::string_view name) const {
  const auto found = std::ranges::find_if(
      components_, [&](const auto& component) { return EqualNames(component->name_, name); });
  return found == components_.end() ? nullptr : *found;
}

std::shared_ptr<MemoryComponent> MemoryProject::Make(std::string name, int type,
                                                     std::string_view text) {
  auto module = std::make_shared<MemoryCodeModule>(name, ModuleText::FromText(std::string(text)));
  return std::make_shared<MemoryComponent>(std::move(name), type, std::move(module));
}

void MemoryProject::Add(std::shared_ptr<MemoryComponent> component) {
  component->project_ = this;
  components_.push_back(std::move(component));
  NoteAdded();
}

std::string MemoryProject::UnusedName(int type) const {
  int number = 1;
  const auto numbered = [&] { return std::string(StemOf(type)) + std::to_string(number); };
  while (ComponentOfName(numbered()) != nullptr) ++number;
  return numbered();
}

}  // namespace brimwork

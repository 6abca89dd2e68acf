#include "bench/model/window_captions.h"

#include "environment/vbe.h"

namespace brimwork::bench {
namespace {

/// text behind what it belongs to, or alone.
std::string Behind(const std::string& owner, const std::string& text) {
  return owner.empty() ? text : owner + " - " + text;
}

std::string NameOf(MemoryProject* project) {
  return project != nullptr ? project->Name() : std::string();
}

std::string KindName(int type) {
  switch (type) {
    case component_type::kForm:
      return "Form";
    case component_type::kMdiForm:
      return "MDIForm";
    case component_type::kPropertyPage:
      return "PropertyPage";
    case component_type::kUserControl:
      return "UserControl";
    case component_type::kUserDocument:
      return "UserDocument";
    default:
      return "Designer";
  }
}

}  // namespace

std::string MainCaption(MemoryProject* project) {
  return Behind(NameOf(project), "Brimwork Bench [design]");
}

std::string ProjectCaption(MemoryProject* project) {
  return project != nullptr ? "Project - " + project->Name() : "Project";
}

std::string PropertiesCaption(const WorkComponent* component) {
  return component != nullptr ? "Properties - " + component->LastName() : "Properties";
}

std::string CodeCaption(MemoryProject* project, const WorkComponent& component) {
  return Behind(NameOf(project), component.LastName() + " (Code)");
}

std::string DesignerCaption(MemoryProject* project, const WorkComponent& component) {
  return Behind(NameOf(project), component.LastName() + " (" + KindName(component.Kind()) + ")");
}

}  // namespace brimwork::bench

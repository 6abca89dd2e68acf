// What the workbench's windows are called.
#pragma once

#include <string>

#include "bench/model/work_project.h"

namespace brimwork::bench {

// project and component may be null where they are pointers: none is open or selected.

std::string MainCaption(MemoryProject* project);
std::string ProjectCaption(MemoryProject* project);
std::string PropertiesCaption(const WorkComponent* component);
std::string CodeCaption(MemoryProject* project, const WorkComponent& component);
std::string DesignerCaption(MemoryProject* project, const WorkComponent& component);

}  // namespace brimwork::bench

// A standard module as a file of its own, added to a project on disk.
#pragma once

#include <string>
#include <string_view>

namespace brimwork {

enum class ModuleAddition {
  kAdded,
  kWasThere,  // the project has a component of that name, in any letter case: nothing was written
};

/// Makes NAME.bas beside the project and lists it there. text: the module's lines joined by CR LF,
/// without attributes. Both files are written whole or not at all, and a file that was made is
/// removed again when the project cannot be written. Throws SourceError for what is no project, for
/// another file of that name, and for what cannot be read or written.
ModuleAddition AddModuleToProject(const std::string& projectPath, std::string_view name,
                                  std::string_view text);

}  // namespace brimwork

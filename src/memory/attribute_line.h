// The attribute lines that the environment keeps in a source file and hides from its editor.
#pragma once

#include <string>
#include <string_view>

namespace brimwork {

/// `Attribute VB_... = ...`, any case: belongs to the module.
bool IsModuleAttribute(std::string_view line);

/// `Attribute name.VB_... = ...`, any case: belongs to a procedure or a variable.
bool IsMemberAttribute(std::string_view line);

/// The name that `Attribute VB_Name = "name"` gives; "" when the line is another one.
std::string ModuleNameIn(std::string_view line);

}  // namespace brimwork

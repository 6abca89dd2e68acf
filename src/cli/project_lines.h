// The lines of a project file as bytes, to put one more module among them and leave every other
// byte as it is.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace brimwork {

/// A component that a project lists. All views are into the project's bytes.
struct ListedComponent {
  std::string_view name;  // "" where the line names a file alone
  std::string_view file;
};

/// False for bytes that no project file consists of: none of its lines says what a project is, has
/// or refers to.
bool IsProjectText(std::string_view bytes);

/// In the project's order.
std::vector<ListedComponent> ListedComponents(std::string_view bytes);

/// The project's bytes with a standard module's line behind the last one of a standard module, else
/// of a component, else behind what the project is and refers to. It ends as the line above it; a
/// file that does not end its last line still does not. IsProjectText is true of bytes.
std::string WithModuleLine(std::string_view bytes, std::string_view name, std::string_view file);

}  // namespace brimwork

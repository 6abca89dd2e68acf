// The lines of a project file: what it names, and the way to put one more module among them and
// leave every other byte as it is.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace brimwork {

/// A `key=value` line. All views are into the text that it was read from.
struct ProjectLine {
  std::string_view key;
  std::string_view value;    // as it stands, but for blanks around it
  std::string_view lineEnd;  // "" for a last line that is not ended
  std::size_t behind = 0;    // offset of the next line
  int number = 0;            // of the line in the file
};

/// The `key=value` lines above the first [section]: what stands in sections belongs to other tools.
std::vector<ProjectLine> ProjectLinesOf(std::string_view text);

/// True for the keys of modules, classes, forms and the like, in any case.
bool NamesComponent(const ProjectLine& line);

/// A component that a project lists. All views are into the project's bytes.
struct ListedComponent {
  std::string_view name;  // "" where the line names a file alone
  std::string_view file;
};

/// What `Name; file` or `file` says, with or without quotes.
ListedComponent ComponentIn(std::string_view value);

/// In the project's order.
std::vector<ListedComponent> ListedComponents(std::string_view bytes);

/// False for bytes that no project file consists of: none of its lines says what a project is, has
/// or refers to.
bool IsProjectText(std::string_view bytes);

/// The project's bytes with a standard module's line behind the last one of a standard module, else
/// of a component, else behind what the project is and refers to. It ends as the line above it; a
/// file that does not end its last line still does not. IsProjectText is true of bytes.
std::string WithModuleLine(std::string_view bytes, std::string_view name, std::string_view file);

/// A value without the quotes around it.
std::string_view Unquoted(std::string_view value);

}  // namespace brimwork

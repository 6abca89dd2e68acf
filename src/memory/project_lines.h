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

/// The project's bytes with a component's line behind the last one of its key ("Class"), else of a
/// component, else behind what the project is and refers to. It ends as the line above it; a file
/// that does not end its last line still does not. IsProjectText is true of bytes.
std::string WithComponentLine(std::string_view bytes, std::string_view key, std::string_view name,
                              std::string_view file);

/// The same for a standard module.
std::string WithModuleLine(std::string_view bytes, std::string_view name, std::string_view file);

/// The project's bytes with another value on the last line of that key, in quotes where the old one
/// is; without such a line one is put behind the last component. IsProjectText is true of bytes.
std::string WithProjectValue(std::string_view bytes, std::string_view key, std::string_view value);

/// The bytes without one of their lines.
std::string WithoutLine(std::string_view bytes, const ProjectLine& line);

/// The bytes with another text in the place of a line's value, quotes included.
std::string WithValueOf(std::string_view bytes, const ProjectLine& line, std::string_view value);

/// A value without the quotes around it.
std::string_view Unquoted(std::string_view value);

}  // namespace brimwork

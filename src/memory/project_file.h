// Project files: which source files a project and a project group name, and which source files a
// folder holds.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "memory/source_error.h"

namespace brimwork {

/// A file that a project or a group names.
struct ListedFile {
  std::string listedAs;  // the path as it stands there
  std::string path;      // the file on disk; "" when there is none
  bool outside = false;  // lies outside the folder that the naming file is in, or is absolute
  int line = 0;          // where it is named
};

struct Project {
  std::string name;  // its Name, else the project file's own name without the extension
  std::string path;
  std::vector<ListedFile> modules;  // in the project's order
};

/// Reads a .vbp file. Paths are resolved from its folder, backslashes being separators and the
/// letter case that of the disk. Throws SourceError when the file cannot be read or decoded.
Project ReadProject(const std::string& path, const std::string& encoding = "WINDOWS-1252");

/// Reads a .vbg file: the .vbp files that it names, in its order. Throws as ReadProject.
std::vector<ListedFile> ReadProjectGroup(const std::string& path,
                                         const std::string& encoding = "WINDOWS-1252");

/// True for the extensions .bas .cls .frm .ctl .pag .dob .dsr, in any case.
bool IsSourceFileName(std::string_view path);

/// All source files in a folder and the folders in it, sorted. Folders whose name starts with a dot
/// are passed over, links to folders are not followed. Throws SourceError when folder itself cannot
/// be listed; a folder in it that cannot be is handed to report.
std::vector<std::string> FindSourceFiles(const std::string& folder,
                                         const std::function<void(const SourceError&)>& report);

/// The name of the project that a source file belongs to: of the first .vbp file in its folder, by
/// the alphabet, that names it. "" when there is none.
std::string ProjectNameFor(const std::string& sourcePath,
                           const std::string& encoding = "WINDOWS-1252");

}  // namespace brimwork

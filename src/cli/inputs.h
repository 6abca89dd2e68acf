// The files that a run works on: named ones, those that a project or a group names, those in a
// folder, and standard input.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace brimwork {

inline constexpr const char* kStandardInputPath = "-";

struct InputFile {
  std::string path;  // "-" is standard input
  std::function<std::string()> projectName;
};

struct Inputs {
  std::vector<InputFile> files;  // each file once
  bool namesOneFile = false;     // the user named one file, not a project, group or folder

  std::vector<std::string> errors;  // one line each; the files they are about are left out
  std::vector<std::string> notes;   // what was left alone on purpose
};

/// stdinFileName: the path that standard input stands for, to find its project; may be "".
/// encoding: of project and group files without a byte-order mark.
Inputs CollectInputs(const std::vector<std::string>& paths, const std::string& stdinFileName,
                     const std::string& encoding = "WINDOWS-1252");

}  // namespace brimwork

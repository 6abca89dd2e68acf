// A folder with a user's files, in which the brimwork command is run as its user would.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "support/posix/program.h"
#include "support/temporary_folder.h"

namespace brimwork {

using Words = std::vector<std::string>;

class Workplace {
 public:
  /// The user has no settings, no locale and no wish about colours.
  Workplace();

  std::filesystem::path operator/(std::string_view name) const { return folder_ / name; }
  const std::filesystem::path& Folder() const { return folder_.Path(); }

  /// Makes the folders that the name goes through.
  void Write(std::string_view name, std::string_view bytes) const;
  std::string Read(std::string_view name) const { return ReadBytes(folder_ / name); }
  void Remove(std::string_view name) const { std::filesystem::remove_all(folder_ / name); }

  void SetVariable(const std::string& name, const std::string& value) { variables_[name] = value; }
  void UnsetVariable(const std::string& name) { variables_.erase(name); }

  ProgramCall CallOf(const Words& arguments, std::string input = {}) const;
  ProgramResult Run(const Words& arguments, std::string input = {}) const {
    return RunProgram(CallOf(arguments, std::move(input)));
  }

  /// A line for /bin/sh, in which "$brimwork" is the command.
  ProgramResult Shell(const std::string& script) const;

  /// Every name in the folder and the folders in it, sorted.
  std::vector<std::string> Names() const;

 private:
  TemporaryFolder folder_;
  std::map<std::string, std::string> variables_;
};

std::vector<std::string> LinesOf(std::string_view text);

/// text with each LF as CR LF.
std::string WithCrLfEnds(std::string_view text);

/// text with each CR LF as LF.
std::string WithLfEnds(std::string_view text);

}  // namespace brimwork

#include "cli/export_names.h"

#include <filesystem>
#include <map>
#include <set>

#include "cli/inputs.h"
#include "cli/source_input.h"
#include "environment/text.h"

namespace brimwork {
namespace {

using FoldedNames = std::set<std::string>;

/// The source's whole name with the extension, numbered from 2 when it is taken; it is then.
std::string TakeFreeName(const std::string& source, const std::string& extension,
                         FoldedNames& taken) {
  std::string name = source + extension;
  for (int number = 2; !taken.insert(FoldName(name)).second; ++number) {
    name = source + '-' + std::to_string(number) + extension;
  }
  return name;
}

}  // namespace

std::string SourceName(const std::string& path, const RunOptions& options) {
  if (path == kStandardInputPath && options.stdinFileName.empty()) return "stdin";
  return std::filesystem::path(ShownPath(path, options)).filename();
}

std::string ExportName(const std::string& source, std::string_view extension) {
  return std::filesystem::path(source).stem().string().append(extension);
}

std::vector<std::string> ExportNames(const std::vector<std::string>& sources,
                                     std::string_view extension, std::string_view taken) {
  std::map<std::string, int> uses;
  if (!taken.empty()) uses[FoldName(taken)] = 1;
  FoldedNames takenNames;
  std::vector<std::string> names;
  for (const std::string& source : sources) {
    names.push_back(ExportName(source, extension));
    ++uses[FoldName(names.back())];
  }
  for (const auto& [name, count] : uses) takenNames.insert(name);
  for (std::size_t i = 0; i < sources.size(); ++i) {
    if (uses[FoldName(names[i])] == 1) continue;
    names[i] = TakeFreeName(sources[i], std::string(extension), takenNames);
  }
  return names;
}

}  // namespace brimwork

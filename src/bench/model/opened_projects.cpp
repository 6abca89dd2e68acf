#include "bench/model/opened_projects.h"

#include <string>
#include <string_view>

#include "bench/model/source_encoding.h"
#include "environment/text.h"
#include "memory/disk_file.h"
#include "memory/listed_path.h"
#include "memory/project_lines.h"
#include "memory/source_error.h"
#include "memory/source_text.h"

namespace brimwork::bench {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kStartupProject = "StartupProject";

using Projects = std::vector<std::shared_ptr<WorkProject>>;

fs::path FileOn(const ProjectLine& line, const fs::path& group) {
  const std::string listed(Unquoted(line.value));
  const fs::path file = ResolveListedPath(group.parent_path(), listed).path;
  if (!file.empty()) return file;
  throw SourceError(group.string(), line.number, 1, "there is no file \"" + listed + '"');
}

Projects ReadGroup(const fs::path& path) {
  const std::string text =
      DecodeSource(ReadWholeFile(path.string()).bytes, path.string(), kSourceEncoding).text;
  Projects projects;
  for (const ProjectLine& line : ProjectLinesOf(text)) {
    const bool starts = EqualNames(line.key, kStartupProject);
    if (!starts && !EqualNames(line.key, "Project")) continue;
    const auto place = starts ? projects.begin() : projects.end();
    projects.insert(place, WorkProject::Read(FileOn(line, path)));
  }
  if (projects.empty()) throw SourceError(path.string(), "this project group names no project");
  return projects;
}

}  // namespace

Projects ReadProjects(const fs::path& path) {
  const std::string extension = path.extension().string();
  if (EqualNames(extension, ".vbg")) return ReadGroup(path);
  if (EqualNames(extension, ".vbp")) return {WorkProject::Read(path)};
  return {WorkProject::OfFile(path)};
}

}  // namespace brimwork::bench

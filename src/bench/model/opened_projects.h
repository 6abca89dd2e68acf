// What a path that the user opens holds: a project, a group of projects, or a source file.
#pragma once

#include <filesystem>
#include <memory>
#include <vector>

#include "bench/model/work_project.h"

namespace brimwork::bench {

/// At least one project; of a group, the one that it starts comes first. Throws SourceError, naming
/// file and line, for what cannot be opened.
std::vector<std::shared_ptr<WorkProject>> ReadProjects(const std::filesystem::path& path);

}  // namespace brimwork::bench

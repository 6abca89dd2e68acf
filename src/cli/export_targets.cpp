#include "cli/export_targets.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>

#include "memory/source_error.h"

namespace brimwork {
namespace {

bool IsSameFile(const FileSnapshot& file, const std::string& path) {
  if (path == kStandardInputPath) return false;
  try {
    const auto other = LookAtFile(path);
    return other && other->device == file.device && other->fileNumber == file.fileNumber;
  } catch (const SourceError&) {
    return false;  // told when it is read
  }
}

void RefuseSources(const ExportTarget& target, const std::vector<InputFile>& sources) {
  for (const InputFile& source : sources) {
    if (!IsSameFile(*target.replaced, source.path)) continue;
    throw SourceError(target.path, "this is the file that is exported; name another one to write");
  }
}

std::string AndOthers(std::ptrdiff_t others) {
  if (others == 0) return "; --force replaces it";
  if (others == 1) return ", and so is another; --force replaces them";
  return ", and so are " + std::to_string(others) + " others; --force replaces them";
}

void RefuseToReplace(const std::vector<ExportTarget>& targets) {
  const auto isThere = [](const ExportTarget& target) { return target.replaced.has_value(); };
  const auto first = std::ranges::find_if(targets, isThere);
  const auto others = std::ranges::count_if(targets, isThere) - 1;
  throw SourceError(first->path, "the file is already there" + AndOthers(others));
}

}  // namespace

std::vector<ExportTarget> CheckedTargets(const std::vector<std::string>& paths,
                                         const std::vector<InputFile>& sources, bool mayReplace) {
  std::vector<ExportTarget> targets;
  bool replacesAny = false;
  for (const std::string& path : paths) {
    ExportTarget target{path, LookAtFile(path)};
    if (target.replaced) RefuseSources(target, sources);
    replacesAny = replacesAny || target.replaced;
    targets.push_back(std::move(target));
  }
  if (replacesAny && !mayReplace) RefuseToReplace(targets);
  return targets;
}

void WriteTarget(const ExportTarget& target, std::string_view bytes) {
  const auto compose = [&](const ByteSink& sink) { sink(bytes); };
  if (target.replaced) {
    WriteWholeFile(target.path, *target.replaced, compose);
  } else {
    CreateWholeFile(target.path, compose);
  }
}

void MakeFolder(const std::string& path) {
  std::error_code error;
  std::filesystem::create_directories(path, error);
  if (error) throw SourceError(path, "the folder cannot be made: " + error.message());
}

void RequireFolder(const std::string& path, const std::string& whatToDo) {
  std::error_code unknown;
  const auto status = std::filesystem::status(path, unknown);
  if (std::filesystem::is_directory(status)) return;
  throw SourceError(path, (std::filesystem::exists(status) ? "this is no folder; "
                                                           : "there is no such folder; ") +
                              whatToDo);
}

}  // namespace brimwork

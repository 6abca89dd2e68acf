#include "cli/export_index.h"

#include <filesystem>

#include "environment/text.h"

namespace brimwork {
namespace {

namespace fs = std::filesystem;

constexpr const char* kTitleOfSeveral = "Exported code";

/// The folder's own name, also for "." and for a name with a slash behind it.
std::string NameOfFolder(const fs::path& path) {
  std::error_code unknown;
  const fs::path folder = fs::canonical(path, unknown);
  return folder.has_filename() ? folder.filename() : path;
}

}  // namespace

std::string IndexTitle(const RunOptions& options, const Inputs& inputs) {
  if (options.paths.size() != 1) return kTitleOfSeveral;
  const fs::path path = options.paths.front();
  std::error_code unknown;
  if (fs::is_directory(path, unknown)) return NameOfFolder(path);
  if (EqualNames(path.extension().string(), ".vbp")) return inputs.files.front().projectName();
  return path.stem();
}

std::string PathInIndex(const RunOptions& options, const std::string& path) {
  if (options.paths.size() != 1) return path;
  const fs::path named = options.paths.front();
  std::error_code unknown;
  const fs::path root = fs::is_directory(named, unknown) ? named : named.parent_path();
  return fs::path(path).lexically_proximate(root.empty() ? "." : root);
}

}  // namespace brimwork

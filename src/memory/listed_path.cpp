#include "memory/listed_path.h"

#include <algorithm>
#include <vector>

#include "environment/text.h"
#include "memory/disk_entry.h"
#include "memory/utf8_path.h"

namespace brimwork {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kSeparators = "\\/";

bool HasDriveLetter(std::string_view listed) {
  return listed.size() > 1 && listed[1] == ':' && ToUpperAscii(listed[0]) >= 'A' &&
         ToUpperAscii(listed[0]) <= 'Z';
}

bool IsSeparator(char c) { return IsOneOf(c, kSeparators); }

/// The parts of a path, with "." and each name that a ".." takes back left out.
std::vector<std::string> PartsOf(std::string_view listed) {
  std::vector<std::string> parts;
  while (!listed.empty()) {
    const auto end = listed.find_first_of(kSeparators);
    const std::string_view part = listed.substr(0, end);
    listed.remove_prefix(end == std::string_view::npos ? listed.size() : end + 1);
    if (part.empty() || part == ".") continue;
    if (part == ".." && !parts.empty() && parts.back() != "..") {
      parts.pop_back();
    } else {
      parts.emplace_back(part);
    }
  }
  return parts;
}

/// The entry of folder with this name, else the first by the alphabet whose name differs only in
/// case; empty when there is none.
fs::path FindEntry(const fs::path& folder, const std::string& name) {
  if (const fs::path entry = DiskEntry(folder, name); !entry.empty()) return entry;
  fs::path found;
  std::error_code ignored;
  const fs::path listed = folder.empty() ? fs::path(".") : folder;
  for (fs::directory_iterator entry(listed, ignored), end; entry != end; entry.increment(ignored)) {
    const fs::path candidate = entry->path().filename();
    if (!EqualNames(TextOf(candidate), name)) continue;
    if (found.empty() || candidate < found) found = candidate;
  }
  return found.empty() ? found : folder / found;
}

/// The folder above, spelled without links being followed: as project files mean it.
fs::path Above(const fs::path& folder) {
  return ((folder.empty() ? fs::path(".") : folder) / "..").lexically_normal();
}

bool IsBelow(const fs::path& path, const fs::path& folder) {
  const fs::path whole = fs::absolute(path).lexically_normal();
  const fs::path base = fs::absolute(folder.empty() ? fs::path(".") : folder).lexically_normal();
  const fs::path relative = whole.lexically_relative(base);
  return !relative.empty() && *relative.begin() != "..";
}

/// A path that names its drive or computer; empty when there is no such file, nor such a path on
/// this system.
fs::path OnADrive(std::string_view listed) {
  std::error_code ignored;
  fs::path whole = PathOf(listed);
  return whole.is_absolute() && fs::exists(whole, ignored) ? whole : fs::path();
}

}  // namespace

ResolvedPath ResolveListedPath(const fs::path& folder, std::string_view listed) {
  if (HasDriveLetter(listed) || listed.starts_with("\\\\")) return {OnADrive(listed), true};
  const bool isAbsolute = !listed.empty() && IsSeparator(listed[0]);
  fs::path found = isAbsolute ? fs::path("/") : folder;
  fs::path spelled = found;
  bool exists = true;
  const std::vector<std::string> parts = PartsOf(listed);
  if (parts.empty()) return {{}, isAbsolute};  // names no file
  for (const std::string& part : parts) {
    if (part == "..") {
      found = spelled = Above(spelled);
      continue;
    }
    if (exists) found = FindEntry(found, part);
    exists = exists && !found.empty();
    spelled = exists ? found : spelled / PathOf(part);
  }
  return {exists ? found : fs::path(), isAbsolute || !IsBelow(spelled, folder)};
}

std::string_view ListedFileName(std::string_view listed) {
  const auto separator = listed.find_last_of(kSeparators);
  return separator == std::string_view::npos ? listed : listed.substr(separator + 1);
}

}  // namespace brimwork

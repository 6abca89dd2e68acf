#include "spelling/dictionary_files.h"

#include <algorithm>
#include <optional>
#include <set>
#include <string_view>
#include <system_error>

#include "environment/text.h"
#include "memory/user_folders.h"

namespace brimwork {
namespace {

namespace fs = std::filesystem;

constexpr const char* kAffixes = ".aff";
constexpr const char* kWords = ".dic";
constexpr const char* kSystemFolders[] = {"/usr/share/hunspell", "/usr/share/myspell/dicts",
                                          "/usr/share/myspell"};

bool IsFile(const fs::path& path) {
  std::error_code unknown;
  return fs::is_regular_file(path, unknown);
}

/// stem: the path of both files without their extension.
std::optional<DictionaryFiles> FilesAt(const std::string& stem) {
  DictionaryFiles files{fs::path(stem).filename().string(), stem + kAffixes, stem + kWords};
  if (!IsFile(files.affixes) || !IsFile(files.words)) return std::nullopt;
  return files;
}

bool IsPath(std::string_view name) {
  return Contains(name, "/") || name.ends_with(kAffixes) || name.ends_with(kWords);
}

std::string WithoutExtension(std::string_view path) {
  if (path.ends_with(kAffixes) || path.ends_with(kWords)) path.remove_suffix(4);
  return std::string(path);
}

std::string Joined(const auto& names) {
  std::string joined;
  for (const std::string& name : names) joined += (joined.empty() ? "" : ", ") + name;
  return joined;
}

std::set<std::string> InstalledDictionaries() {
  std::set<std::string> names;
  for (const fs::path& folder : DictionaryFolders()) {
    std::error_code unreadable;
    for (const auto& entry : fs::directory_iterator(folder, unreadable)) {
      const fs::path stem = entry.path().parent_path() / entry.path().stem();
      if (entry.path().extension() == kWords && FilesAt(stem.string()))
        names.insert(stem.filename());
    }
  }
  return names;
}

DictionaryError NotInstalled(const std::string& name) {
  std::vector<std::string> folders;
  for (const fs::path& folder : DictionaryFolders()) folders.push_back(folder.string());
  const std::string installed = Joined(InstalledDictionaries());
  const std::string others =
      installed.empty()
          ? "install one (on Debian: a package such as hunspell-en-us), or name the path of one "
            "with --dictionary"
          : "install it, or name another with --dictionary (there are: " + installed + ')';
  return DictionaryError("there is no spelling dictionary \"" + name + "\" in " + Joined(folders) +
                         "; " + others);
}

}  // namespace

std::vector<fs::path> DictionaryFolders() {
  std::vector<fs::path> folders;
  const std::string named = EnvironmentVariable("DICPATH");
  for (const std::string_view folder : Split(named, ":")) {
    if (!folder.empty()) folders.emplace_back(folder);
  }
  folders.insert(folders.end(), std::begin(kSystemFolders), std::end(kSystemFolders));
  return folders;
}

DictionaryFiles FindDictionary(const std::string& name) {
  if (IsPath(name)) {
    const std::string stem = WithoutExtension(name);
    if (const auto files = FilesAt(stem)) return *files;
    throw DictionaryError("there is no spelling dictionary \"" + name + "\": it needs the files " +
                          stem + kAffixes + " and " + stem + kWords);
  }
  for (const fs::path& folder : DictionaryFolders()) {
    if (const auto files = FilesAt((folder / name).string())) return *files;
  }
  throw NotInstalled(name);
}

std::string LocaleDictionaryName() {
  for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const std::string locale = EnvironmentVariable(variable);
    if (locale.empty()) continue;
    const std::string language = locale.substr(0, locale.find_first_of(".@"));
    const bool isNone = language.empty() || language == "C" || language == "POSIX";
    return isNone || Contains(language, "/") ? kFallbackDictionary : language;
  }
  return kFallbackDictionary;
}

DictionaryFiles FindLocaleDictionary() {
  try {
    return FindDictionary(LocaleDictionaryName());
  } catch (const DictionaryError&) {
    return FindDictionary(kFallbackDictionary);
  }
}

}  // namespace brimwork

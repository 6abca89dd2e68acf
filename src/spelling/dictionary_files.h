// Where the system keeps the hunspell dictionaries, and which of them the user means.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace brimwork {

/// A dictionary that is not there or cannot be used. One line that says what to do about it.
class DictionaryError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The two files of a dictionary.
struct DictionaryFiles {
  std::string name;  // as people name it, such as en_US
  std::filesystem::path affixes;
  std::filesystem::path words;
};

inline constexpr const char* kFallbackDictionary = "en_US";

/// The folders of $DICPATH, then those of the system.
std::vector<std::filesystem::path> DictionaryFolders();

/// name: as in en_US, or the path of a dictionary, with or without .dic or .aff. Throws
/// DictionaryError.
DictionaryFiles FindDictionary(const std::string& name);

/// The language of the user's locale as dictionaries name it; en_US when the locale has none.
std::string LocaleDictionaryName();

/// The dictionary of the user's locale, en_US where that one is not installed. Throws
/// DictionaryError.
DictionaryFiles FindLocaleDictionary();

}  // namespace brimwork

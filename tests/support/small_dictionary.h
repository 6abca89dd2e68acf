// Dictionaries of a few words, written where a test wants them.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "spelling/dictionary.h"
#include "support/temporary_folder.h"

namespace brimwork {

/// Writes name.aff and name.dic into the folder, the words in the encoding's own bytes.
inline DictionaryFiles WriteDictionary(const std::filesystem::path& folder, const std::string& name,
                                       const std::vector<std::string>& words,
                                       const std::string& encoding = "UTF-8") {
  std::filesystem::create_directories(folder);
  const DictionaryFiles files{name, folder / (name + ".aff"), folder / (name + ".dic")};
  WriteBytes(files.affixes, "SET " + encoding + "\nTRY esianrtolcdugmphbyfvkwz\n");
  std::string list = std::to_string(words.size()) + '\n';
  for (const std::string& word : words) list += word + '\n';
  WriteBytes(files.words, list);
  return files;
}

}  // namespace brimwork

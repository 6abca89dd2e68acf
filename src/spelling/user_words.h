// The file with the words that the user has told the spell check: UTF-8, one a line.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace brimwork {

/// The file cannot be read or written. One line that names it.
class UserWordsError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// words.txt beside the settings file; empty when the process knows no folder for it.
std::filesystem::path DefaultUserWordsPath();

/// A file that is not there holds no words. Throws UserWordsError.
std::vector<std::string> ReadUserWords(const std::filesystem::path& path);

/// Writes the word behind the others, in one step, so that processes side by side lose no word; one
/// that is there already is not written again. Makes the file and its folder. Throws
/// UserWordsError.
void AddUserWord(const std::filesystem::path& path, std::string_view word);

}  // namespace brimwork

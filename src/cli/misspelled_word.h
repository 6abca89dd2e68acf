// A misspelled word where it stands, as the user is shown it.
#pragma once

#include <string>

namespace brimwork {

struct MisspelledWord {
  std::string path;
  int line = 0;    // of the file, from 1
  int column = 0;  // in characters, from 1

  // The line of code in three pieces, as the user shall see them.
  std::string before;
  std::string written;
  std::string behind;

  std::string word;      // as it is looked up: without access key
  std::string encoding;  // what is put in the word's place must exist in it

  std::string Place() const {
    return path + ':' + std::to_string(line) + ':' + std::to_string(column);
  }
};

}  // namespace brimwork

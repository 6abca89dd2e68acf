#include "spelling/user_words.h"

#include <algorithm>
#include <system_error>

#include "environment/text.h"
#include "memory/json_settings_area.h"
#include "memory/shared_file.h"

namespace brimwork {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

template <class Step>
auto OnWordsFile(const fs::path& path, Step&& step) {
  try {
    return step();
  } catch (const fs::filesystem_error& error) {
    throw UserWordsError(path.string() +
                         ": the file of your words cannot be reached: " + error.code().message());
  } catch (const std::system_error& error) {
    throw UserWordsError(path.string() + ": the file of your words " + error.what());
  }
}

std::vector<std::string> WordsIn(std::string_view text) {
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  std::vector<std::string> words;
  for (const std::string_view line : SplitLines(text)) {
    if (const auto word = TrimBlanksAndTabs(line); !word.empty()) words.emplace_back(word);
  }
  return words;
}

void AddToFile(const fs::path& file, std::string_view word) {
  if (file.has_parent_path()) fs::create_directories(file.parent_path());
  const SharedFileLock lock(file);
  std::string text = ReadSharedFile(file).value_or("");
  const auto words = WordsIn(text);
  if (std::ranges::find(words, word) != words.end()) return;
  if (!text.empty() && !text.ends_with('\n')) text += '\n';
  ReplaceSharedFile(file, text.append(word) + '\n');
}

}  // namespace

fs::path DefaultUserWordsPath() {
  const fs::path settings = DefaultSettingsPath();
  return settings.empty() ? settings : settings.parent_path() / "words.txt";
}

std::vector<std::string> ReadUserWords(const fs::path& path) {
  if (path.empty()) return {};
  return OnWordsFile(path, [&] { return WordsIn(ReadSharedFile(path).value_or("")); });
}

void AddUserWord(const fs::path& path, std::string_view word) {
  if (path.empty()) {
    throw UserWordsError("there is no place for the file of your words: set HOME");
  }
  OnWordsFile(path, [&] { AddToFile(FollowLinks(path), word); });
}

}  // namespace brimwork

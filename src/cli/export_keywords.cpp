#include "cli/export_keywords.h"

#include <string_view>
#include <utility>

#include "cli/command_request.h"
#include "environment/text.h"
#include "memory/disk_file.h"
#include "memory/source_text.h"
#include "memory/text_codec.h"
#include "settings/setting_defaults.h"

namespace brimwork {
namespace {

/// UTF-8 when the bytes are that, else as the other files of the run are encoded.
std::string Decoded(std::string bytes, const std::string& path, const std::string& encoding) {
  if (!Contains(bytes, std::string_view("\0", 1))) {
    try {
      return TextCodec("UTF-8").Decode(std::move(bytes));
    } catch (const TextCodecError&) {
      // The bytes are as they were.
    }
  }
  return DecodeSource(std::move(bytes), path, encoding).text;
}

void AddWord(std::string& list, std::string_view word) {
  word = TrimBlanksAndTabs(word);
  if (word.empty()) return;
  if (!list.empty()) list += ',';
  list += word;
}

std::string KeywordsInFile(const std::string& path, const std::string& encoding) {
  const std::string text = Decoded(ReadWholeFile(path).bytes, path, encoding);
  std::string_view words = text;
  if (words.starts_with(kByteOrderMark)) words.remove_prefix(kByteOrderMark.size());
  std::string list;
  for (const std::string_view line : SplitLines(words)) {
    for (const std::string_view word : Split(line, ",")) AddWord(list, word);
  }
  return list;
}

}  // namespace

std::string KeywordsOf(const std::string& option, const std::string& encoding) {
  if (option == "builtin") return std::string(kBuiltInKeyWordList);
  if (option == "@") throw UsageError("--keywords @ needs the name of a file behind it");
  if (option.starts_with('@')) return KeywordsInFile(option.substr(1), encoding);
  return option;
}

}  // namespace brimwork

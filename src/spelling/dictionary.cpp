#include "spelling/dictionary.h"

#include <hunspell/hunspell.h>

#include <fstream>
#include <optional>
#include <stdexcept>

#include "environment/text.h"
#include "memory/text_codec.h"

namespace brimwork {
namespace {

/// The library itself says nothing of a file that it cannot read and then knows no word.
const DictionaryFiles& Readable(const DictionaryFiles& files) {
  for (const auto& path : {files.affixes, files.words}) {
    std::ifstream file(path);
    if (file.peek() != std::ifstream::traits_type::eof()) continue;
    throw DictionaryError(path.string() +
                          ": the spelling dictionary cannot be read; name another with "
                          "--dictionary");
  }
  return files;
}

/// The name that the system has for an encoding; dictionaries name some in a way of their own.
std::string SystemName(const std::string& encoding) {
  constexpr std::string_view kMicrosoft = "MICROSOFT-";
  if (StartsWithIgnoringCase(encoding, kMicrosoft)) return encoding.substr(kMicrosoft.size());
  return encoding == "TIS620-2533" ? "TIS-620" : encoding;
}

TextCodec CodecOf(const DictionaryFiles& files, const std::string& encoding) {
  try {
    return TextCodec(SystemName(encoding));
  } catch (const std::invalid_argument&) {
    throw DictionaryError(files.affixes.string() + ": the spelling dictionary is in the encoding " +
                          encoding + ", which this system does not know; name another with " +
                          "--dictionary");
  }
}

}  // namespace

class Dictionary::Library {
 public:
  explicit Library(const DictionaryFiles& files)
      : handle_(Hunspell_create(Readable(files).affixes.c_str(), files.words.c_str())),
        codec_(CodecOf(files, Hunspell_get_dic_encoding(handle_.get()))) {}

  bool Knows(std::string_view word) {
    const auto encoded = Encoded(word);
    return encoded && Hunspell_spell(handle_.get(), encoded->c_str()) != 0;
  }

  std::vector<std::string> Suggestions(std::string_view word) {
    const auto encoded = Encoded(word);
    if (!encoded) return {};
    char** list = nullptr;
    const int count = Hunspell_suggest(handle_.get(), &list, encoded->c_str());
    std::vector<std::string> suggestions;
    for (int i = 0; i < count; ++i) suggestions.push_back(codec_.DecodeStart(list[i]));
    Hunspell_free_list(handle_.get(), &list, count);
    return suggestions;
  }

 private:
  /// Nothing for a word with letters that the dictionary has not.
  std::optional<std::string> Encoded(std::string_view word) {
    try {
      std::string buffer;
      return std::string(codec_.Encode(word, buffer));
    } catch (const TextCodecError&) {
      return std::nullopt;
    }
  }

  struct Destroy {
    void operator()(Hunhandle* handle) const { Hunspell_destroy(handle); }
  };

  std::unique_ptr<Hunhandle, Destroy> handle_;
  TextCodec codec_;
};

Dictionary::Dictionary(const DictionaryFiles& files) : library_(std::make_unique<Library>(files)) {}
Dictionary::Dictionary(Dictionary&&) noexcept = default;
Dictionary& Dictionary::operator=(Dictionary&&) noexcept = default;
Dictionary::~Dictionary() = default;

bool Dictionary::Knows(std::string_view word) { return library_->Knows(word); }

std::vector<std::string> Dictionary::Suggestions(std::string_view word) {
  return library_->Suggestions(word);
}

}  // namespace brimwork

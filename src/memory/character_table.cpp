#include "memory/character_table.h"

#include <stdexcept>
#include <utility>

#include "environment/utf8.h"

namespace brimwork {
namespace {

constexpr char32_t kFirstAlias = 0xF0000;
constexpr char32_t kLastAlias = 0xFFFFD;
constexpr std::size_t kLongestSequence = 4;

constexpr std::string_view kUsualEncoding = "WINDOWS-1252";

std::uint32_t KeyOf(std::string_view sequence) {
  std::uint32_t key = 0;
  for (const char byte : sequence) key = key << 8 | static_cast<unsigned char>(byte);
  return key;
}

std::string Utf8Of(char32_t character) {
  std::string text;
  AppendUtf8(text, character);
  return text;
}

}  // namespace

CharacterTable::CharacterTable(std::string encoding) : encoding_(std::move(encoding)) {
  if (encoding_ != kUsualEncoding) System();
}

/// The system loads its converters from files, which for a small module takes as long as all that
/// is done with it. So those of the usual encoding wait for a character that needs them.
CharacterTable::Converters& CharacterTable::System() {
  if (!converters_) converters_.emplace(Converters{{encoding_, "UTF-8"}, {"UTF-8", encoding_}});
  return *converters_;
}

bool CharacterTable::IsAsciiCompatible() {
  if (encoding_ == kUsualEncoding) return true;
  auto& [fromEncoding, toEncoding] = System();
  for (char byte = 0;; ++byte) {
    const auto decoded = fromEncoding.Convert({&byte, 1});
    const auto encoded = toEncoding.Convert({&byte, 1});
    const bool same = decoded.converted == std::string_view(&byte, 1) &&
                      encoded.converted == std::string_view(&byte, 1);
    const bool oneCharacter =
        decoded.outcome == EncodingConverter::Outcome::kComplete && !decoded.converted.empty();
    if (!same && !(oneCharacter && (byte == '\\' || byte == '~'))) return false;
    if (byte == 0x7F) return true;
  }
}

CharacterTable::Decoded CharacterTable::Decode(std::string_view bytes) {
  for (std::size_t size = 1; size <= kLongestSequence && size <= bytes.size(); ++size) {
    const std::string_view sequence = bytes.substr(0, size);
    Entry& entry = EntryOf(sequence);
    if (entry.state == State::kUnknown) entry = LookUp(sequence);
    if (entry.state == State::kNone) break;
    if (entry.state == State::kCharacter) return {entry.character, static_cast<std::uint8_t>(size)};
  }
  return {};
}

CharacterTable::Entry& CharacterTable::EntryOf(std::string_view sequence) {
  const std::uint32_t key = KeyOf(sequence);
  return sequence.size() == 1 ? single_[key] : longer_[key];
}

CharacterTable::Entry CharacterTable::LookUp(std::string_view sequence) {
  const auto result = System().fromEncoding.Convert(sequence);
  switch (result.outcome) {
    case EncodingConverter::Outcome::kTruncated:
      return {0, State::kLonger};
    case EncodingConverter::Outcome::kInvalid:
      return {0, State::kNone};
    case EncodingConverter::Outcome::kComplete:
      break;
  }
  if (result.converted.empty()) return {0, State::kNone};
  return {CharacterOf(sequence, result.converted), State::kCharacter};
}

char32_t CharacterTable::CharacterOf(std::string_view sequence, const std::string& text) {
  if (Utf8Size(text) == text.size()) {
    const char32_t character = Utf8Character(text);
    const bool isPrivate = character >= kFirstAlias && character <= kLastAlias;
    if (character > 0x7F && !isPrivate && Encode(character) == sequence) return character;
  }
  const char32_t alias = kFirstAlias + static_cast<char32_t>(aliases_.size());
  if (alias > kLastAlias) throw std::length_error("too many characters with several byte forms");
  aliases_.push_back({std::string(sequence), text});
  return alias;
}

std::string_view CharacterTable::Encode(char32_t character) {
  if (IsAlias(character)) return aliases_[character - kFirstAlias].bytes;
  const auto [entry, isNew] = encoded_.try_emplace(character);
  if (isNew) {
    const auto result = System().toEncoding.Convert(Utf8Of(character));
    const bool isAscii = FindNonAscii(result.converted, 0) == result.converted.size();
    // One ASCII byte would be read as another character.
    if (result.outcome == EncodingConverter::Outcome::kComplete && !isAscii)
      entry->second = result.converted;
  }
  return entry->second;
}

bool CharacterTable::IsAlias(char32_t character) const {
  return character >= kFirstAlias && character - kFirstAlias < aliases_.size();
}

std::string_view CharacterTable::AliasText(char32_t character) const {
  return IsAlias(character) ? std::string_view(aliases_[character - kFirstAlias].text)
                            : std::string_view();
}

}  // namespace brimwork

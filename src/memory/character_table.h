// One encoding whose ASCII bytes are ASCII text, character by character: which bytes are which
// character, looked up once each and then remembered.
//
// Several byte sequences may mean one character (the row 13 and the row 2 form of one symbol in
// code page 932). Only the sequence that the encoding itself would write stands for the character;
// every other one, an alias, gets a private code point of this table's own, so that text read gives
// its own bytes back.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "memory/encoding_converter.h"

namespace brimwork {

class CharacterTable {
 public:
  /// Throws std::invalid_argument for an unknown encoding.
  explicit CharacterTable(std::string encoding);

  /// True when every byte below 128 stands for its ASCII character wherever a character starts, so
  /// that this table can be used. Bytes 5C and 7E may be drawn otherwise (a yen sign, an overline):
  /// in Visual Basic code they are the operator and the tilde all the same.
  bool IsAsciiCompatible();

  struct Decoded {
    char32_t character = 0;
    std::uint8_t size = 0;  // bytes of the character; 0 when the bytes are none
  };

  /// The character that bytes start with; their first byte is above 127.
  Decoded Decode(std::string_view bytes);

  /// The bytes of a character above 127; "" when the encoding has it not.
  std::string_view Encode(char32_t character);

  /// What an alias looks like, as UTF-8; "" when the character is no alias.
  std::string_view AliasText(char32_t character) const;
  bool HasAliases() const { return !aliases_.empty(); }

 private:
  enum class State : std::uint8_t { kUnknown, kCharacter, kNone, kLonger };
  struct Entry {
    char32_t character = 0;
    State state = State::kUnknown;
  };
  struct Alias {
    std::string bytes;
    std::string text;
  };

  Entry& EntryOf(std::string_view sequence);
  Entry LookUp(std::string_view sequence);
  char32_t CharacterOf(std::string_view sequence, const std::string& text);
  bool IsAlias(char32_t character) const;

  struct Converters {
    EncodingConverter fromEncoding;
    EncodingConverter toEncoding;
  };
  Converters& System();

  std::string encoding_;
  std::optional<Converters> converters_;
  std::array<Entry, 256> single_;
  std::unordered_map<std::uint32_t, Entry> longer_;  // by the bytes of the sequence
  std::unordered_map<char32_t, std::string> encoded_;
  std::vector<Alias> aliases_;
};

}  // namespace brimwork

// The keywords that open and close blocks, as texts that a statement starts with.
#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "environment/text.h"

namespace brimwork {

/// Keyword tokens: each entry of a comma-separated list in upper case with one blank behind it. An
/// entry that is listed twice counts twice.
class KeywordTokens {
 public:
  explicit KeywordTokens(std::string_view commaSeparated);

  /// How many tokens text starts with, letters in any case.
  int CountAtStart(std::string_view text) const {
    return text.size() > 1 && pairs_[PairOf(text)] ? CountTokens(text) : 0;
  }

  /// How many tokens occur behind ": " anywhere in text, letters in any case.
  int CountBehindColons(std::string_view text) const;

 private:
  static std::size_t PairOf(std::string_view text) {
    const auto first = static_cast<unsigned char>(ToUpperAscii(text[0]));
    const auto second = static_cast<unsigned char>(ToUpperAscii(text[1]));
    return std::size_t{first} << 8 | second;
  }

  int CountTokens(std::string_view text) const;

  std::vector<std::string> tokens_;          // sorted by their first character
  std::array<std::uint8_t, 129> firstOf_{};  // where the tokens of a first character begin
  std::bitset<65536> pairs_;  // the first two characters of the tokens: few statements have them
};

struct BlockKeywords {
  KeywordTokens procedureOpeners;
  KeywordTokens procedureClosers;
  KeywordTokens blockOpeners;
  KeywordTokens blockClosers;
};

const BlockKeywords& GetBlockKeywords();

}  // namespace brimwork

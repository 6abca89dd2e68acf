// The keywords that open and close blocks, as texts that a statement starts with.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace brimwork {

/// Keyword tokens: each entry of a comma-separated list in upper case with one blank behind it. An
/// entry that is listed twice counts twice.
class KeywordTokens {
 public:
  explicit KeywordTokens(std::string_view commaSeparated);

  /// How many tokens text starts with, letters in any case.
  int CountAtStart(std::string_view text) const;

  /// How many tokens occur behind ": " anywhere in text, letters in any case.
  int CountBehindColons(std::string_view text) const;

 private:
  std::vector<std::string> tokens_;
  // By the token's first character: most statements start with no keyword's letter.
  std::array<std::vector<std::string>, 128> byFirstCharacter_;
};

struct BlockKeywords {
  KeywordTokens procedureOpeners;
  KeywordTokens procedureClosers;
  KeywordTokens blockOpeners;
  KeywordTokens blockClosers;
};

const BlockKeywords& GetBlockKeywords();

}  // namespace brimwork

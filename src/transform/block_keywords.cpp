#include "transform/block_keywords.h"

#include <algorithm>

namespace brimwork {
namespace {

std::string ToUpper(std::string_view text) {
  std::string upper(text);
  std::transform(upper.begin(), upper.end(), upper.begin(), ToUpperAscii);
  return upper;
}

}  // namespace

KeywordTokens::KeywordTokens(std::string_view commaSeparated) {
  for (const std::string_view keyword : Split(commaSeparated, ",")) {
    tokens_.push_back(ToUpper(keyword) + ' ');
    pairs_.set(PairOf(tokens_.back()));
  }
  std::ranges::sort(tokens_);
  for (std::size_t first = 0; first < firstOf_.size(); ++first) {
    firstOf_[first] =
        static_cast<std::uint8_t>(std::ranges::count_if(tokens_, [&](const std::string& token) {
          return static_cast<std::size_t>(token[0]) < first;
        }));
  }
}

int KeywordTokens::CountTokens(std::string_view text) const {
  const auto first = static_cast<std::size_t>(ToUpperAscii(text[0]));
  int count = 0;
  for (std::size_t i = firstOf_[first]; i < firstOf_[first + 1]; ++i) {
    count += StartsWithIgnoringCase(text, tokens_[i]);
  }
  return count;
}

int KeywordTokens::CountBehindColons(std::string_view text) const {
  const std::string upper = ToUpper(text);
  return static_cast<int>(
      std::count_if(tokens_.begin(), tokens_.end(),
                    [&](const std::string& token) { return Contains(upper, ": " + token); }));
}

const BlockKeywords& GetBlockKeywords() {
  // Select Case and End Select stand twice: the Case lines between them take one level, what they
  // govern another.
  static const BlockKeywords keywords{
      KeywordTokens("Sub,Function,Property,Static Sub,Static Function,Static Property,Private Sub,"
                    "Private Function,Private Property,Private Static Sub,Private Static Function,"
                    "Private Static Property,Public Sub,Public Function,Public Property,"
                    "Public Static Sub,Public Static Function,Public Static Property"),
      KeywordTokens("End Sub,End Function,End Property"),
      KeywordTokens("If,ElseIf,Else,#If,#ElseIf,#Else,Select Case,Case,Type,Public Type,"
                    "Private Type,Enum,Public Enum,Private Enum,With,For,Do,While,Select Case"),
      KeywordTokens("ElseIf,Else,End If,#ElseIf,#Else,#End If,Case,End Select,End Type,End Enum,"
                    "End With,Next,Loop,Wend,End Select"),
  };
  return keywords;
}

}  // namespace brimwork

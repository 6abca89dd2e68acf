#include "transform/block_keywords.h"

#include <algorithm>

#include "environment/text.h"

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
    byFirstCharacter_[static_cast<unsigned char>(tokens_.back()[0])].push_back(tokens_.back());
  }
}

int KeywordTokens::CountAtStart(std::string_view text) const {
  if (text.empty()) return 0;
  const auto first = static_cast<unsigned char>(ToUpperAscii(text[0]));
  if (first >= byFirstCharacter_.size()) return 0;
  int count = 0;
  for (const std::string& token : byFirstCharacter_[first])
    count += StartsWithIgnoringCase(text, token);
  return count;
}

int KeywordTokens::CountBehindColons(std::string_view text) const {
  if (!Contains(text, ": ")) return 0;
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

#include "cli/prose.h"

#include "cli/code_tokens.h"

namespace brimwork {

std::vector<ProseStretch> ProseOf(std::string_view line, Continues above) {
  std::vector<ProseStretch> prose;
  for (const CodeToken& token : TokensOf(line, above)) {
    const auto offset = static_cast<std::size_t>(token.text.data() - line.data());
    if (token.kind == TokenKind::kComment) prose.push_back({offset, token.text.size()});
    if (token.kind == TokenKind::kString) prose.push_back({offset + 1, token.text.size() - 1});
  }
  return prose;
}

}  // namespace brimwork

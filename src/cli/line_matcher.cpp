#include "cli/line_matcher.h"

#include <algorithm>
#include <string>
#include <vector>

#include "cli/code_tokens.h"
#include "cli/line_label.h"
#include "environment/text.h"

namespace brimwork {
namespace {

/// A label that takes the place of a numbering label: its colon is looked for no further.
constexpr std::size_t kLongestTakenLabel = 6;

bool SameTokensAfterAGlance(std::string_view a, std::string_view b, Continues above) {
  a = TrimBlanksAndTabs(a);
  b = TrimBlanksAndTabs(b);
  if (a == b) return true;
  return !a.empty() && !b.empty() && a[0] == b[0] && SameTokens(a, b, above);
}

std::vector<CodeToken> TokensWithoutComment(std::string_view line, Continues above) {
  std::vector<CodeToken> tokens = TokensOf(line, above);
  if (!tokens.empty() && tokens.back().kind == TokenKind::kComment) tokens.pop_back();
  return tokens;
}

bool SameToken(const CodeToken& a, const CodeToken& b) { return a.SameAs(b); }

/// Quotes inside a literal are doubled, so one that is closed has an even number of them.
bool IsClosedLiteral(std::string_view text) { return std::ranges::count(text, '"') % 2 == 0; }

/// The apostrophe or the Rem that starts a comment; "" for one that continues another.
std::string_view CommentMark(std::string_view comment, Continues above) {
  if (above == Continues::kComment) return {};
  return comment.substr(0, comment.starts_with('\'') ? 1 : 3);
}

/// Equal, or literals or comments that differ in their text only.
struct Respelled {
  Continues above;

  bool operator()(const CodeToken& a, const CodeToken& b) const {
    if (a.SameAs(b)) return true;
    if (a.kind != b.kind || a.isGlued != b.isGlued) return false;
    if (a.kind == TokenKind::kString) return IsClosedLiteral(a.text) && IsClosedLiteral(b.text);
    return a.kind == TokenKind::kComment &&
           CommentMark(a.text, above) == CommentMark(b.text, above);
  }
};

template <class Same>
bool SameTokensOf(const std::vector<CodeToken>& a, const std::vector<CodeToken>& b, Same same) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), same);
}

/// line without its label when that is the line's own number, else line.
std::string_view WithoutOwnNumber(std::string_view line, int number) {
  const auto split = SplitNumericLabel(line);
  return split && split->label == std::to_string(number) ? split->rest : line;
}

}  // namespace

/// Tries same on the lines as they are and then with fewer and fewer of their labels. A line that
/// continues another starts no statement, so a number there is no label.
template <class Same>
bool LineMatcher::AnyLabelling(std::string_view before, std::string_view after, int afterLine,
                               Continues above, Same same) const {
  if (above != Continues::kNothing) return same(before, after);
  const std::string_view unnumbered =
      allowance_.labelsMayCome ? WithoutOwnNumber(after, afterLine) : after;
  while (true) {
    if (same(before, after) || same(before, unnumbered)) return true;
    const auto split = allowance_.labelsMayGo ? SplitNumericLabel(before) : std::nullopt;
    if (!split || split->label.size() > kLongestTakenLabel) return false;
    before = split->rest;
  }
}

bool LineMatcher::SameCode(std::string_view before, std::string_view after, int afterLine,
                           Continues above) const {
  return AnyLabelling(before, after, afterLine, above,
                      [above](std::string_view a, std::string_view b) {
                        return SameTokensAfterAGlance(a, b, above);
                      });
}

bool LineMatcher::SameClosingCode(std::string_view before, std::string_view after, int afterLine,
                                  Continues above) const {
  return AnyLabelling(before, after, afterLine, above, [&](std::string_view a, std::string_view b) {
    const auto tokensOfA = TokensWithoutComment(a, above);
    const auto tokensOfB = TokensWithoutComment(b, above);
    return allowance_.spellingMayChange ? SameTokensOf(tokensOfA, tokensOfB, Respelled{above})
                                        : SameTokensOf(tokensOfA, tokensOfB, SameToken);
  });
}

bool LineMatcher::SameCodeRespelled(std::string_view before, std::string_view after, int afterLine,
                                    Continues above) const {
  return AnyLabelling(
      before, after, afterLine, above, [above](std::string_view a, std::string_view b) {
        return SameTokensOf(TokensOf(a, above), TokensOf(b, above), Respelled{above});
      });
}

bool LineMatcher::IsStamped(std::string_view before, std::string_view after) const {
  const std::string& stamp = allowance_.stamp;
  if (stamp.empty() || after.size() != before.size() + stamp.size()) return false;
  for (auto at = after.find(stamp); at != std::string_view::npos; at = after.find(stamp, at + 1)) {
    if (after.substr(0, at) == before.substr(0, at) &&
        after.substr(at + stamp.size()) == before.substr(at)) {
      return true;
    }
  }
  return false;
}

}  // namespace brimwork

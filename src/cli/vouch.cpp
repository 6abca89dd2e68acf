#include "cli/vouch.h"

#include <algorithm>
#include <utility>

#include "cli/code_tokens.h"
#include "cli/inserted_lines.h"
#include "cli/line_matcher.h"
#include "environment/basic_lines.h"
#include "environment/text.h"

namespace brimwork {
namespace {

/// Goes down both texts together. A line behind the change is paired with the first line before it
/// that it can stand for; what is left over on either side must be covered by the allowance.
class Walker {
 public:
  Walker(const CodeLines& before, const CodeLines& after, const Allowance& allowance)
      : before_(before),
        after_(after),
        allowance_(allowance),
        matcher_(allowance),
        inserted_(after, allowance) {}

  std::optional<Difference> Walk(bool behindHeader) {
    if (behindHeader && !TakeHeader()) return DifferenceAt(beforeLine_, afterLine_);
    while (!fault_) {
      TakePlainPairs();
      if (!HasBefore() && !HasAfter()) break;
      if (!TakeNext() && !fault_) return DifferenceAt(beforeLine_, afterLine_);
    }
    if (!fault_ && behindBlock_) return DifferenceAt(gapBefore_, gapAfter_);
    return fault_;
  }

  Alignment TakeAlignment() { return std::move(alignment_); }

 private:
  bool HasBefore() const { return beforeLine_ <= before_.Count(); }
  bool HasAfter() const { return afterLine_ <= after_.Count(); }

  Difference DifferenceAt(int beforeLine, int afterLine) const {
    return {beforeLine, afterLine, TextOf(before_, beforeLine), TextOf(after_, afterLine)};
  }

  static std::string TextOf(const CodeLines& lines, int line) {
    return std::string(line <= lines.Count() ? lines.Line(line) : std::string_view());
  }

  /// Takes the pairs that differ in blanks at most and carry nothing on to the next line. Most of a
  /// module passes here.
  void TakePlainPairs() {
    if (inGap_ || allowance_.handler || above_ != Continues::kNothing) return;
    const int most = std::min(before_.Count() - beforeLine_, after_.Count() - afterLine_) + 1;
    int pairs = 0;
    for (; pairs < most; ++pairs) {
      const std::string_view before = before_.Line(beforeLine_ + pairs);
      if (MayBeContinued(before)) break;
      if (!EqualTrimmed(before, after_.Line(afterLine_ + pairs))) break;
    }
    if (pairs == 0) return;
    alignment_.Add(beforeLine_, afterLine_, pairs);
    beforeLine_ += pairs;
    afterLine_ += pairs;
  }

  static bool MayBeContinued(std::string_view line) {
    return !line.empty() && IsOneOf(line.back(), "_ \t") && AsksForContinuation(line);
  }

  /// Any comment may be another one respelled, so an inserted one must be looked for first.
  bool TakeNext() {
    return TakePair() || (!fault_ && TakeInsertion()) || (!fault_ && TakeRespelledPair()) ||
           (!fault_ && TakeRemoval());
  }

  bool TakePair() {
    if (!HasBefore() || !HasAfter()) return false;
    const std::string_view before = before_.Line(beforeLine_);
    const std::string_view after = after_.Line(afterLine_);
    return (EqualTrimmed(before, after) || IsChangedAsAllowed(before, after)) && Pair(before);
  }

  bool TakeRespelledPair() {
    if (!allowance_.spellingMayChange || !HasBefore() || !HasAfter()) return false;
    const std::string_view before = before_.Line(beforeLine_);
    const std::string_view after = after_.Line(afterLine_);
    return AsksForContinuation(before) == AsksForContinuation(after) &&
           matcher_.SameCodeRespelled(before, after, afterLine_, above_) && Pair(before);
  }

  bool Pair(std::string_view before) {
    if (inGap_ && !ClosesGap()) return false;
    if (allowance_.handler) NoteClosing(before);
    above_ = BelowOf(before);
    alignment_.Add(beforeLine_++, afterLine_++, 1);
    return true;
  }

  bool IsChangedAsAllowed(std::string_view before, std::string_view after) {
    if (AsksForContinuation(before) != AsksForContinuation(after)) return false;
    if (matcher_.SameCode(before, after, afterLine_, above_)) return true;
    if (allowance_.closingCommentsMayChange && ClosesProcedure(before, above_) &&
        matcher_.SameClosingCode(before, after, afterLine_, above_)) {
      return true;
    }
    if (stampsUsed_ == allowance_.stamps || !matcher_.IsStamped(before, after)) return false;
    ++stampsUsed_;
    return true;
  }

  Continues BelowOf(std::string_view line) const {
    if (!AsksForContinuation(line)) return Continues::kNothing;
    const std::string_view text = TrimRight(line, " \t");
    if (IsContinued(text)) return ContinuedBelow(text, above_);
    CodeTokenizer tokenizer(line, above_);
    while (tokenizer.Next()) {
    }
    return tokenizer.Below();
  }

  /// Behind inserted and removed lines: none of them may swallow the line here or cut it off from
  /// the statement that it continues.
  bool ClosesGap() {
    const bool wasContinued = beforeLine_ > 1 && AsksForContinuation(before_.Line(beforeLine_ - 1));
    const bool isContinued = afterLine_ > 1 && AsksForContinuation(after_.Line(afterLine_ - 1));
    const bool blockIsInPlace = !behindBlock_ || StatementClosesProcedure(beforeLine_);
    if (wasContinued != isContinued || !blockIsInPlace) {
      fault_ = DifferenceAt(gapBefore_, gapAfter_);
      return false;
    }
    inGap_ = behindBlock_ = false;
    return true;
  }

  bool StatementClosesProcedure(int line) const {
    Continues above = above_;
    for (; line <= before_.Count(); ++line) {
      const std::string_view text = before_.Line(line);
      if (ClosesProcedure(text, above)) return true;
      above = ContinuedBelow(text, above);
      if (above == Continues::kNothing) return false;
    }
    return false;
  }

  void NoteClosing(std::string_view before) {
    if (ClosesProcedure(before, above_)) hasJump_ = hasBlock_ = false;
  }

  bool TakeInsertion() {
    if (!HasAfter()) return false;
    if (!hasBlock_) {
      if (const int lines = inserted_.HandlerBlockAt(afterLine_)) {
        hasBlock_ = true;
        return Insert(lines) && (behindBlock_ = true);
      }
    }
    if (!hasJump_ && inserted_.JumpAt(afterLine_) == 1) return hasJump_ = Insert(1);
    const int separator = inserted_.SeparatorAt(afterLine_);
    if (separator > 0 && !NextCodeIsUsersSeparator()) return Insert(separator);
    return IsStampAlone() && Insert(1);
  }

  /// Blank lines in front of the user's own separator may have gone; then the line here is the
  /// user's and no new one.
  bool NextCodeIsUsersSeparator() const {
    int line = beforeLine_;
    while (line <= before_.Count() && IsBlankLine(before_.Line(line))) ++line;
    return line > beforeLine_ && line <= before_.Count() &&
           EqualTrimmed(before_.Line(line), after_.Line(afterLine_));
  }

  /// A stamp in an empty module makes its first line.
  bool IsStampAlone() const {
    return before_.Count() == 0 && afterLine_ == 1 && !allowance_.stamp.empty() &&
           after_.Line(1) == allowance_.stamp;
  }

  bool Insert(int lines) {
    const bool splitsStatement =
        !IsBehindInsertion() && afterLine_ > 1 && AsksForContinuation(after_.Line(afterLine_ - 1));
    if (splitsStatement) return false;
    OpenGap();
    afterLine_ += lines;
    lastInserted_ = afterLine_ - 1;
    return true;
  }

  bool IsBehindInsertion() const { return lastInserted_ == afterLine_ - 1; }

  bool TakeRemoval() {
    if (!HasBefore() || !allowance_.blankLinesMayGo || !IsBlankLine(before_.Line(beforeLine_))) {
      return false;
    }
    OpenGap();
    ++beforeLine_;
    return true;
  }

  void OpenGap() {
    if (inGap_) return;
    inGap_ = true;
    gapBefore_ = beforeLine_;
    gapAfter_ = afterLine_;
  }

  /// The commands behind the header's may have taken its blank lines and framed it.
  bool TakeHeader() {
    const auto& header = allowance_.headerLines;
    for (std::size_t next = 0; next < header.size();) {
      if (HasAfter() && EqualTrimmed(after_.Line(afterLine_), header[next])) {
        Insert(1);
        ++next;
      } else if (allowance_.blankLinesMayGo && IsBlankLine(header[next])) {
        ++next;
      } else if (const int lines = HasAfter() ? inserted_.SeparatorAt(afterLine_) : 0) {
        Insert(lines);
      } else {
        return false;
      }
    }
    return true;
  }

  const CodeLines& before_;
  const CodeLines& after_;
  const Allowance& allowance_;
  LineMatcher matcher_;
  InsertedLines inserted_;
  Alignment alignment_;
  std::optional<Difference> fault_;

  int beforeLine_ = 1;
  int afterLine_ = 1;
  Continues above_ = Continues::kNothing;  // what the line here continues

  bool inGap_ = false;  // lines were inserted or removed since the last pair, the first of them:
  int gapBefore_ = 0;
  int gapAfter_ = 0;
  int lastInserted_ = 0;

  bool behindBlock_ = false;  // the next pair must be the statement that closes the procedure
  bool hasJump_ = false;      // inserted in this procedure
  bool hasBlock_ = false;
  int stampsUsed_ = 0;
};

}  // namespace

std::optional<Difference> Vouch(const CodeLines& before, const CodeLines& after,
                                const Allowance& allowance, Alignment* alignment) {
  std::optional<Difference> furthest;
  // A module that begins with the header's own lines looks alike with and without a new header.
  for (const bool behindHeader : {true, false}) {
    if (behindHeader && allowance.headerLines.empty()) continue;
    Walker walker(before, after, allowance);
    const auto difference = walker.Walk(behindHeader);
    const bool isBest = !difference || !furthest || furthest->beforeLine < difference->beforeLine;
    if (isBest && alignment) *alignment = walker.TakeAlignment();
    if (!difference) return std::nullopt;
    if (isBest) furthest = difference;
  }
  return furthest;
}

}  // namespace brimwork

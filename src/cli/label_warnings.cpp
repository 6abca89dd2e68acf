#include <algorithm>
#include <string_view>

#include "cli/code_tokens.h"
#include "cli/jump_scanner.h"
#include "cli/line_label.h"
#include "cli/line_matcher.h"
#include "cli/warnings.h"
#include "environment/basic_lines.h"
#include "environment/text.h"

namespace brimwork {
namespace {

/// A line that a jump aims at, with what became of its number.
struct Target {
  std::string_view number;
  std::string_view word;  // of the first jump to it
  int jumpLine = 0;
  int jumps = 0;
  int lostAt = 0;     // the line, before the change, that had the number and has it no more
  int gainedFor = 0;  // the line, before the change, that has the number now and had not
  int carriers = 0;   // lines that had the number before
};

/// Goes down the lines before the change and gives each its place behind it.
class Follower {
 public:
  explicit Follower(const Alignment& alignment) : stretches_(alignment.Stretches()) {}

  /// Asked for in ascending order; 0 for a line that was removed.
  int AfterLine(int before) {
    while (at_ < stretches_.size() && stretches_[at_].before + stretches_[at_].count <= before) {
      ++at_;
    }
    if (at_ == stretches_.size() || before < stretches_[at_].before) return 0;
    return stretches_[at_].after + before - stretches_[at_].before;
  }

 private:
  const std::vector<AlignedStretch>& stretches_;
  std::size_t at_ = 0;
};

class LabelWarner {
 public:
  explicit LabelWarner(const ChangedModule& module)
      : module_(module), follower_(module.alignment) {}

  std::vector<Warning> Find() {
    for (const AlignedStretch& stretch : module_.alignment.Stretches()) {
      for (int i = 0; i < stretch.count; ++i) {
        CheckConditional(stretch.before + i, stretch.after + i);
      }
    }
    for (const ProcedureSpan& procedure : module_.procedures) CheckJumps(procedure);
    std::stable_sort(warnings_.begin(), warnings_.end(),
                     [](const Warning& a, const Warning& b) { return a.line < b.line; });
    return std::move(warnings_);
  }

 private:
  void CheckConditional(int beforeLine, int afterLine) {
    const std::string_view before = TrimBlanksAndTabs(module_.before.Line(beforeLine));
    const std::string_view after = TrimBlanksAndTabs(module_.after.Line(afterLine));
    if (before == after) return;
    if (IsConditionalCompilationLine(before) && !LineNumberOf(after).empty()) {
      Warn(beforeLine, "the line number " + std::string(LineNumberOf(after)) +
                           " stands in front of " + DirectiveOf(before) +
                           " now; Visual Basic takes no label in front of a # line: remove it");
    } else if (IsConditionalCompilationLine(after) && !LineNumberOf(before).empty()) {
      Warn(beforeLine, "the line number " + std::string(LineNumberOf(before)) +
                           " was removed from in front of " + DirectiveOf(after) +
                           "; see that no jump aimed at it");
    }
  }

  static std::string DirectiveOf(std::string_view line) {
    return std::string(line.substr(0, line.find_first_of(" \t", 1)));
  }

  void CheckJumps(const ProcedureSpan& procedure) {
    const int first = module_.alignment.BeforeLine(procedure.bodyLine);
    const int last = LastLineBefore(procedure);
    if (first == 0 || last < first) return;
    FindTargets(first, last);
    if (targets_.empty()) return;
    FollowTargets(first, last);
    for (const Target& target : targets_) WarnOf(target);
  }

  /// The last line of the procedure as it was; lines at its end may be inserted ones.
  int LastLineBefore(const ProcedureSpan& procedure) const {
    for (int line = procedure.endLine; line >= procedure.bodyLine; --line) {
      if (const int before = module_.alignment.BeforeLine(line)) return before;
    }
    return 0;
  }

  void FindTargets(int first, int last) {
    jumps_.clear();
    targets_.clear();
    JumpScanner scanner;
    for (int line = first; line <= last; ++line) {
      scanner.Scan(module_.before.Line(line), line, jumps_);
    }
    for (const NumericJump& jump : jumps_) {
      Target* known = FindTarget(jump.target);
      if (!known) known = &targets_.emplace_back(Target{jump.target, jump.word, jump.line});
      ++known->jumps;
    }
  }

  Target* FindTarget(std::string_view number) {
    const auto found = std::find_if(targets_.begin(), targets_.end(),
                                    [&](const Target& at) { return at.number == number; });
    return found == targets_.end() ? nullptr : &*found;
  }

  void FollowTargets(int first, int last) {
    Continues above = Continues::kNothing;
    for (int line = first; line <= last; ++line) {
      const std::string_view before = module_.before.Line(line);
      const int afterLine = follower_.AfterLine(line);
      if (above == Continues::kNothing && afterLine > 0) {
        FollowLine(line, LineNumberOf(before), LineNumberOf(module_.after.Line(afterLine)));
      }
      above = ContinuedBelow(before, above);
    }
  }

  void FollowLine(int line, std::string_view before, std::string_view after) {
    Target* had = before.empty() ? nullptr : FindTarget(before);
    if (had) ++had->carriers;
    if (before == after) return;
    if (had) had->lostAt = line;
    Target* has = after.empty() ? nullptr : FindTarget(after);
    if (has) has->gainedFor = line;
  }

  void WarnOf(const Target& target) {
    const std::string number(target.number);
    if (target.lostAt > 0 && target.gainedFor > 0) {
      Warn(target.lostAt, "label " + number + AimedAt(target) +
                              " stands at another line now (line " + Shown(target.gainedFor) +
                              " before), so the jump goes there; " + Remedy(target));
    } else if (target.lostAt > 0) {
      Warn(target.lostAt, "label " + number + AimedAt(target) +
                              " was removed; the jump no longer compiles: " + Remedy(target));
    } else if (target.gainedFor > 0 && target.carriers > 0) {
      Warn(target.gainedFor, "the line number " + number +
                                 " was put here, but it stands at another line already" +
                                 AimedAt(target, ", one") + "; " + Remedy(target));
    } else if (target.gainedFor > 0) {
      Warn(target.gainedFor, "the line number " + number + " was put here, and " + JumpOf(target) +
                                 " goes to it now; see that it is meant to");
    }
  }

  std::string AimedAt(const Target& target, std::string_view lead = "") const {
    return std::string(lead) + " that " + JumpOf(target) + " jumps to";
  }

  std::string JumpOf(const Target& target) const {
    std::string text = std::string(target.word) + " at line " + Shown(target.jumpLine);
    if (target.jumps > 1) text += " (and " + std::to_string(target.jumps - 1) + " more)";
    return text;
  }

  static std::string Remedy(const Target& target) {
    return "give the line a name as its label (Line" + std::string(target.number) +
           ":) and jump to that";
  }

  std::string Shown(int line) const {
    return std::to_string(module_.shownLine ? module_.shownLine(line) : line);
  }

  void Warn(int line, std::string text) { warnings_.push_back({line, std::move(text)}); }

  const ChangedModule& module_;
  Follower follower_;
  std::vector<NumericJump> jumps_;  // of the procedure at hand
  std::vector<Target> targets_;
  std::vector<Warning> warnings_;
};

}  // namespace

std::vector<Warning> LabelWarnings(const ChangedModule& module) {
  return LabelWarner(module).Find();
}

}  // namespace brimwork

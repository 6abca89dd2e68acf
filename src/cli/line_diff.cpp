#include "cli/line_diff.h"

#include <algorithm>
#include <cstdint>

#include "cli/common_lines.h"

namespace brimwork {
namespace {

/// Up to this length on both sides a piece is compared exactly.
constexpr int kLongestPiece = 400;

/// How often a piece without anchors is cut at lines that are unique in it.
constexpr int kUniqueLineRounds = 3;

class Comparison {
 public:
  Comparison(const FileLines& before, const FileLines& after, EditScript& script)
      : before_(before), after_(after), script_(script) {}

  void Run(const std::vector<DiffAnchor>& anchors) {
    DiffPiece rest{1, before_.lines.Count(), 1, after_.lines.Count()};
    CutAt(rest, anchors, kUniqueLineRounds);
  }

 private:
  /// Compares what lies between the anchors; those outside the piece are passed over.
  void CutAt(DiffPiece piece, const std::vector<DiffAnchor>& anchors, int rounds) {
    for (const DiffAnchor& anchor : anchors) {
      const DiffPiece head{piece.before, anchor.before - piece.before, piece.after,
                           anchor.after - piece.after};
      const bool isInside = head.beforeCount >= 0 && head.afterCount >= 0 &&
                            head.beforeCount <= piece.beforeCount &&
                            head.afterCount <= piece.afterCount;
      if (!isInside) continue;
      Compare(head, rounds);
      piece = Behind(head, piece);
    }
    Compare(piece, rounds);
  }

  static DiffPiece Behind(const DiffPiece& head, const DiffPiece& piece) {
    return {piece.before + head.beforeCount, piece.beforeCount - head.beforeCount,
            piece.after + head.afterCount, piece.afterCount - head.afterCount};
  }

  void Compare(DiffPiece piece, int rounds) {
    const int head = SameAtTop(piece);
    piece = {piece.before + head, piece.beforeCount - head, piece.after + head,
             piece.afterCount - head};
    const int tail = SameAtBottom(piece);
    piece.beforeCount -= tail;
    piece.afterCount -= tail;
    script_.Keep(head);
    CompareMiddle(piece, rounds);
    script_.Keep(tail);
  }

  bool Same(int before, int after) const { return SameLine(before_, before, after_, after); }

  int SameAtTop(const DiffPiece& piece) const {
    const int most = std::min(piece.beforeCount, piece.afterCount);
    int same = 0;
    while (same < most && Same(piece.before + same, piece.after + same)) ++same;
    return same;
  }

  int SameAtBottom(const DiffPiece& piece) const {
    const int most = std::min(piece.beforeCount, piece.afterCount);
    const int lastBefore = piece.before + piece.beforeCount - 1;
    const int lastAfter = piece.after + piece.afterCount - 1;
    int same = 0;
    while (same < most && Same(lastBefore - same, lastAfter - same)) ++same;
    return same;
  }

  void CompareMiddle(const DiffPiece& piece, int rounds) {
    if (piece.beforeCount == 0 || piece.afterCount == 0) {
      script_.Change(piece.beforeCount, piece.afterCount);
    } else if (std::max(piece.beforeCount, piece.afterCount) <= kLongestPiece) {
      CompareExactly(piece);
    } else {
      CutLongPiece(piece, rounds);
    }
  }

  void CutLongPiece(const DiffPiece& piece, int rounds) {
    std::vector<DiffAnchor> cuts;
    if (rounds > 0) cuts = UniqueCommonLines(before_, after_, piece);
    if (cuts.empty()) {
      CutEvenly(piece);
    } else {
      CutAt(piece, cuts, rounds - 1);
    }
  }

  void CompareExactly(const DiffPiece& piece) {
    DiffPiece rest = piece;
    for (const DiffAnchor& common : CommonLines(before_, after_, piece)) {
      script_.Change(common.before - rest.before, common.after - rest.after);
      script_.Keep(1);
      const DiffPiece head{rest.before, common.before + 1 - rest.before, rest.after,
                           common.after + 1 - rest.after};
      rest = Behind(head, rest);
    }
    script_.Change(rest.beforeCount, rest.afterCount);
  }

  /// Nothing tells where the sides meet, so they are cut in proportion.
  void CutEvenly(const DiffPiece& piece) {
    const std::int64_t parts = std::max(piece.beforeCount, piece.afterCount) / kLongestPiece + 1;
    std::vector<DiffAnchor> cuts;
    for (std::int64_t part = 1; part < parts; ++part) {
      cuts.push_back({piece.before + static_cast<int>(piece.beforeCount * part / parts),
                      piece.after + static_cast<int>(piece.afterCount * part / parts)});
    }
    CutAt(piece, cuts, 0);
  }

  const FileLines& before_;
  const FileLines& after_;
  EditScript& script_;
};

}  // namespace

void CompareFiles(const FileLines& before, const FileLines& after,
                  const std::vector<DiffAnchor>& anchors, EditScript& script) {
  Comparison(before, after, script).Run(anchors);
}

}  // namespace brimwork

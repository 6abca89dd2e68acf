#include "cli/piece_walk.h"

#include <algorithm>

#include "cli/code_tokens.h"

namespace brimwork {
namespace {

Continues BelowOf(std::string_view line, Continues above) {
  if (!AsksForContinuation(line)) return Continues::kNothing;
  CodeTokenizer tokenizer(line, above);
  while (tokenizer.Next()) {
  }
  return tokenizer.Below();
}

}  // namespace

void PieceWalk::Restart() {
  lineNumber_ = 0;
  line_.clear();
  above_ = Continues::kNothing;
  pieces_.clear();
  index_ = 0;
}

bool PieceWalk::Next() {
  if (index_ < pieces_.size()) ++index_;
  while (true) {
    while (index_ < pieces_.size() && pieces_[index_].size == 0) ++index_;
    if (index_ < pieces_.size()) return true;
    if (!NextLine()) return false;
  }
}

bool PieceWalk::NextLine() {
  if (lineNumber_ >= module_.CountOfLines()) return false;
  above_ = BelowOf(line_, above_);
  module_.ReadLine(++lineNumber_, line_);
  pieces_ = SpellingPieces(line_, separator_);
  index_ = 0;
  return true;
}

bool PieceWalk::IsInEarlierPiece(std::size_t at) const {
  return std::any_of(pieces_.begin(), pieces_.begin() + static_cast<std::ptrdiff_t>(index_),
                     [at](const SpellingPiece& piece) {
                       return piece.offset <= at && at < piece.offset + piece.size;
                     });
}

}  // namespace brimwork

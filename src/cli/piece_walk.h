// Goes over a module as the spell check does, to know where each text that it sends stands.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "environment/basic_lines.h"
#include "environment/code_module.h"
#include "ide_windows/modSpellCheck.h"

namespace brimwork {

class PieceWalk {
 public:
  /// separator: the line that the spell check leaves out.
  PieceWalk(CodeModule& module, std::string separator)
      : module_(module), separator_(std::move(separator)) {}

  /// Starts again at the module's first line.
  void Restart();

  /// Goes on to the next piece that is sent; false behind the last one.
  bool Next();

  // Where the walk stands, once Next has returned true.

  int LineNumber() const { return lineNumber_; }
  const std::string& Line() const { return line_; }  // as it was when the walk came to it
  Continues Above() const { return above_; }         // what that line continues
  const SpellingPiece& Piece() const { return pieces_[index_]; }
  std::string_view Text() const {
    return std::string_view(line_).substr(Piece().offset, Piece().size);
  }
  /// True for a place in the line that an earlier piece of the line holds.
  bool IsInEarlierPiece(std::size_t at) const;

 private:
  bool NextLine();

  CodeModule& module_;
  std::string separator_;
  int lineNumber_ = 0;
  std::string line_;
  Continues above_ = Continues::kNothing;
  std::vector<SpellingPiece> pieces_;
  std::size_t index_ = 0;
};

}  // namespace brimwork

// The spelling dialog of the word processor for one module: it gets the texts that the spell check
// sends, one by one, finds out where each of them stands, and gives it back as it shall be.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "cli/line_decisions.h"
#include "cli/piece_walk.h"
#include "cli/prose.h"
#include "cli/spell_run.h"
#include "memory/memory_word_processor.h"
#include "memory/source_file.h"

namespace brimwork {

class ModuleSpelling {
 public:
  /// Becomes the dialog of processors. separator: the line that the spell check leaves out.
  /// Everything given outlives it.
  ModuleSpelling(SpellRun& run, const SourceFile& file, CodeModule& module, std::string separator,
                 MemoryWordProcessors& processors);
  ModuleSpelling(const ModuleSpelling&) = delete;
  ModuleSpelling& operator=(const ModuleSpelling&) = delete;

  /// Runs the spell check until it changes nothing more: each time it corrects one piece of a line
  /// at most. Each word is decided on when its piece is first come to, and never again: a spell
  /// check that runs later on changes nothing.
  void CheckWith(const std::function<void()>& spellCheck);

  /// For a run that lists: a line for each misspelled word, and their number.
  const std::string& List() const { return list_; }
  int ListedWords() const { return listedWords_; }

 private:
  std::string Correct(const std::string& text);
  void FollowTheSpellCheck(const std::string& text);
  void TakeOverWrittenPieces();

  void DecideOnPiece();
  bool HasStopped() const { return run_.questions && run_.questions->HasStopped(); }
  std::optional<Misspelling> NextUndecided();
  bool IsUndecided(const Misspelling& wrong) const;
  std::optional<std::string> ReplacementOf(const Misspelling& wrong);
  MisspelledWord AsShown(const Misspelling& wrong) const;

  SpellRun& run_;
  const SourceFile& file_;
  PieceWalk walk_;
  std::vector<ProseStretch> prose_;  // of the line that the walk is at
  std::map<int, LineDecisions> decisions_;
  std::map<int, SpellingPiece> written_;  // the piece of each line that this check has corrected
  bool isFinished_ = false;

  std::string list_;
  int listedWords_ = 0;
};

}  // namespace brimwork

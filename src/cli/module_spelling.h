// The spelling dialog of the word processor for one module: it gets the texts that the spell check
// sends, one by one, finds out where each of them stands, and gives it back as it shall be.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

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
  /// at most. No place is asked about twice, also by a spell check that runs later on.
  void CheckWith(const std::function<void()>& spellCheck);

  /// For a run that lists: a line for each misspelled word, and their number.
  const std::string& List() const { return list_; }
  int ListedWords() const { return listedWords_; }

 private:
  std::string Correct(const std::string& text);
  void FollowTheSpellCheck(const std::string& text);
  std::string CorrectedPiece(const std::string& text);
  std::optional<Misspelling> NextMisspelling(const std::string& text, std::size_t from);
  bool IsToBeChecked(const Misspelling& wrong) const;
  std::optional<std::string> ReplacementOf(const Misspelling& wrong, const MisspelledWord& shown);
  MisspelledWord AsShown(const Misspelling& wrong, const std::string& textBefore,
                         const std::string& text) const;

  SpellRun& run_;
  const SourceFile& file_;
  MemoryWordProcessors& processors_;
  PieceWalk walk_;
  std::vector<ProseStretch> prose_;  // of the line that the walk is at
  int spellChecks_ = 0;              // how many the walk has seen begin
  int correctedLine_ = 0;            // of this spell check, the latest one
  bool hasChanged_ = false;
  std::vector<std::size_t> done_;  // pieces of each line that need no more asking

  std::string list_;
  int listedWords_ = 0;
};

}  // namespace brimwork

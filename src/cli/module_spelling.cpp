#include "cli/module_spelling.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "cli/spell_display.h"
#include "environment/text.h"
#include "spelling/access_key.h"

namespace brimwork {
namespace {

std::size_t EndOf(const SpellingPiece& piece) { return piece.offset + piece.size; }

}  // namespace

ModuleSpelling::ModuleSpelling(SpellRun& run, const SourceFile& file, CodeModule& module,
                               std::string separator, MemoryWordProcessors& processors)
    : run_(run), file_(file), walk_(module, std::move(separator)) {
  processors.dialog = [this](const std::string& text) { return Correct(text); };
}

void ModuleSpelling::CheckWith(const std::function<void()>& spellCheck) {
  do {
    TakeOverWrittenPieces();
    walk_.Restart();
    spellCheck();
  } while (!written_.empty());
  isFinished_ = true;
}

void ModuleSpelling::TakeOverWrittenPieces() {
  for (const auto& [line, piece] : written_) decisions_[line].TakeOver(piece.offset, EndOf(piece));
  written_.clear();
}

std::string ModuleSpelling::Correct(const std::string& text) {
  if (isFinished_) return text;
  FollowTheSpellCheck(text);
  DecideOnPiece();
  const auto decisions = decisions_.find(walk_.LineNumber());
  // The spell check would build a second correction of the line without the first one.
  if (decisions == decisions_.end() || written_.contains(walk_.LineNumber())) return text;
  const SpellingPiece& piece = walk_.Piece();
  std::string corrected = decisions->second.Corrected(walk_.Line(), piece.offset, EndOf(piece));
  if (corrected != text) written_.emplace(walk_.LineNumber(), piece);
  return corrected;
}

void ModuleSpelling::FollowTheSpellCheck(const std::string& text) {
  const int lineBefore = walk_.LineNumber();
  if (!walk_.Next() || walk_.Text() != text) {
    throw std::logic_error("the spell check sent a text that the module has not: " + text);
  }
  if (walk_.LineNumber() != lineBefore) prose_ = ProseOf(walk_.Line(), walk_.Above());
}

/// What is decided about one word may hold for the next ones, so they are looked up one by one.
void ModuleSpelling::DecideOnPiece() {
  while (!HasStopped()) {
    const auto wrong = NextUndecided();
    if (!wrong) return;
    const auto replacement = ReplacementOf(*wrong);
    decisions_[walk_.LineNumber()].Add(walk_.Piece().offset + wrong->offset, wrong->size,
                                       replacement);
  }
}

std::optional<Misspelling> ModuleSpelling::NextUndecided() {
  for (Misspelling& wrong : run_.session.Misspellings(walk_.Text())) {
    if (IsUndecided(wrong)) return std::move(wrong);
  }
  return std::nullopt;
}

/// A piece may hold code, when an apostrophe in a literal was taken for the start of a comment, and
/// what an earlier piece of the line held.
bool ModuleSpelling::IsUndecided(const Misspelling& wrong) const {
  const std::size_t at = walk_.Piece().offset + wrong.offset;
  const bool isProse =
      std::ranges::any_of(prose_, [at](const ProseStretch& prose) { return prose.Holds(at); });
  if (!isProse || walk_.IsInEarlierPiece(at)) return false;
  const auto decisions = decisions_.find(walk_.LineNumber());
  return decisions == decisions_.end() || !decisions->second.Cover(at, wrong.size);
}

std::optional<std::string> ModuleSpelling::ReplacementOf(const Misspelling& wrong) {
  if (wrong.replacement) return wrong.replacement;
  if (run_.mode == SpellRun::Mode::kList) {
    list_ += ListLine(AsShown(wrong), run_.session.Suggestions(wrong.word));
    ++listedWords_;
  }
  if (!run_.questions) return std::nullopt;
  const auto chosen = run_.questions->Ask(AsShown(wrong));
  if (!chosen) return std::nullopt;
  return InFormOf(walk_.Text().substr(wrong.offset, wrong.size), *chosen);
}

/// With all corrections of the line so far.
MisspelledWord ModuleSpelling::AsShown(const Misspelling& wrong) const {
  const std::string& line = walk_.Line();
  const std::size_t at = walk_.Piece().offset + wrong.offset;
  const auto decisions = decisions_.find(walk_.LineNumber());
  const std::string before =
      decisions == decisions_.end() ? line.substr(0, at) : decisions->second.Corrected(line, 0, at);
  MisspelledWord shown;
  shown.path = file_.Path();
  shown.line = file_.FileLineOf(walk_.LineNumber());
  shown.column = CharacterCount(before) + 1;
  shown.before = file_.ForDisplay(before);
  shown.written = line.substr(at, wrong.size);
  shown.behind = file_.ForDisplay(line.substr(at + wrong.size));
  shown.word = wrong.word;
  shown.encoding = file_.Encoding();
  return shown;
}

}  // namespace brimwork

#include "cli/module_spelling.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "cli/spell_display.h"
#include "environment/text.h"
#include "spelling/access_key.h"

namespace brimwork {

ModuleSpelling::ModuleSpelling(SpellRun& run, const SourceFile& file, CodeModule& module,
                               std::string separator, MemoryWordProcessors& processors)
    : run_(run), file_(file), processors_(processors), walk_(module, std::move(separator)) {
  processors_.dialog = [this](const std::string& text) { return Correct(text); };
}

void ModuleSpelling::CheckWith(const std::function<void()>& spellCheck) {
  do {
    hasChanged_ = false;
    spellCheck();
  } while (hasChanged_);
}

std::string ModuleSpelling::Correct(const std::string& text) {
  FollowTheSpellCheck(text);
  const auto line = static_cast<std::size_t>(walk_.LineNumber());
  if (done_.size() < line) done_.resize(line);
  std::size_t& done = done_[line - 1];
  // The spell check builds the next correction of the line from what the line was before this one.
  const bool mustWait = walk_.LineNumber() == correctedLine_;
  const bool hasStopped = run_.questions && run_.questions->HasStopped();
  if (walk_.Index() < done || mustWait || hasStopped) return text;
  std::string corrected = CorrectedPiece(text);
  done = walk_.Index() + 1;
  if (corrected != text) {
    correctedLine_ = walk_.LineNumber();
    hasChanged_ = true;
  }
  return corrected;
}

/// Each spell check opens a document of its own.
void ModuleSpelling::FollowTheSpellCheck(const std::string& text) {
  if (processors_.log.documentsOpened != spellChecks_) {
    spellChecks_ = processors_.log.documentsOpened;
    correctedLine_ = 0;
    walk_.Restart();
  }
  const int lineBefore = walk_.LineNumber();
  if (!walk_.Next() || walk_.Text() != text) {
    throw std::logic_error("the spell check sent a text that the module has not: " + text);
  }
  if (walk_.LineNumber() != lineBefore) prose_ = ProseOf(walk_.Line(), walk_.Above());
}

/// What is decided about one word may hold for the next ones, so they are looked up one by one.
std::string ModuleSpelling::CorrectedPiece(const std::string& text) {
  std::string corrected;
  std::size_t taken = 0;
  while (const auto wrong = NextMisspelling(text, taken)) {
    corrected.append(text, taken, wrong->offset - taken);
    taken = wrong->offset + wrong->size;
    const auto replacement = ReplacementOf(*wrong, AsShown(*wrong, corrected, text));
    corrected += replacement.value_or(text.substr(wrong->offset, wrong->size));
  }
  return corrected.append(text, taken);
}

std::optional<Misspelling> ModuleSpelling::NextMisspelling(const std::string& text,
                                                           std::size_t from) {
  for (Misspelling& wrong : run_.session.Misspellings(text)) {
    if (wrong.offset >= from && IsToBeChecked(wrong)) return std::move(wrong);
  }
  return std::nullopt;
}

/// A piece may hold code, when an apostrophe in a literal was taken for the start of a comment, and
/// what an earlier piece of the line held.
bool ModuleSpelling::IsToBeChecked(const Misspelling& wrong) const {
  const std::size_t at = walk_.Piece().offset + wrong.offset;
  return !walk_.IsInEarlierPiece(at) &&
         std::ranges::any_of(prose_, [at](const ProseStretch& prose) { return prose.Holds(at); });
}

std::optional<std::string> ModuleSpelling::ReplacementOf(const Misspelling& wrong,
                                                         const MisspelledWord& shown) {
  if (wrong.replacement) return wrong.replacement;
  if (run_.mode == SpellRun::Mode::kList) {
    list_ += ListLine(shown, run_.session.Suggestions(wrong.word));
    ++listedWords_;
  }
  if (!run_.questions) return std::nullopt;
  const auto chosen = run_.questions->Ask(shown);
  return chosen ? std::optional(InFormOf(shown.written, *chosen)) : std::nullopt;
}

/// textBefore: of the piece, as it is with the corrections so far.
MisspelledWord ModuleSpelling::AsShown(const Misspelling& wrong, const std::string& textBefore,
                                       const std::string& text) const {
  const std::string& line = walk_.Line();
  const SpellingPiece& piece = walk_.Piece();
  const std::string before = line.substr(0, piece.offset) + textBefore;
  MisspelledWord shown;
  shown.path = file_.Path();
  shown.line = file_.FileLineOf(walk_.LineNumber());
  shown.column = CharacterCount(before) + 1;
  shown.before = file_.ForDisplay(before);
  shown.written = text.substr(wrong.offset, wrong.size);
  shown.behind = file_.ForDisplay(text.substr(wrong.offset + wrong.size) +
                                  line.substr(piece.offset + piece.size));
  shown.word = wrong.word;
  shown.encoding = file_.Encoding();
  return shown;
}

}  // namespace brimwork

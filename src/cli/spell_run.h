// What the files of one run of the tool share when their spelling is checked.
#pragma once

#include <memory>
#include <string_view>
#include <utility>

#include "cli/spell_questions.h"
#include "spelling/spelling_session.h"

namespace brimwork {

inline constexpr std::string_view kSpellCheckCaption = "Spell Check - Quotes and Comments";

struct SpellRun {
  enum class Mode {
    kAsk,      // about each misspelled word
    kList,     // the misspelled words and change nothing
    kReplace,  // the words that have a replacement, without asking
  };

  SpellRun(Mode itsMode, SpellingSession itsSession)
      : mode(itsMode), session(std::move(itsSession)) {}

  Mode mode;
  SpellingSession session;
  std::unique_ptr<SpellQuestions> questions;  // for kAsk
};

}  // namespace brimwork

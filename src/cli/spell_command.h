// What a run is to do about the spelling of its files.
#pragma once

#include "cli/console.h"
#include "cli/run_options.h"
#include "cli/spell_options.h"

namespace brimwork {

/// Gives a run of the spell check, and of a clean-up with that step, what its files share, and sets
/// the mode of a run that asks. A clean-up that could not ask goes without the step, and the user
/// is told. Other runs stay as they are. Throws UsageError, DictionaryError and UserWordsError.
void PrepareSpelling(RunOptions& run, const SpellOptions& options, Console& console);

}  // namespace brimwork

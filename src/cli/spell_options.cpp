#include "cli/spell_options.h"

#include <CLI/CLI.hpp>

namespace brimwork {

void AddListOption(CLI::App& command, SpellOptions& options) {
  command.add_flag("--list", options.list, "List misspelled words; exit with 1")->group("Modes");
}

void AddSpellOptions(CLI::App& command, SpellOptions& options) {
  command
      .add_option("--dictionary", options.dictionaries, "Dictionary, as en_US (yours; repeatable)")
      ->option_text("NAME")
      ->allow_extra_args(false);
  command.add_option("--replace", options.replacements, "Correct this, ask nothing (repeatable)")
      ->option_text("WORD=WORD")
      ->allow_extra_args(false);
}

}  // namespace brimwork

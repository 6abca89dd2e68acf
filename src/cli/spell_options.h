// The options of the spell check as they are typed.
#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace brimwork {

struct SpellOptions {
  bool list = false;
  std::vector<std::string> dictionaries;  // names or paths
  std::vector<std::string> replacements;  // WORD=WORD
};

/// --list.
void AddListOption(CLI::App& command, SpellOptions& options);

/// --dictionary and --replace.
void AddSpellOptions(CLI::App& command, SpellOptions& options);

}  // namespace brimwork

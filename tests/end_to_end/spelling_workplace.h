// A workplace whose dictionaries are a test's own, and a user who answers on a terminal.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "end_to_end/workplace.h"
#include "support/small_dictionary.h"

namespace brimwork {

class SpellingWorkplace : public Workplace {
 public:
  /// An English dictionary of a few words.
  SpellingWorkplace() {
    SetVariable("DICPATH", (Folder() / "dictionaries").string());
    AddDictionary("en_US", {"the", "end", "word", "receive", "file", "a", "note", "exit"});
  }

  void AddDictionary(const std::string& name, const std::vector<std::string>& words) const {
    WriteDictionary(Folder() / "dictionaries", name, words);
  }

  /// The user types the answers, a line each, and then the end of the input.
  ProgramResult RunOnTerminal(const Words& arguments, const Words& answers = {}) const {
    std::string typed;
    for (const std::string& answer : answers) typed += answer + '\n';
    ProgramCall call = CallOf(arguments, std::move(typed));
    call.inputIsTerminal = call.errorIsTerminal = true;
    return RunProgram(call);
  }
};

}  // namespace brimwork

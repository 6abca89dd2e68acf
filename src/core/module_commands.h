// The commands on the whole module: the progress window, and the walk over all procedures.
#pragma once

#include <span>
#include <string_view>

#include "core/add_in.h"

namespace brimwork {

struct ModuleCommand {
  enum class Runs { kForEachProcedure, kOnceWithProcedures, kOnce };

  std::string_view caption;
  std::string_view title;    // of the progress window
  std::string_view message;  // in the progress window
  Runs runs;
  void (*act)(AddIn&);
};

std::span<const ModuleCommand> ModuleCommands();

/// Without a code source the user is told and nothing happens. May raise RunTimeError.
void RunModuleCommand(AddIn& addIn, const ModuleCommand& command);

}  // namespace brimwork

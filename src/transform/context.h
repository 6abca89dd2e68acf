// What the code commands share: the environment, and the record of the current procedure that one
// query fills and the commands after it read. One object, handed to each command.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "environment/code_module.h"
#include "environment/environment.h"

namespace brimwork {

/// The procedure found by the latest GetProcedureBounds. All lines are module lines.
struct CurrentProcedure {
  std::string CurrentProcName;  // "" when the line lay outside every procedure
  ProcKind CurrentProcKind = ProcKind::kProcedure;
  int CurrentProcStart = 0;
  int CurrentProcEnd = 0;
  std::string CurrentProcDeclaration;  // the declaration's line
  std::string CurrentProcSignature;    // the declaration from the procedure's name on
  int FirstBodyLine = 0;               // first line behind the declaration
  int LastBodyLine = -1;               // line above the closing line
  std::uintptr_t module = 0;           // identity of the module it was found in

  bool Holds(int line) const {
    return !CurrentProcName.empty() && CurrentProcStart <= line && line <= CurrentProcEnd;
  }
};

struct Context {
  Environment& environment;
  CurrentProcedure procedure = {};
  std::optional<int> indentUnit = {};  // once the running command has asked for it
};

}  // namespace brimwork

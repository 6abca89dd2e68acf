// The procedures of a module as short texts, so that a test shows at a glance where each one
// stands.
#pragma once

#include <string>
#include <vector>

#include "memory/module_text.h"
#include "memory/procedure_index.h"

namespace brimwork {

/// Every procedure from the top down as "name start/declaration/end", asked of the index line by
/// line; a Property has its accessor in front of its name.
inline std::vector<std::string> ProceduresIn(ProcedureIndex& index, const ModuleText& text) {
  constexpr const char* kAccessors[] = {"", "Let ", "Set ", "Get "};
  std::vector<std::string> procedures;
  for (int line = 1; line <= text.Count(); ++line) {
    const auto* found = index.At(text, line);
    if (found == nullptr || found->start != line) continue;
    std::string procedure = kAccessors[static_cast<int>(found->kind)];
    procedure.append(ProcedureIndex::NameOf(text, *found)).append(" ");
    procedure.append(std::to_string(found->start)).append("/");
    procedure.append(std::to_string(found->body)).append("/");
    procedures.push_back(procedure.append(std::to_string(found->end)));
  }
  return procedures;
}

}  // namespace brimwork

// What the two lists above a module's text offer: the objects that it handles events of, and the
// procedures of each.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "environment/code_module.h"

namespace brimwork::bench {

struct ListedProcedure {
  std::string object;  // "" for (General)
  std::string label;   // as the list shows it
  int start = 0;       // the first line, comments above the declaration included
  int body = 0;        // the line of the declaration
  int end = 0;         // the last line

  bool operator==(const ListedProcedure&) const = default;
};

/// In the order of the module. handlesEvents: whether names like Form_Load stand for events, as in
/// forms and classes.
std::vector<ListedProcedure> ListProcedures(CodeModule& module, bool handlesEvents);

/// The objects of the procedures, in alphabetical order, each once.
std::vector<std::string> ObjectsOf(const std::vector<ListedProcedure>& procedures);

/// The procedure that the line belongs to; null in the declarations.
const ListedProcedure* ProcedureAt(const std::vector<ListedProcedure>& procedures, int line);

}  // namespace brimwork::bench

// Makes Visual Basic modules of any length for tests and benchmarks. The same options give the same
// text everywhere, so a failing case is named by its seed.
#pragma once

#include <string>
#include <vector>

#include "environment/code_module.h"

namespace brimwork {

struct GeneratorOptions {
  unsigned seed = 1;
  int lines = 1000;            // reached, and passed by less than one procedure (a few if odd)
  bool messy = false;          // indents, blanks and tabs at random, else as the indenter does
  bool continuations = false;  // some statements and declarations run over several lines
  bool lineNumbers = false;    // some procedures carry numeric labels of their own ("120:")
  bool oddities = false;       // half-written and unusual code; without it the code is well-formed
  std::string lineEnd = "\r\n";
};

struct GeneratedProcedure {
  std::string name;  // as written, without a type character
  std::string word;  // "Sub", "Function" or "Property"
  ProcKind kind = ProcKind::kProcedure;

  bool operator==(const GeneratedProcedure&) const = default;
};

struct GeneratedModule {
  std::string text;                            // UTF-8, all of it in Windows-1252's reach
  std::vector<GeneratedProcedure> procedures;  // from the top down
};

/// A module of at least options.lines lines (none at all for 0). Names differ without oddities;
/// with them a name may come twice.
GeneratedModule GenerateModule(const GeneratorOptions& options);

}  // namespace brimwork

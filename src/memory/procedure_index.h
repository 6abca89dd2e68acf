// Which procedure each line belongs to, worked out from the text alone, from the top down and only
// as far as somebody asked. An edit forgets what it may have changed and everything below it; a
// command that moves down a module therefore has each procedure read a few times, however long the
// module is.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "environment/basic_lines.h"
#include "environment/code_module.h"
#include "memory/module_text.h"

namespace brimwork {

/// Whose the lines behind the last procedure's closing line are.
enum class LinesBelow { kNobodys, kTheLastProcedures };

class ProcedureIndex {
 public:
  explicit ProcedureIndex(LinesBelow below = LinesBelow::kNobodys) : below_(below) {}

  struct Procedure {
    int start = 0;  // first line, attached comment and blank lines included
    int body = 0;   // line of the declaration
    int end = 0;    // last line
    ProcKind kind = ProcKind::kProcedure;

    // Where the name stands in the declaration, from the end of the line's text: blanks around the
    // text leave that alone.
    std::uint32_t nameFromEnd = 0;
    std::uint32_t nameSize = 0;
  };

  /// The last line above the first declaration that is neither blank nor comment; all lines when
  /// there is no declaration.
  int DeclarationLines(const ModuleText& text);

  /// The procedure that holds the line, null outside every procedure. Valid until the next call.
  const Procedure* At(const ModuleText& text, int line);

  /// The first procedure of that name and kind, null when there is none.
  const Procedure* FirstNamed(const ModuleText& text, std::string_view name, ProcKind kind);

  /// The procedure's name as its declaration writes it. Valid until the text is edited.
  static std::string_view NameOf(const ModuleText& text, const Procedure& procedure);

  /// Lines from firstLine on may have changed, come or gone.
  void NoteEdit(int firstLine);

 private:
  struct Entry : Procedure {
    int dependsOnLine = 0;  // the last line that was looked at to place it
  };

  bool ScanNext(const ModuleText& text);
  bool IsBelowTheLast(const ModuleText& text, int line) const;
  const Procedure* Whole(const ModuleText& text, std::size_t place);
  bool IsKnownBelow(int line) const {
    return complete_ || (!entries_.empty() && entries_.back().end >= line);
  }

  LinesBelow below_;
  std::vector<Entry> entries_;
  Procedure last_;         // with the lines below
  bool complete_ = false;  // no procedure behind the last entry
  int declarationLines_ = 0;
};

}  // namespace brimwork

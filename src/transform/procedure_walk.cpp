#include "transform/procedure_walk.h"

#include <algorithm>

#include "environment/resume_next.h"
#include "transform/procedure_bounds.h"

namespace brimwork {
namespace {

/// Asks again when the environment is busy; a walk that lost its place could act on a procedure
/// twice.
template <class Question>
int AskedUntilAnswered(Question question, int fallback) {
  int answer = fallback;
  Insist([&] { answer = question(); });
  return answer;
}

/// The first line behind the procedure as it stands now.
int LineBehind(CodeModule& module, const ProcedureName& procedure, int fallback) {
  const auto& [name, kind] = procedure;
  return AskedUntilAnswered(
      [&, &name = name, kind = kind] {
        return module.ProcStartLine(name, kind) + module.ProcCountLines(name, kind);
      },
      fallback);
}

}  // namespace

void WalkProcedures(Context& context, CodePane& pane, CodeModule& module,
                    const WalkActions& actions) {
  const auto countOfLines = [&] {
    return AskedUntilAnswered([&] { return module.CountOfLines(); }, 0);
  };
  const auto declarationLines = [&] {
    return AskedUntilAnswered([&] { return module.CountOfDeclarationLines(); }, 0);
  };
  int line = declarationLines() + 1;
  while (line <= countOfLines()) {
    ResumeNext([&] { pane.SetSelection({line, 1, line, 1}); });
    ResumeNext([&] { GetProcedureBounds(context, module, line); });
    if (!context.procedure.Holds(line)) {
      ++line;
      continue;
    }
    const ProcedureName procedure{context.procedure.CurrentProcName,
                                  context.procedure.CurrentProcKind};
    const int lineBehindBefore = context.procedure.CurrentProcEnd + 1;
    actions.transform();
    const int start = declarationLines();
    actions.report(line - start, countOfLines() - start);
    line = std::max(line + 1, LineBehind(module, procedure, lineBehindBefore));
  }
}

}  // namespace brimwork

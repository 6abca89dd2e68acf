// The walk over every procedure of a module.
#pragma once

#include <functional>

#include "environment/vbe.h"
#include "transform/context.h"

namespace brimwork {

/// What a walk does at each procedure. Run-time errors are theirs to handle.
struct WalkActions {
  /// Acts on context.procedure; may add and remove lines.
  std::function<void()> transform;

  /// Told after each procedure: how far the walk is (the line at which the step began, less the
  /// declarations section) and how far it goes.
  std::function<void(int current, int total)> report;
};

/// Runs actions.transform once for each procedure, from the declarations section down, moving the
/// caret along. It always ends; a failing environment call skips no more than what needed it.
void WalkProcedures(Context& context, CodePane& pane, CodeModule& module,
                    const WalkActions& actions);

}  // namespace brimwork

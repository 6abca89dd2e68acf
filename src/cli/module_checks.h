// The checks of a finished command: that it kept the user's code, and what the user should know.
#pragma once

#include <string>
#include <vector>

#include "cli/alignment.h"
#include "cli/allowance.h"
#include "cli/module_lines.h"
#include "cli/module_session.h"
#include "cli/vouch.h"

namespace brimwork {

/// The error line for a result that brimwork cannot vouch for.
std::string FaultMessage(const SourceFile& file, const Difference& difference);

/// "path:line: warning: text" for each thing that the user may not expect, in the order of the
/// lines.
std::vector<std::string> WarningsOf(const SourceFile& file, ModuleSession& session,
                                    const Allowance& allowance, const LinesAsRead& before,
                                    const Alignment& alignment);

/// "12 lines changed, 3 added, 1 removed"; "1 line changed, ..." for one.
std::string ChangeSummary(const CodeLines& before, const CodeLines& after,
                          const Alignment& alignment);

}  // namespace brimwork

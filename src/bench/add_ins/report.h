// What became of the add-ins, for whoever tests one.
#pragma once

#include <deque>
#include <string>

#include "bench/add_ins/connection.h"

namespace brimwork::bench {

/// JSON: {"connections": [{"progId", "mode", "connected", "failure", "ended", "disconnectMode",
/// "complaints": [...], "heldReferences", "held": [{"object", "references"}]}]}, in the order of
/// the connections; "connected" is false, and "failure" says why, for one that was refused.
std::string ReportOf(const std::deque<ConnectionRecord>& records);

/// Writes the report in one step; file is a path in UTF-8. Throws SourceError, naming the file,
/// when it cannot be written.
void WriteReport(const std::string& file, const std::deque<ConnectionRecord>& records);

}  // namespace brimwork::bench

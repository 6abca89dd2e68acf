// What became of the add-ins, for whoever tests one.
#pragma once

#include <deque>
#include <filesystem>
#include <string>

#include "bench/add_ins/connection.h"

namespace brimwork::bench {

/// JSON: {"connections": [{"progId", "mode", "connected", "failure", "ended", "disconnectMode",
/// "complaints": [...], "heldReferences", "held": [{"object", "references"}]}]}, in the order of
/// the connections; "connected" is false, and "failure" says why, for one that was refused.
std::string ReportOf(const std::deque<ConnectionRecord>& records);

/// Writes the report in one step.  Throws SourceError, naming the file,
/// when it cannot be written.
void WriteReport(const std::filesystem::path& file, const std::deque<ConnectionRecord>& records);

}  // namespace brimwork::bench

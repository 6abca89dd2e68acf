// Failures of the disk as the object model reports them.
#pragma once

#include <utility>

#include "environment/run_time_error.h"
#include "memory/source_error.h"

namespace brimwork::bench {

/// What action answers. Raises error 75, with the message that names the file, when the disk fails.
template <typename Action>
auto FromDisk(Action action) {
  try {
    return action();
  } catch (const SourceError& error) {
    throw RunTimeError(error_number::kPathFileAccess, error.what());
  }
}

}  // namespace brimwork::bench

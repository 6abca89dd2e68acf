#include "cli/run_inputs.h"

namespace brimwork {

void RequirePaths(const RunOptions& options) {
  if (!options.paths.empty()) return;
  throw UsageError("no files given: name files, folders or projects, or - for standard input");
}

Inputs CollectAndTell(const RunOptions& options, Console& console) {
  Inputs inputs = CollectInputs(options.paths, options.stdinFileName, options.encoding);
  for (const std::string& note : inputs.notes) console.Note(note);
  for (const std::string& error : inputs.errors) console.Error(error);
  return inputs;
}

}  // namespace brimwork

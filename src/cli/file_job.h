// One file of a run: read it, run the command, vouch for the result, and hand it where the user
// wants it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "cli/console.h"
#include "cli/inputs.h"
#include "cli/run_options.h"
#include "core/frmInfo.h"

namespace brimwork {

/// What came of one file, to be told in the order of the files.
struct FileReport {
  std::string output;  // for standard output: a diff, or the name of a file that would change
  std::string summary;
  std::string detail;
  std::vector<std::string> warnings;
  std::vector<std::string> errors;
  bool wouldChange = false;
  bool lacksProcedure = false;  // of the name asked for
  int listed = 0;               // misspelled words
};

/// Never throws for what is wrong with the file. A result for standard output is written to console
/// at once.
FileReport RunOnFile(const RunOptions& options, const InputFile& input, Console& console,
                     const std::function<void(const frmInfo&)>& showProgress);

}  // namespace brimwork

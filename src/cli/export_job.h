// One file of an export: read it, run the export command on it, and take what the command wrote.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "cli/export_request.h"
#include "cli/inputs.h"
#include "core/frmInfo.h"

namespace brimwork {

struct ExportedModule {
  std::shared_ptr<const std::string> bytes;  // of the file that the command wrote
  std::string name;                          // the module's
  std::string encoding;                      // the source's
  int lines = 0;                             // of the whole module
  std::string quickFolder;                   // where Quick Export would write; "" for the others

  std::vector<std::string> errors;  // one line each; bytes is null then
};

/// Never throws for what is wrong with the file. showProgress may be empty.
ExportedModule ExportModule(const ExportRequest& request, const InputFile& input,
                            const std::function<void(const frmInfo&)>& showProgress);

/// "path: 12 lines, read as UTF-8".
std::string LinesAndEncoding(const std::string& path, const ExportedModule& module);

}  // namespace brimwork

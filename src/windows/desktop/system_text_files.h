// Text files in the system's code page.
#pragma once

#include <windows.h>

#include "environment/text_files.h"
#include "windows/desktop/code_page_text.h"

namespace brimwork::windows {

class SystemTextFiles : public TextFiles {
 public:
  /// codePage: the one to write in, the system's own where nothing is said.
  explicit SystemTextFiles(UINT codePage = CP_ACP) : encoding_(codePage) {}

  std::unique_ptr<OutputFile> OpenForOutput(std::string_view path,
                                            UnencodableText unencodable) override;

 private:
  CodePageText encoding_;
};

}  // namespace brimwork::windows

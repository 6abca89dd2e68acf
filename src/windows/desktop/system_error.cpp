#include "windows/desktop/system_error.h"

#include <string>

#include "environment/run_time_error.h"
#include "win32/wide_text.h"

namespace brimwork::windows {

void RaiseSystemError(std::string_view call, DWORD error) {
  throw RunTimeError(error_number::kInvalidProcedureCall,
                     std::string(call) + ": " + win32::SystemWords(error));
}

}  // namespace brimwork::windows

#include "core/modMiscellaneousCode.h"

#include "environment/resume_next.h"

namespace brimwork {

void OpenWebAddress(Shell& shell, std::string_view address) {
  ResumeNext([&] { shell.ShellExecute("Open", address, "", ""); });
}

}  // namespace brimwork

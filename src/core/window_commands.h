// The commands on the environment's windows. All pass over run-time errors.
#pragma once

#include "core/add_in.h"

namespace brimwork {

void SwitchFullScreen(AddIn& addIn);
void EmptyImmediateWindow(AddIn& addIn);
void CloseOtherWindows(AddIn& addIn);

}  // namespace brimwork

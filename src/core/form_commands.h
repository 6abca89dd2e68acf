// The commands that open a form of the add-in, its help or the web. All pass over run-time errors.
#pragma once

#include "core/add_in.h"

namespace brimwork {

void ShowMessageBoxDesigner(AddIn& addIn);
void ShowSetupDialog(AddIn& addIn);

/// The splash form without its timer: it stays until the user closes it.
void ShowAboutBox(AddIn& addIn);

void OpenHelpContents(AddIn& addIn);
void OpenHelpIndex(AddIn& addIn);
void OpenWebSite(AddIn& addIn);

}  // namespace brimwork

// The dispatcher: every entry of the menus, pop-up menus and toolbar ends here.
#pragma once

#include <string_view>

#include "core/add_in.h"
#include "core/catalogue.h"
#include "environment/command_bar.h"

namespace brimwork {

/// Runs the command of that caption: on the procedure at the caret or the selection, or with
/// wholeModule on every procedure of the active module. Afterwards the caret stands on the source
/// line it stood on before, found again by its text. Run-time errors are passed over step by step;
/// a caption without a command does nothing.
void ButtonClicked(AddIn& addIn, std::string_view caption, bool wholeModule);

/// Whether ButtonClicked has a command for this caption and flag.
bool HasCommand(std::string_view caption, bool wholeModule);

/// What a click on an entry does: the hourglass where the entry asks for it, and the command of the
/// caption that the clicked control bears. Raises no run-time error.
void HandleClick(AddIn& addIn, const CatalogueEntry& entry, CommandBarControl& clicked);

}  // namespace brimwork

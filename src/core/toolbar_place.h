// Where the user has put the toolbar, kept in the settings from one connection to the next.
#pragma once

#include "environment/environment.h"

namespace brimwork {

/// Puts the toolbar to its saved place and shows it, unless it was hidden there. A value that
/// cannot be read counts as none. What the environment refuses is passed over.
void RestoreToolbarPlace(Environment& environment, CommandBar& toolbar);

/// Saves the toolbar's place, and whether it is shown. What cannot be asked for or stored is passed
/// over.
void SaveToolbarPlace(Environment& environment, CommandBar& toolbar);

}  // namespace brimwork

// What holds for the layout of every form: a table that fits its class, and controls that the user
// can see, read and reach.
#pragma once

#include <string>
#include <vector>

#include "environment/form.h"

namespace brimwork {

/// Where the form's table and its controls do not fit together, and what the table says twice.
std::vector<std::string> TableFaults(const Form& form);

/// What is wrong with the controls as they are shown now: outside of their container, over each
/// other, too small for their text, or with the same access key.
std::vector<std::string> PageFaults(const Form& form);

/// All of these; a form with a tab strip is looked at with each of its tabs in front. Shows the
/// form and leaves it shown.
std::vector<std::string> LayoutFaults(Form& form);

}  // namespace brimwork

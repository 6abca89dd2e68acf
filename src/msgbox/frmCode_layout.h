// Where the controls of the code viewer stand and what is written in them.
#pragma once

#include "environment/form_layout.h"

namespace brimwork {

const FormLayout& CodeLayout();

}  // namespace brimwork

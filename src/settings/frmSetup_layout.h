// Where the controls of the setup dialog stand and what is written on them.
#pragma once

#include "environment/form_layout.h"

namespace brimwork {

const FormLayout& SetupLayout();

}  // namespace brimwork

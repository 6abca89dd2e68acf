// The progress window's controls as a table, and the picture of each button face.
#pragma once

#include "environment/form_layout.h"

namespace brimwork {

const FormLayout& InfoLayout();

}  // namespace brimwork

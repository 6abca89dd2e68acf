// Where the controls of the message box designer stand and what is written on them.
#pragma once

#include "environment/form_layout.h"

namespace brimwork {

const FormLayout& MsgBoxLayout();

}  // namespace brimwork

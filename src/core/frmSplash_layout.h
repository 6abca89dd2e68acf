// Where the controls of the splash form stand and what is written on them.
#pragma once

#include "environment/form_layout.h"

namespace brimwork {

const FormLayout& SplashLayout();

}  // namespace brimwork

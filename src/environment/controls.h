// Everything that the class of a form needs.
#pragma once

#include "environment/buttons.h"        // IWYU pragma: export
#include "environment/control_array.h"  // IWYU pragma: export
#include "environment/form.h"           // IWYU pragma: export
#include "environment/image_list.h"     // IWYU pragma: export
#include "environment/labels.h"         // IWYU pragma: export
#include "environment/list_box.h"       // IWYU pragma: export
#include "environment/picture_box.h"    // IWYU pragma: export
#include "environment/tab_strip.h"      // IWYU pragma: export
#include "environment/text_box.h"       // IWYU pragma: export
#include "environment/timer.h"          // IWYU pragma: export

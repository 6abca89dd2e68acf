// The collection of add-ins in the object model.
#pragma once

#include "bench/automation/call.h"

namespace brimwork::bench {

win32::Variant AddInsOf(Call& call);

}  // namespace brimwork::bench

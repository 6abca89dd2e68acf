// What For Each walks.
#pragma once

#include <vector>

#include "win32/variant.h"

namespace brimwork::bench {

class Session;

/// An object that hands the values out one after another.
win32::Variant NewEnumerator(Session& session, std::vector<win32::Variant> values);

}  // namespace brimwork::bench

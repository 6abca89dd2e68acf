// Where a writer puts the bytes of a file, piece by piece.
#pragma once

#include <functional>
#include <string_view>

namespace brimwork {

/// Takes the next bytes; they are valid only during the call. Throws when it cannot take them.
using ByteSink = std::function<void(std::string_view)>;

}  // namespace brimwork

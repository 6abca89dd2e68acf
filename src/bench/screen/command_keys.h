// The keys of the environment's commands.
#pragma once

#include <windows.h>

namespace brimwork::bench {

/// The command that a key's message stands for, with the keys that are held down beside it;
/// command::kNone when it is none, or one that the text itself answers.
int CommandOfKey(const MSG& message);

}  // namespace brimwork::bench

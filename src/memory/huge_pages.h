// Memory for whole modules in large pages: a module of a million lines otherwise costs more time in
// page faults than in some of its rules.
#pragma once

#include <cstddef>

namespace brimwork {

/// Asks the system to back fresh memory with large pages. Only a hint: small ranges, and systems
/// that know no such thing, are left as they are.
void PreferHugePages(void* data, std::size_t size);

}  // namespace brimwork

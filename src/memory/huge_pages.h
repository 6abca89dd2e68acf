// Memory for whole modules in large pages: page by page, fresh memory costs a module of a million
// lines more time than some of its rules, and a small one more than its export.
#pragma once

#include <cstddef>

namespace brimwork {

/// Asks the system to back fresh memory with large pages. Only a hint: small ranges, and systems
/// that know no such thing, are left as they are.
void PreferHugePages(void* data, std::size_t size);

/// The same for the memory that this process is going to allocate, which is then also kept instead
/// of given back and fetched anew. For a tool that does one thing and ends, at its start.
void PreferHugeHeap();

}  // namespace brimwork

#include "memory/huge_pages.h"

namespace brimwork {

// Large pages take a privilege here that users do not have.
void PreferHugePages(void* /*data*/, std::size_t /*size*/) {}

void PreferHugeHeap() {}

}  // namespace brimwork

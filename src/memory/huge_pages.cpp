#include "memory/huge_pages.h"

#include <sys/mman.h>

#include <cstdint>

namespace brimwork {

void PreferHugePages([[maybe_unused]] void* data, [[maybe_unused]] std::size_t size) {
#ifdef MADV_HUGEPAGE
  constexpr std::size_t kPage = 4096;
  constexpr std::size_t kHugePage = 2 * 1024 * 1024;
  if (size < 2 * kHugePage) return;
  const auto begin = reinterpret_cast<std::uintptr_t>(data);
  const std::uintptr_t firstPage = (begin + kPage - 1) / kPage * kPage;
  const std::uintptr_t endPage = (begin + size) / kPage * kPage;
  madvise(reinterpret_cast<void*>(firstPage), endPage - firstPage, MADV_HUGEPAGE);
#endif
}

}  // namespace brimwork

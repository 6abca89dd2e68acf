#include "memory/huge_pages.h"

#include <sys/mman.h>
#include <unistd.h>

#ifdef __GLIBC__
#include <malloc.h>
#endif

#include <cstdint>
#include <cstdlib>

namespace brimwork {
namespace {

constexpr std::size_t kPage = 4096;
constexpr std::size_t kHugePage = 2 * 1024 * 1024;

std::uintptr_t RoundUp(std::uintptr_t address, std::size_t unit) {
  return (address + unit - 1) / unit * unit;
}

void Advise([[maybe_unused]] std::uintptr_t begin, [[maybe_unused]] std::uintptr_t end) {
#ifdef MADV_HUGEPAGE
  if (end <= begin) return;
  const std::uintptr_t firstPage = RoundUp(begin, kPage);
  const std::uintptr_t endPage = end / kPage * kPage;
  madvise(reinterpret_cast<void*>(firstPage), endPage - firstPage, MADV_HUGEPAGE);
#endif
}

#ifdef __GLIBC__
std::uintptr_t HeapEnd() { return reinterpret_cast<std::uintptr_t>(sbrk(0)); }
#endif

}  // namespace

void PreferHugePages(void* data, std::size_t size) {
  if (size < 2 * kHugePage) return;
  const auto begin = reinterpret_cast<std::uintptr_t>(data);
  Advise(begin, begin + size);
}

// A large page must not have been touched before it is asked for, and a small job needs none: so
// the heap goes on a little in front of one.
void PreferHugeHeap() {
#ifdef __GLIBC__
  constexpr int kHeap = 16 * kHugePage;
  constexpr std::size_t kSmallPages = 256 * 1024;
  mallopt(M_MMAP_THRESHOLD, 2 * kHugePage);
  mallopt(M_TRIM_THRESHOLD, 2 * kHeap);
  mallopt(M_TOP_PAD, kHeap);
  const std::uintptr_t end = HeapEnd();
  const std::uintptr_t firstHugePage = RoundUp(end + kSmallPages, kHugePage);
  sbrk(static_cast<std::intptr_t>(firstHugePage - kSmallPages - end));
  // More than the start of the heap has left; volatile: or it would be left out.
  void* const volatile fetched = std::malloc(kSmallPages / 4 * 3);
  std::free(fetched);
  Advise(firstHugePage, HeapEnd());
  mallopt(M_TOP_PAD, kHugePage);
#endif
}

}  // namespace brimwork

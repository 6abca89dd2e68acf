#include "memory/huge_pages.h"

#include <gtest/gtest.h>
#include <malloc.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <string>

namespace brimwork {
namespace huge_pages_test {

/// Whether the kernel has been asked for large pages at an address.
bool IsAskedFor(const void* address) {
  const auto sought = reinterpret_cast<std::uintptr_t>(address);
  std::ifstream maps("/proc/self/smaps");
  bool isHere = false;
  for (std::string line; std::getline(maps, line);) {
    const auto dash = line.find('-');
    if (dash != std::string::npos && line.find_first_not_of("0123456789abcdef") == dash) {
      isHere = std::stoull(line, nullptr, 16) <= sought &&
               sought < std::stoull(line.substr(dash + 1), nullptr, 16);
    }
    if (isHere && line.starts_with("VmFlags:")) return line.find(" hg") != std::string::npos;
  }
  return false;
}

bool SystemKnowsThem() {
  return std::ifstream("/sys/kernel/mm/transparent_hugepage/enabled").good();
}

/// What happens to the heap stays with a child process; its exit code is 0 when test gave true.
template <class Test>
int ExitCodeOfChild(Test test) {
  const pid_t child = fork();
  if (child == 0) _exit(test() ? 0 : 1);
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// As at the start of a process, the heap has to be enlarged for anything large.
void LeaveNothingFree() {
  for (int i = 0; i < 100; ++i) {
    void* const volatile used = std::malloc(120'000);
    static_cast<void>(used);
  }
  malloc_trim(0);
}

TEST(PreferHugePages, AsksForThemInALargeRange) {
  if (!SystemKnowsThem()) GTEST_SKIP() << "this system has no large pages";
  constexpr std::size_t kSize = 8 << 20;
  void* const data =
      mmap(nullptr, kSize, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  ASSERT_NE(data, MAP_FAILED);
  PreferHugePages(data, kSize);
  EXPECT_TRUE(IsAskedFor(static_cast<char*>(data) + kSize / 2));
  munmap(data, kSize);
}

TEST(PreferHugePages, LeavesASmallRangeAlone) {
  constexpr std::size_t kSize = 1 << 20;
  void* const data =
      mmap(nullptr, kSize, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  ASSERT_NE(data, MAP_FAILED);
  PreferHugePages(data, kSize);
  EXPECT_FALSE(IsAskedFor(static_cast<char*>(data) + kSize / 2));
  munmap(data, kSize);
}

TEST(PreferHugeHeap, LeavesTheHeapAsGoodAsBefore) {
  EXPECT_EQ(ExitCodeOfChild([] {
              const auto before = std::make_unique<std::string>(100'000, 'x');
              PreferHugeHeap();
              const std::string large(3'000'000, 'y');
              const std::string huge(30'000'000, 'z');
              return *before == std::string(100'000, 'x') && large.back() == 'y' &&
                     huge.back() == 'z';
            }),
            0);
}

TEST(PreferHugeHeap, AsksForLargePagesWhereLargeThingsGo) {
#if !defined(__GLIBC__) || defined(BRIMWORK_SANITIZED)
  GTEST_SKIP() << "this heap is not the system's own";
#endif
  if (!SystemKnowsThem()) GTEST_SKIP() << "this system has no large pages";
  EXPECT_EQ(ExitCodeOfChild([] {
              LeaveNothingFree();
              PreferHugeHeap();
              const std::string large(3'000'000, 'x');
              return IsAskedFor(large.data() + large.size() / 2);
            }),
            0);
}

}  // namespace huge_pages_test
}  // namespace brimwork

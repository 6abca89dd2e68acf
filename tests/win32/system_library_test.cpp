#include "win32/system_library.h"

#include <gtest/gtest.h>

namespace brimwork::win32 {
namespace system_library_test {

TEST(SystemLibrary, FindsTheFunctionsOfALibraryOfTheSystem) {
  const SystemLibrary library(L"version.dll");

  ASSERT_TRUE(library);
  EXPECT_NE(library.Find<BOOL WINAPI()>("VerQueryValueW"), nullptr);
}

TEST(SystemLibrary, HasNoFunctionThatTheLibraryHasNot) {
  EXPECT_EQ(SystemLibrary(L"version.dll").Find<void()>("NoSuchFunction"), nullptr);
}

TEST(SystemLibrary, IsEmptyForALibraryThatTheSystemHasNot) {
  const SystemLibrary library(L"no-such-library.dll");

  EXPECT_FALSE(library);
  EXPECT_EQ(library.Find<void()>("Anything"), nullptr);
}

}  // namespace system_library_test
}  // namespace brimwork::win32

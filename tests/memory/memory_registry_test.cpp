#include "memory/memory_registry.h"

#include <gtest/gtest.h>

#include <array>

namespace brimwork {
namespace memory_registry_test {

struct Queried {
  int status = 0;
  std::uint32_t type = 0;
  std::uint32_t size = 0;
  std::string bytes;
};

Queried Query(MemoryRegistry& registry, RegistryKey key, std::string_view name,
              std::uint32_t room) {
  std::array<char, 16> buffer{};
  Queried queried;
  queried.size = room;
  queried.status = registry.QueryValue(key, name, queried.type, buffer, queried.size);
  if (queried.status == registry_status::kSuccess)
    queried.bytes.assign(buffer.data(), queried.size);
  return queried;
}

struct MemoryRegistryTest : testing::Test {
  MemoryRegistryTest() { registry.SetDword(kHiveCurrentUser, "Software\\Vb", "TabWidth", 0x0104); }

  RegistryKey Open(std::string_view path) {
    RegistryKey key = 0;
    registry.OpenKey(kHiveCurrentUser, path, 1, key);
    return key;
  }

  MemoryRegistry registry;
};

TEST_F(MemoryRegistryTest, ADwordIsStoredLowestByteFirst) {
  const Queried queried = Query(registry, Open("Software\\Vb"), "TabWidth", 16);
  EXPECT_EQ(queried.type, kRegistryDword);
  EXPECT_EQ(queried.bytes, std::string("\x04\x01\x00\x00", 4));
}

TEST_F(MemoryRegistryTest, KeysAndNamesAreFoundInAnyLetterCase) {
  EXPECT_EQ(Query(registry, Open("SOFTWARE\\vb"), "tabWIDTH", 16).status,
            registry_status::kSuccess);
}

TEST_F(MemoryRegistryTest, AKeyOfAnotherHiveIsNotThere) {
  RegistryKey key = 0;
  EXPECT_EQ(registry.OpenKey(0x80000002, "Software\\Vb", 1, key), registry_status::kFileNotFound);
  EXPECT_EQ(key, 0u);
}

TEST_F(MemoryRegistryTest, AKeyWithDeniedAccessIsNotOpened) {
  registry.DenyAccess(kHiveCurrentUser, "software\\vb");
  RegistryKey key = 0;
  EXPECT_EQ(registry.OpenKey(kHiveCurrentUser, "Software\\Vb", 1, key),
            registry_status::kAccessDenied);
}

TEST_F(MemoryRegistryTest, AValueThatIsNotThereIsNotFound) {
  EXPECT_EQ(Query(registry, Open("Software\\Vb"), "Font", 16).status,
            registry_status::kFileNotFound);
}

TEST_F(MemoryRegistryTest, ASmallBufferIsToldTheSizeThatIsNeeded) {
  const Queried queried = Query(registry, Open("Software\\Vb"), "TabWidth", 3);
  EXPECT_EQ(queried.status, registry_status::kMoreData);
  EXPECT_EQ(queried.size, 4u);
}

TEST_F(MemoryRegistryTest, AClosedKeyCannotBeUsedOrClosedAgain) {
  const RegistryKey key = Open("Software\\Vb");
  EXPECT_EQ(registry.OpenHandles(), 1u);
  EXPECT_EQ(registry.CloseKey(key), registry_status::kSuccess);
  EXPECT_EQ(registry.OpenHandles(), 0u);
  EXPECT_EQ(Query(registry, key, "TabWidth", 16).status, registry_status::kInvalidHandle);
  EXPECT_EQ(registry.CloseKey(key), registry_status::kInvalidHandle);
}

TEST_F(MemoryRegistryTest, CountsOpensAndClosesThatFailedToo) {
  Open("Software\\Vb");
  Open("Elsewhere");
  registry.CloseKey(0);
  EXPECT_EQ(registry.Opens(), 2);
  EXPECT_EQ(registry.Closes(), 1);
}

}  // namespace memory_registry_test
}  // namespace brimwork

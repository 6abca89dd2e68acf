#include "settings/modRegistry.h"

#include <gtest/gtest.h>

#include "environment/run_time_error.h"
#include "environment/text.h"
#include "memory/memory_registry.h"

namespace brimwork {
namespace modRegistry_test {

using namespace std::string_literals;

constexpr std::string_view kPath = "Software\\Microsoft\\VBA\\Microsoft Visual Basic";
constexpr std::string_view kName = "TabWidth";
constexpr std::uint32_t kRegistryBinary = 3;

struct Reading {
  bool read = false;
  std::string result;
};

Reading Read(Registry& registry, std::string result = "before") {
  Reading reading{false, std::move(result)};
  reading.read = ReadRegistryValue(registry, kHiveCurrentUser, kPath, kName, reading.result);
  return reading;
}

std::string ReadDword(std::uint32_t value) {
  MemoryRegistry registry;
  registry.SetDword(kHiveCurrentUser, kPath, kName, value);
  const Reading reading = Read(registry);
  EXPECT_TRUE(reading.read);
  return reading.result;
}

std::string ReadBytesOfType(std::uint32_t type, std::string bytes) {
  MemoryRegistry registry;
  registry.SetValue(kHiveCurrentUser, kPath, kName, type, std::move(bytes));
  const Reading reading = Read(registry);
  EXPECT_TRUE(reading.read);
  return reading.result;
}

TEST(ReadRegistryValue, ADwordOfFourIsReadAsH004WhichConvertsToFour) {
  EXPECT_EQ(ReadDword(4), "&h004");
  EXPECT_EQ(ToInteger(ReadDword(4)), 4);
}

TEST(ReadRegistryValue, ADwordOf260IsReadAsH014) { EXPECT_EQ(ReadDword(260), "&h014"); }

TEST(ReadRegistryValue, ADwordIsRenderedInUpperCaseWithoutPadding) {
  EXPECT_EQ(ReadDword(10), "&h00A");
  EXPECT_EQ(ReadDword(0), "&h000");
  EXPECT_EQ(ReadDword(0xFF00), "&h0FF0");
}

TEST(ReadRegistryValue, ADwordKeepsItsHighestByteUnlessThatIsZero) {
  EXPECT_EQ(ReadDword(0x80000001), "&h80001");
}

TEST(ReadRegistryValue, ATextStoredWithItsTerminatingZeroIsReturnedWithoutIt) {
  EXPECT_EQ(ReadBytesOfType(kRegistrySz, "C:\\Templates\0"s), "C:\\Templates");
}

TEST(ReadRegistryValue, ATextStoredWithoutATerminatingZeroIsReturnedWhole) {
  EXPECT_EQ(ReadBytesOfType(kRegistrySz, "C:\\Templates"), "C:\\Templates");
}

TEST(ReadRegistryValue, OnlyOneTerminatingZeroIsTaken) {
  EXPECT_EQ(ReadBytesOfType(kRegistrySz, "a\0\0"s), "a\0"s);
}

TEST(ReadRegistryValue, AValueOfSizeZeroIsEmpty) {
  EXPECT_EQ(ReadBytesOfType(kRegistrySz, ""), "");
  EXPECT_EQ(ReadBytesOfType(kRegistryDword, ""), "&h");
}

TEST(ReadRegistryValue, AValueThatFillsTheBufferIsReadWhole) {
  EXPECT_EQ(ReadBytesOfType(kRegistrySz, std::string(1024, 'x')), std::string(1024, 'x'));
}

TEST(ReadRegistryValue, AValueBeyondTheBufferCannotBeRead) {
  MemoryRegistry registry;
  registry.SetValue(kHiveCurrentUser, kPath, kName, kRegistrySz, std::string(1025, 'x'));
  const Reading reading = Read(registry);
  EXPECT_FALSE(reading.read);
  EXPECT_EQ(reading.result, "");
}

TEST(ReadRegistryValue, AValueOfAnotherTypeLeavesTheResultAsPassed) {
  EXPECT_EQ(ReadBytesOfType(kRegistryBinary, "bytes"), "before");
}

TEST(ReadRegistryValue, AMissingKeyGivesAnEmptyTextAndFalse) {
  MemoryRegistry registry;
  const Reading reading = Read(registry);
  EXPECT_FALSE(reading.read);
  EXPECT_EQ(reading.result, "");
}

TEST(ReadRegistryValue, AKeyThatCannotBeReadGivesAnEmptyTextAndFalse) {
  MemoryRegistry registry;
  registry.SetDword(kHiveCurrentUser, kPath, kName, 4);
  registry.DenyAccess(kHiveCurrentUser, kPath);
  const Reading reading = Read(registry);
  EXPECT_FALSE(reading.read);
  EXPECT_EQ(reading.result, "");
}

TEST(ReadRegistryValue, AMissingValueGivesAnEmptyTextAndFalse) {
  MemoryRegistry registry;
  registry.SetDword(kHiveCurrentUser, kPath, "FontHeight", 9);
  const Reading reading = Read(registry);
  EXPECT_FALSE(reading.read);
  EXPECT_EQ(reading.result, "");
}

TEST(ReadRegistryValue, ClosesTheKeyAfterReadingItsValue) {
  MemoryRegistry registry;
  registry.SetDword(kHiveCurrentUser, kPath, kName, 4);
  Read(registry);
  EXPECT_EQ(registry.Closes(), 1);
  EXPECT_EQ(registry.OpenHandles(), 0u);
}

TEST(ReadRegistryValue, ClosesTheKeyWhenTheValueIsMissing) {
  MemoryRegistry registry;
  registry.SetDword(kHiveCurrentUser, kPath, "FontHeight", 9);
  Read(registry);
  EXPECT_EQ(registry.Closes(), 1);
  EXPECT_EQ(registry.OpenHandles(), 0u);
}

TEST(ReadRegistryValue, ClosesAlsoAKeyThatWasNotOpened) {
  MemoryRegistry registry;
  Read(registry);
  EXPECT_EQ(registry.Opens(), 1);
  EXPECT_EQ(registry.Closes(), 1);
}

TEST(ReadRegistryValue, OpensTheKeyWithAllAccess) {
  MemoryRegistry registry;
  Read(registry);
  EXPECT_EQ(registry.LastAccess(), 0x2003Fu);
}

/// A registry that breaks down in the middle of a reading.
class RaisingRegistry : public MemoryRegistry {
 public:
  int QueryValue(RegistryKey, std::string_view, std::uint32_t&, std::span<char>,
                 std::uint32_t&) override {
    throw RunTimeError(error_number::kInvalidProcedureCall, "no registry");
  }
};

TEST(ReadRegistryValue, ClosesTheKeyWhenARunTimeErrorEndsTheReading) {
  RaisingRegistry registry;
  registry.SetDword(kHiveCurrentUser, kPath, kName, 4);
  EXPECT_THROW(Read(registry), RunTimeError);
  EXPECT_EQ(registry.OpenHandles(), 0u);
}

}  // namespace modRegistry_test
}  // namespace brimwork

#include "windows/component/registration.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

#include "win32/registry_key.h"

namespace brimwork::windows {
namespace registration_test {

using ::testing::HasSubstr;
using ::testing::StartsWith;

constexpr const char* kPath = "C:\\Tools\\Brimwork.dll";

std::optional<std::string> WrittenTo(HKEY root, const std::string& key, const std::string& name) {
  const win32::RegistryKey open(root, key, KEY_READ);
  if (!open.IsOpen()) return std::nullopt;
  return open.Text(name);
}

TEST(Registration, NamesTheComponentsPathAndItsApartment) {
  const auto values = RegistrationOf(kPath, Scope::kUser);
  const auto path = std::ranges::find_if(values, [](const RegistryEntry& value) {
    return value.key.ends_with("InprocServer32") && value.name.empty();
  });
  ASSERT_NE(path, values.end());
  EXPECT_EQ(std::get<std::string>(path->value), kPath);
  EXPECT_EQ(std::get<std::string>((path + 1)->value), "Apartment");
}

TEST(Registration, IsForTheMachineOrForTheUserButListsTheAddInForTheUser) {
  for (const Scope scope : {Scope::kMachine, Scope::kUser}) {
    for (const RegistryEntry& value : RegistrationOf(kPath, scope)) {
      const bool isClass = value.key.starts_with("Software\\Classes\\");
      const bool isTheMachines = isClass && scope == Scope::kMachine;
      EXPECT_EQ(value.root, isTheMachines ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER) << value.key;
    }
  }
}

TEST(Registration, ListsTheAddInForTheEditorsOfItsWordSize) {
  std::vector<std::string> lists;
  for (const RegistryEntry& value : RegistrationOf(kPath, Scope::kUser)) {
    if (value.name == "LoadBehavior") lists.push_back(value.key);
  }
  if constexpr (sizeof(void*) == 8) {
    EXPECT_THAT(lists, ::testing::ElementsAre(HasSubstr("Addins64\\Brimwork.Connect")));
  } else {
    EXPECT_THAT(lists,
                ::testing::ElementsAre(HasSubstr("Visual Basic\\6.0\\Addins\\Brimwork.Connect"),
                                       HasSubstr("VBE\\6.0\\Addins\\Brimwork.Connect")));
  }
}

TEST(Registration, IsWrittenAndIsGoneAgain) {
  Register(kPath, Scope::kUser);
  EXPECT_THAT(WrittenTo(HKEY_CURRENT_USER, "Software\\Classes\\Brimwork.Connect\\CLSID", "")
                  .value_or("nothing"),
              StartsWith("{"));
  Unregister();
  for (const RegistryEntry& value : RegistrationOf(kPath, Scope::kUser)) {
    EXPECT_FALSE(win32::RegistryKey(value.root, value.key, KEY_READ).IsOpen()) << value.key;
  }
}

TEST(Registration, IsNotMissedWhereThereIsNone) { EXPECT_NO_THROW(Unregister()); }

}  // namespace registration_test
}  // namespace brimwork::windows

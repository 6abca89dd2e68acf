// The settings area and the registry, in keys of the current user that the tests take away again.
#include <windows.h>

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "settings/modRegistry.h"
#include "windows/desktop/registry_settings_area.h"
#include "windows/desktop/system_registry.h"

namespace brimwork::windows {
namespace registry_test {

constexpr const wchar_t* kSettings = L"Software\\VB and VBA Program Settings\\Brimwork Tests";
constexpr const wchar_t* kKey = L"Software\\Brimwork Tests";

void RemoveKey(const std::wstring& path) {
  RegDeleteTreeW(HKEY_CURRENT_USER, path.c_str());
  RegDeleteKeyW(HKEY_CURRENT_USER, path.c_str());
}

void Store(const std::wstring& path, const wchar_t* name, DWORD type, const void* bytes,
           std::size_t size) {
  ASSERT_EQ(
      RegSetKeyValueW(HKEY_CURRENT_USER, path.c_str(), name, type, bytes, static_cast<DWORD>(size)),
      ERROR_SUCCESS);
}

struct SettingsAreaTest : testing::Test {
  ~SettingsAreaTest() override { RemoveKey(kSettings); }

  std::string Get(std::string_view key) {
    return area.GetSetting("Brimwork Tests", "Options", key, "default");
  }
  void Save(std::string_view key, std::string_view value) {
    area.SaveSetting("Brimwork Tests", "Options", key, value);
  }

  RegistrySettingsArea area;
};

TEST_F(SettingsAreaTest, GivesTheDefaultForWhatWasNeverSaved) {
  EXPECT_EQ(Get("Key"), "default");
  Save("Other", "x");
  EXPECT_EQ(Get("Key"), "default");
}

TEST_F(SettingsAreaTest, GivesBackWhatWasSaved) {
  Save("Größe", "日本 \"x\"");
  EXPECT_EQ(Get("Größe"), "日本 \"x\"");
  EXPECT_EQ(Get("gRÖSSE"), "default");
  Save("Größe", "");
  EXPECT_EQ(Get("Größe"), "");
}

TEST_F(SettingsAreaTest, TakesLongValues) {
  const std::string words(20000, 'w');
  Save("KeyWordList", words);
  EXPECT_EQ(Get("KeyWordList"), words);
}

TEST_F(SettingsAreaTest, IsWhereVisualBasicKeepsItsOwn) {
  Store(std::wstring(kSettings) + L"\\Options", L"Key", REG_SZ, L"theirs", 14);
  EXPECT_EQ(Get("Key"), "theirs");
  const DWORD number = 7;
  Store(std::wstring(kSettings) + L"\\Options", L"Number", REG_DWORD, &number, sizeof number);
  EXPECT_EQ(Get("Number"), "default");
}

struct SystemRegistryTest : testing::Test {
  ~SystemRegistryTest() override { RemoveKey(kKey); }

  std::string Read(std::string_view name) {
    std::string result = "before";
    const bool found =
        ReadRegistryValue(registry, kHiveCurrentUser, "Software\\Brimwork Tests", name, result);
    return found ? result : "not found";
  }

  SystemRegistry registry;
};

TEST_F(SystemRegistryTest, ReadsTextInAnyAlphabet) {
  Store(kKey, L"Font", REG_SZ, L"Größe Ж", 16);
  EXPECT_EQ(Read("Font"), "Größe Ж");
}

TEST_F(SystemRegistryTest, ReadsNumbersByteByByte) {
  const DWORD width = 4;
  Store(kKey, L"TabWidth", REG_DWORD, &width, sizeof width);
  EXPECT_EQ(Read("TabWidth"), "&h004");
}

TEST_F(SystemRegistryTest, FindsNothingWhereNothingIs) {
  EXPECT_EQ(Read("Font"), "not found");
  const DWORD width = 4;
  Store(kKey, L"TabWidth", REG_DWORD, &width, sizeof width);
  EXPECT_EQ(Read("Font"), "not found");
}

TEST_F(SystemRegistryTest, SaysHowMuchRoomAValueNeeds) {
  Store(kKey, L"Font", REG_SZ, L"Größe", 12);
  RegistryKey key = 0;
  ASSERT_EQ(registry.OpenKey(kHiveCurrentUser, "Software\\Brimwork Tests", KEY_QUERY_VALUE, key),
            0);
  std::array<char, 4> buffer = {'#', '#', '#', '#'};
  std::uint32_t size = 4;
  std::uint32_t type = 0;
  EXPECT_EQ(registry.QueryValue(key, "Font", type, buffer, size), ERROR_MORE_DATA);
  EXPECT_EQ(size, 8u);
  EXPECT_EQ(buffer[0], '#');
  EXPECT_EQ(registry.CloseKey(key), 0);
}

}  // namespace registry_test
}  // namespace brimwork::windows

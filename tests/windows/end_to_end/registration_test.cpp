// The library as its user installs it.
#include <windows.h>

#include <gtest/gtest.h>
#include <objbase.h>

#include <filesystem>

#include "support/windows/registered_library.h"
#include "win32/com_pointer.h"
#include "win32/registry_key.h"
#include "windows/component/identifiers.h"

namespace brimwork {
namespace library_registration_test {

using win32::ComPointer;

constexpr const char* kAddInOf32Bits =
    "Software\\Microsoft\\Visual Basic\\6.0\\Addins\\Brimwork.Connect";
constexpr const char* kAddInOf64Bits =
    "Software\\Microsoft\\VBA\\VBE\\6.0\\Addins64\\Brimwork.Connect";

bool IsListed() {
  const char* const key = sizeof(void*) == 4 ? kAddInOf32Bits : kAddInOf64Bits;
  return win32::RegistryKey(HKEY_CURRENT_USER, key, KEY_READ).IsOpen();
}

HRESULT Create(ComPointer<IUnknown>& object) {
  CLSID clsid;
  const HRESULT known = CLSIDFromProgID(L"Brimwork.Connect", &clsid);
  if (FAILED(known)) return known;
  return CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, windows::kExtensibilityInterface,
                          object.ReceiveAny());
}

struct LibraryRegistration : ::testing::Test {
  LibraryRegistration() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
  ~LibraryRegistration() override {
    RunRegsvr32("/u");
    CoUninitialize();
  }
};

TEST_F(LibraryRegistration, LetsTheSystemMakeTheAddIn) {
  ASSERT_EQ(RunRegsvr32(), 0);
  EXPECT_TRUE(IsListed());
  ComPointer<IUnknown> object;
  EXPECT_EQ(Create(object), S_OK);
}

TEST_F(LibraryRegistration, IsTakenBack) {
  ASSERT_EQ(RunRegsvr32(), 0);
  ASSERT_EQ(RunRegsvr32("/u"), 0);
  EXPECT_FALSE(IsListed());
  CLSID clsid;
  EXPECT_NE(CLSIDFromProgID(L"Brimwork.Connect", &clsid), S_OK);
}

TEST_F(LibraryRegistration, CanBeDoneAndTakenBackTwice) {
  EXPECT_EQ(RunRegsvr32(), 0);
  EXPECT_EQ(RunRegsvr32(), 0);
  EXPECT_EQ(RunRegsvr32("/u"), 0);
  EXPECT_EQ(RunRegsvr32("/u"), 0);
}

}  // namespace library_registration_test
}  // namespace brimwork

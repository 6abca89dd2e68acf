#include "support/windows/registered_library.h"

#include <windows.h>

#include <filesystem>
#include <stdexcept>
#include <vector>

#include "support/windows/program.h"
#include "win32/registry_key.h"
#include "windows/desktop/registry_settings_area.h"

namespace brimwork {
namespace {

constexpr const char* kSettings = "Software\\VB and VBA Program Settings\\Brimwork";

}  // namespace

std::string LibraryPath() {
  return std::filesystem::absolute(BRIMWORK_LIBRARY).make_preferred().string();
}

int RunRegsvr32(const std::string& option) {
  std::vector<std::string> words = {"regsvr32.exe", "/s"};
  if (!option.empty()) words.push_back(option);
  words.push_back(LibraryPath());
  return bench::RunProgram(words).exitCode;
}

RegisteredLibrary::RegisteredLibrary() {
  if (RunRegsvr32() != 0) throw std::runtime_error("regsvr32 does not register the library");
  ForgetAddInSettings();
  SetAddInSetting("SplashScreen", "False");
}

RegisteredLibrary::~RegisteredLibrary() {
  RunRegsvr32("/u");
  ForgetAddInSettings();
}

void SetAddInSetting(const std::string& key, const std::string& value) {
  windows::RegistrySettingsArea().SaveSetting("Brimwork", "Settings", key, value);
}

void ForgetAddInSettings() { win32::RemoveKey(HKEY_CURRENT_USER, kSettings); }

}  // namespace brimwork

// A stand-in for the user's browser.
#pragma once

#include <windows.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "win32/registry_key.h"

namespace brimwork {

/// For its life, web addresses are written into a file instead of being shown.
class TestBrowser {
 public:
  explicit TestBrowser(const std::filesystem::path& file) {
    command_.SetText("", Shell() + " /c echo %1>\"" + file.string() + '"');
  }
  ~TestBrowser() { command_.SetText("", users_); }
  TestBrowser(const TestBrowser&) = delete;
  TestBrowser& operator=(const TestBrowser&) = delete;

 private:
  static std::string Shell() {
    const char* const shell = std::getenv("ComSpec");
    return shell != nullptr ? shell : "cmd.exe";
  }

  win32::RegistryKey command_ =
      win32::RegistryKey::Make(HKEY_CLASSES_ROOT, "https\\shell\\open\\command");
  std::string users_ = command_.Text("").value_or("");
};

}  // namespace brimwork

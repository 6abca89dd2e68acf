// Brimwork.dll, registered as its user does it.
#pragma once

#include <string>

namespace brimwork {

/// The library's path, as programs of the system write paths.
std::string LibraryPath();

/// Runs regsvr32 on the library with these options in front ("/u"). Returns its exit code, 0 for
/// success.
int RunRegsvr32(const std::string& option = "");

/// Registered for its life, with settings that tests can rely on: no splash form.
class RegisteredLibrary {
 public:
  /// Throws std::runtime_error when it cannot be registered.
  RegisteredLibrary();
  ~RegisteredLibrary();
  RegisteredLibrary(const RegisteredLibrary&) = delete;
  RegisteredLibrary& operator=(const RegisteredLibrary&) = delete;
};

/// The add-in's settings in the registry: sets one, or forgets all.
void SetAddInSetting(const std::string& key, const std::string& value);
void ForgetAddInSettings();

}  // namespace brimwork

#include "windows/component/registration.h"

#include <objbase.h>

#include "environment/run_time_error.h"
#include "win32/registry_key.h"
#include "win32/wide_text.h"
#include "windows/component/identifiers.h"

namespace brimwork::windows {
namespace {

constexpr const char* kClasses = "Software\\Classes\\";
constexpr const char* kTitle = "Brimwork";
constexpr const char* kDescription =
    "Indents, numbers, comments, cleans up, checks and exports Visual Basic code";

/// Connected when the editor starts, and shown as loaded.
constexpr unsigned long kLoadBehavior = 3;

std::string ClassText() {
  constexpr int kSize = 39;
  wchar_t text[kSize];
  StringFromGUID2(kConnectClass, text, kSize);
  return win32::Narrow(text);
}

std::string ClassKey() { return std::string(kClasses) + "CLSID\\" + ClassText(); }
std::string ProgIdKey() { return std::string(kClasses) + kProgId; }

/// Where the editors of this word size keep their lists of add-ins.
std::vector<std::string> AddInKeys() {
  if constexpr (sizeof(void*) == 8) {
    return {std::string("Software\\Microsoft\\VBA\\VBE\\6.0\\Addins64\\") + kProgId};
  }
  return {std::string("Software\\Microsoft\\Visual Basic\\6.0\\Addins\\") + kProgId,
          std::string("Software\\Microsoft\\VBA\\VBE\\6.0\\Addins\\") + kProgId};
}

HKEY RootOf(Scope scope) {
  return scope == Scope::kMachine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
}

void AppendClass(std::vector<RegistryEntry>& values, const std::string& path, HKEY root) {
  values.push_back({root, ProgIdKey(), "", kTitle});
  values.push_back({root, ProgIdKey() + "\\CLSID", "", ClassText()});
  values.push_back({root, ClassKey(), "", kTitle});
  values.push_back({root, ClassKey() + "\\ProgID", "", kProgId});
  values.push_back({root, ClassKey() + "\\InprocServer32", "", path});
  values.push_back({root, ClassKey() + "\\InprocServer32", "ThreadingModel", "Apartment"});
}

void AppendAddIn(std::vector<RegistryEntry>& values, const std::string& key) {
  values.push_back({HKEY_CURRENT_USER, key, "FriendlyName", kTitle});
  values.push_back({HKEY_CURRENT_USER, key, "Description", kDescription});
  values.push_back({HKEY_CURRENT_USER, key, "LoadBehavior", kLoadBehavior});
  values.push_back({HKEY_CURRENT_USER, key, "CommandLineSafe", 0ul});
}

void Write(const RegistryEntry& entry) {
  win32::RegistryKey key = win32::RegistryKey::Make(entry.root, entry.key);
  if (const auto* text = std::get_if<std::string>(&entry.value)) {
    key.SetText(entry.name, *text);
  } else {
    key.SetNumber(entry.name, std::get<unsigned long>(entry.value));
  }
}

void RemoveClass(HKEY root) {
  win32::RemoveKey(root, ProgIdKey());
  win32::RemoveKey(root, ClassKey());
}

}  // namespace

std::vector<RegistryEntry> RegistrationOf(const std::string& path, Scope scope) {
  std::vector<RegistryEntry> values;
  AppendClass(values, path, RootOf(scope));
  for (const std::string& key : AddInKeys()) AppendAddIn(values, key);
  return values;
}

Scope AvailableScope() {
  const win32::RegistryKey classes(HKEY_LOCAL_MACHINE, "Software\\Classes\\CLSID",
                                   KEY_CREATE_SUB_KEY);
  return classes.IsOpen() ? Scope::kMachine : Scope::kUser;
}

void Register(const std::string& path, Scope scope) {
  try {
    for (const RegistryEntry& value : RegistrationOf(path, scope)) Write(value);
  } catch (const RunTimeError&) {
    Unregister();
    throw;
  }
}

void Unregister() {
  RemoveClass(HKEY_LOCAL_MACHINE);
  RemoveClass(HKEY_CURRENT_USER);
  for (const std::string& key : AddInKeys()) win32::RemoveKey(HKEY_CURRENT_USER, key);
}

}  // namespace brimwork::windows

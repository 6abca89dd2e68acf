#include "bench/add_ins/registered_add_in.h"

#include <windows.h>

#include <set>

#include "win32/registry_key.h"

namespace brimwork::bench {
namespace {

constexpr const char* kVisualBasicList = "Software\\Microsoft\\Visual Basic\\6.0\\Addins";
constexpr const char* kEditorsOf64BitsList = "Software\\Microsoft\\VBA\\VBE\\6.0\\Addins64";

/// Visual Basic 6 has 32 bits only, so what is made for 64 is in a list of other editors.
std::vector<std::string> Lists() {
  if constexpr (sizeof(void*) == 8) return {kVisualBasicList, kEditorsOf64BitsList};
  return {kVisualBasicList};
}

RegisteredAddIn Read(const win32::RegistryKey& all, const std::string& progId) {
  const win32::RegistryKey key(all.Get(), progId, KEY_READ);
  if (!key.IsOpen()) return {.progId = progId, .friendlyName = progId, .description = ""};
  return {.progId = progId,
          .friendlyName = key.Text("FriendlyName").value_or(progId),
          .description = key.Text("Description").value_or(""),
          .loadBehavior = key.Number("LoadBehavior").value_or(0),
          .isCommandLineSafe = key.Number("CommandLineSafe").value_or(0) != 0};
}

}  // namespace

std::vector<RegisteredAddIn> RegisteredAddIns() {
  std::vector<RegisteredAddIn> addIns;
  std::set<std::string> known;
  for (const std::string& list : Lists()) {
    const win32::RegistryKey all(HKEY_CURRENT_USER, list, KEY_READ);
    if (!all.IsOpen()) continue;
    for (const std::string& progId : all.Keys()) {
      if (known.insert(progId).second) addIns.push_back(Read(all, progId));
    }
  }
  return addIns;
}

void SetLoadBehavior(const std::string& progId, unsigned long behavior) {
  for (const std::string& list : Lists()) {
    const std::string path = list + "\\" + progId;
    if (!win32::RegistryKey(HKEY_CURRENT_USER, path, KEY_READ).IsOpen()) continue;
    return win32::RegistryKey::Make(HKEY_CURRENT_USER, path).SetNumber("LoadBehavior", behavior);
  }
  win32::RegistryKey::Make(HKEY_CURRENT_USER, std::string(kVisualBasicList) + "\\" + progId)
      .SetNumber("LoadBehavior", behavior);
}

}  // namespace brimwork::bench

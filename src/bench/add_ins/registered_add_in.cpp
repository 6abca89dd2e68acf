#include "bench/add_ins/registered_add_in.h"

#include <windows.h>

#include "win32/registry_key.h"

namespace brimwork::bench {
namespace {

constexpr const char* kAddIns = "Software\\Microsoft\\Visual Basic\\6.0\\Addins";

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
  const win32::RegistryKey all(HKEY_CURRENT_USER, kAddIns, KEY_READ);
  if (!all.IsOpen()) return addIns;
  for (const std::string& progId : all.Keys()) addIns.push_back(Read(all, progId));
  return addIns;
}

void SetLoadBehavior(const std::string& progId, unsigned long behavior) {
  win32::RegistryKey::Make(HKEY_CURRENT_USER, std::string(kAddIns) + "\\" + progId)
      .SetNumber("LoadBehavior", behavior);
}

}  // namespace brimwork::bench

#include "bench/automation/control_search.h"

namespace brimwork::bench {
namespace {

bool Fits(MemoryCommandBarControl& control, const ControlSearch& search) {
  if (search.type && control.Type() != *search.type) return false;
  if (search.id && control.Id() != *search.id) return false;
  if (search.tag && control.Tag() != *search.tag) return false;
  return !search.visibleOnly || control.Details().visible;
}

}  // namespace

std::shared_ptr<MemoryCommandBarControl> FindControl(const MemoryCommandBarControls& controls,
                                                     const ControlSearch& search) {
  for (const auto& control : controls.All()) {
    if (Fits(*control, search)) return control;
    if (!search.insidePopups || control->Entries() == nullptr) continue;
    if (const auto found = FindControl(*control->Entries(), search)) return found;
  }
  return nullptr;
}

}  // namespace brimwork::bench

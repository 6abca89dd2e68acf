#include "windows/object_model/com_command_bar_controls.h"

#include "environment/control.h"
#include "environment/run_time_error.h"
#include "environment/text.h"
#include "windows/object_model/com_command_bar_control.h"

namespace brimwork::windows {

using win32::Variant;

int ComCommandBarControls::Count() { return ToNumber(controls_.Get(L"Count")); }

std::shared_ptr<CommandBarControl> ComCommandBarControls::Item(int index) {
  return controls_.GetExisting<ComCommandBarControl>(L"Item", index);
}

// The environment's own look-up by caption has rules of its own about access keys.
std::shared_ptr<CommandBarControl> ComCommandBarControls::Item(std::string_view caption) {
  const std::string shown = ShownCaption(caption);
  const int count = Count();
  for (int i = 1; i <= count; ++i) {
    auto control = Item(i);
    if (control && EqualNames(ShownCaption(control->Caption()), shown)) return control;
  }
  throw RunTimeError(error_number::kInvalidProcedureCall,
                     "there is no control \"" + std::string(caption) + '"');
}

std::shared_ptr<CommandBarControl> ComCommandBarControls::Add(const NewControl& control) {
  return controls_.CallExisting<ComCommandBarControl>(
      L"Add", control.type, control.id, Variant::Missing(),
      control.before == 0 ? Variant::Missing() : Argument(control.before), control.isTemporary);
}

}  // namespace brimwork::windows

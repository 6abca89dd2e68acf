#include "core/added_entries.h"

#include <utility>

#include "environment/resume_next.h"

namespace brimwork {

std::shared_ptr<CommandBarControl> AddedEntries::Add(CommandBarControls& parent,
                                                     const NewControl& control,
                                                     std::string_view tag) {
  controls_.push_back(parent.Add(control));
  controls_.back()->SetTag(std::string(kTagPrefix).append(tag));
  return controls_.back();
}

void AddedEntries::Bind(int handler, std::unique_ptr<CommandBarEvents> events) {
  ButtonHandler_[handler] = std::move(events);
}

void AddedEntries::Remove() {
  while (!controls_.empty()) {
    Insist([&] { controls_.back()->Delete(); });
    controls_.pop_back();
  }
  ButtonHandler_.clear();
}

void RemoveLeftovers(CommandBarControls& controls) {
  ResumeNext([&] {
    for (int index = controls.Count(); index >= 1; --index) {
      const auto control = controls.Item(index);
      if (control->Tag().starts_with(kTagPrefix)) control->Delete();
    }
  });
}

}  // namespace brimwork

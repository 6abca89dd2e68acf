#include "memory/memory_command_bar_controls.h"

#include <algorithm>
#include <utility>

#include "environment/control.h"
#include "environment/run_time_error.h"
#include "environment/text.h"
#include "memory/memory_command_bar.h"
#include "memory/memory_command_bars.h"

namespace brimwork {
namespace {

bool BearsCaption(const MemoryCommandBarControl& control, std::string_view caption) {
  return EqualNames(ShownCaption(control.LastCaption()), ShownCaption(caption));
}

}  // namespace

MemoryCommandBarControls::~MemoryCommandBarControls() { Vanish(); }

int MemoryCommandBarControls::Count() {
  CheckLiving();
  return static_cast<int>(controls_.size());
}

std::shared_ptr<CommandBarControl> MemoryCommandBarControls::Item(int index) {
  if (index < 1 || index > Count()) {
    throw RunTimeError(error_number::kInvalidProcedureCall,
                       "there is no control number " + std::to_string(index));
  }
  return controls_[static_cast<std::size_t>(index - 1)];
}

std::shared_ptr<CommandBarControl> MemoryCommandBarControls::Item(std::string_view caption) {
  CheckLiving();
  const auto found = std::ranges::find_if(
      controls_, [&](const auto& control) { return BearsCaption(*control, caption); });
  if (found == controls_.end()) {
    throw RunTimeError(error_number::kInvalidProcedureCall,
                       "there is no control \"" + std::string(caption) + '"');
  }
  return *found;
}

std::shared_ptr<CommandBarControl> MemoryCommandBarControls::Add(const NewControl& control) {
  CheckLiving();
  if (control.type == control_type::kPopup) {
    return Insert(control, std::make_shared<MemoryCommandBarControls>(Owner::kPopup));
  }
  if (control.type != control_type::kButton) {
    throw RunTimeError(error_number::kInvalidProcedureCall, "controls are buttons or popups");
  }
  if (control.id == control_id::kCustom) return Insert(control, nullptr);
  const auto builtIn = Bars().FindControl(control.id);
  if (!builtIn) {
    throw RunTimeError(error_number::kInvalidProcedureCall,
                       "there is no command number " + std::to_string(control.id));
  }
  const auto added = Insert(control, nullptr);
  added->SetCaption(builtIn->LastCaption());
  added->action = builtIn->action;
  return added;
}

std::shared_ptr<MemoryCommandBarControl> MemoryCommandBarControls::AddBuiltIn(
    int id, std::string_view caption, std::function<void()> action) {
  const auto control = Insert({.id = id, .isTemporary = false}, nullptr);
  control->SetCaption(caption);
  control->action = std::move(action);
  return control;
}

std::shared_ptr<MemoryCommandBarControl> MemoryCommandBarControls::AddBuiltInPopup(
    std::string_view caption) {
  const auto control = Insert({.type = control_type::kPopup, .isTemporary = false},
                              std::make_shared<MemoryCommandBarControls>(Owner::kPopup));
  control->SetCaption(caption);
  return control;
}

std::shared_ptr<MemoryCommandBarControl> MemoryCommandBarControls::AddMenu(
    std::string_view caption, const MemoryCommandBar& bar) {
  const auto control = Insert({.type = control_type::kPopup, .isTemporary = false}, bar.Entries());
  control->SetCaption(caption);
  return control;
}

int MemoryCommandBarControls::IndexOf(const MemoryCommandBarControl& control) const {
  const auto found =
      std::ranges::find_if(controls_, [&](const auto& held) { return held.get() == &control; });
  return found == controls_.end() ? 0 : static_cast<int>(found - controls_.begin()) + 1;
}

std::shared_ptr<MemoryCommandBarControl> MemoryCommandBarControls::Remove(
    const MemoryCommandBarControl& control) {
  const auto at = controls_.begin() + (IndexOf(control) - 1);
  auto removed = *at;
  controls_.erase(at);
  return removed;
}

void MemoryCommandBarControls::RemoveTemporary() {
  const auto controls = controls_;
  for (const auto& control : controls) {
    if (control->IsTemporary()) {
      control->Delete();
    } else if (control->Entries()) {
      control->Entries()->RemoveTemporary();
    }
  }
}

void MemoryCommandBarControls::Vanish() {
  isDeleted_ = true;
  for (const auto& control : std::exchange(controls_, {})) control->Vanish();
}

MemoryCommandBars& MemoryCommandBarControls::Bars() const {
  if (bars_ == nullptr) {
    throw RunTimeError(error_number::kAutomationError, "the bar is in no environment");
  }
  return *bars_;
}

void MemoryCommandBarControls::CheckLiving() const {
  if (isDeleted_) {
    throw RunTimeError(error_number::kAutomationError, "the controls have been deleted");
  }
}

std::shared_ptr<MemoryCommandBarControl> MemoryCommandBarControls::Insert(
    const NewControl& control, std::shared_ptr<MemoryCommandBarControls> entries) {
  if (control.before < 0 || control.before > Count() + 1) {
    throw RunTimeError(error_number::kInvalidProcedureCall,
                       "there is no place number " + std::to_string(control.before));
  }
  if (entries && bars_ != nullptr) entries->SetBars(*bars_);
  const auto place = control.before == 0 ? controls_.end() : controls_.begin() + control.before - 1;
  return *controls_.insert(
      place, std::make_shared<MemoryCommandBarControl>(*this, control, std::move(entries)));
}

}  // namespace brimwork

#include "memory/memory_command_bar_controls.h"

#include <algorithm>
#include <utility>

#include "environment/control.h"
#include "environment/run_time_error.h"
#include "environment/text.h"
#include "memory/memory_command_bar.h"
#include "memory/memory_command_bars.h"
#include "memory/usual_commands.h"

namespace brimwork {
namespace {

bool Answers(const MemoryCommandBarControl& control, const ControlQuery& query) {
  return (query.type == 0 || query.type == control.Kind()) &&
         (query.id == 0 || query.id == control.Number()) &&
         (query.tag.empty() || query.tag == control.LastTag()) &&
         (!query.isVisible || control.Details().visible);
}

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
  if (control.type == control_type::kPopup) return Insert(control, MemoryCommandBar::OfAPopup());
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
  added->TakeAfter(*builtIn);
  return added;
}

std::shared_ptr<MemoryCommandBarControl> MemoryCommandBarControls::AddCopyOf(
    const MemoryCommandBarControl& control, int before) {
  auto menu = control.Menu();
  const bool ownsEntries = menu && menu->IsOfAPopup();
  const auto added = Insert({control.Kind(), control.Number(), before, control.IsTemporary()},
                            ownsEntries ? MemoryCommandBar::OfAPopup() : menu);
  added->TakeAfter(control);
  if (!ownsEntries) return added;
  const auto entries = menu->Entries()->All();
  for (const auto& entry : entries) added->Entries()->AddCopyOf(*entry);
  return added;
}

void MemoryCommandBarControls::TakeOver(const std::shared_ptr<MemoryCommandBarControl>& control,
                                        int before) {
  CheckPlace(before);
  if (control->IsDeleted()) {
    throw RunTimeError(error_number::kAutomationError, "the control has been deleted");
  }
  if (StandIn(*control)) {
    throw RunTimeError(error_number::kInvalidProcedureCall,
                       "a popup cannot be moved into its own entries");
  }
  const auto next = before == 0 || before > Count() ? nullptr : controls_[before - 1];
  if (next == control) return;
  control->Neighbours()->Remove(*control);
  controls_.insert(PlaceAt(next ? IndexOf(*next) : 0), control);
  control->SetNeighbours(*this);
  if (bars_ != nullptr && control->Entries()) control->Entries()->SetBars(*bars_);
  NoteChange();
}

std::shared_ptr<MemoryCommandBarControl> MemoryCommandBarControls::Find(
    const ControlQuery& query) const {
  for (const auto& control : controls_) {
    if (Answers(*control, query)) return control;
    if (!control->Entries() || !query.isInPopups) continue;
    if (auto found = control->Entries()->Find(query)) return found;
  }
  return nullptr;
}

std::shared_ptr<MemoryCommandBarControl> MemoryCommandBarControls::AddBuiltIn(
    int id, std::string_view caption, std::function<void()> action, int before) {
  const auto control = Insert({.id = id, .before = before, .isTemporary = false}, nullptr);
  control->SetCommand(id);
  control->SetCaption(caption);
  control->action = std::move(action);
  return control;
}

std::shared_ptr<MemoryCommandBarControl> MemoryCommandBarControls::AddBuiltInPopup(
    std::string_view caption) {
  return AddMenu(caption, MemoryCommandBar::OfAPopup());
}

std::shared_ptr<MemoryCommandBarControl> MemoryCommandBarControls::AddMenu(
    std::string_view caption, std::shared_ptr<MemoryCommandBar> bar, int id) {
  const auto control =
      Insert({.type = control_type::kPopup, .id = id, .isTemporary = false}, std::move(bar));
  control->SetCommand(command::kSomeMenu);
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
  NoteChange();
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

void MemoryCommandBarControls::SetBars(MemoryCommandBars& bars) {
  bars_ = &bars;
  for (const auto& control : controls_) {
    if (control->Entries()) control->Entries()->SetBars(bars);
  }
}

void MemoryCommandBarControls::NoteChange() {
  if (bars_ != nullptr) bars_->NoteChange();
}

void MemoryCommandBarControls::CheckLiving() const {
  if (isDeleted_) {
    throw RunTimeError(error_number::kAutomationError, "the controls have been deleted");
  }
}

void MemoryCommandBarControls::CheckPlace(int before) {
  if (before >= 0 && before <= Count() + 1) return;
  throw RunTimeError(error_number::kInvalidProcedureCall,
                     "there is no place number " + std::to_string(before));
}

std::vector<std::shared_ptr<MemoryCommandBarControl>>::const_iterator
MemoryCommandBarControls::PlaceAt(int before) const {
  return before == 0 ? controls_.end() : controls_.begin() + before - 1;
}

bool MemoryCommandBarControls::StandIn(const MemoryCommandBarControl& popup) const {
  if (!popup.Entries()) return false;
  if (popup.Entries().get() == this) return true;
  return std::ranges::any_of(popup.Entries()->All(),
                             [&](const auto& entry) { return StandIn(*entry); });
}

std::shared_ptr<MemoryCommandBarControl> MemoryCommandBarControls::Insert(
    const NewControl& control, std::shared_ptr<MemoryCommandBar> menu) {
  CheckPlace(control.before);
  if (menu && bars_ != nullptr) menu->Entries()->SetBars(*bars_);
  NoteChange();
  return *controls_.insert(PlaceAt(control.before), std::make_shared<MemoryCommandBarControl>(
                                                        *this, control, std::move(menu)));
}

}  // namespace brimwork

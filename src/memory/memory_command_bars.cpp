#include "memory/memory_command_bars.h"

#include <algorithm>
#include <utility>

#include "environment/run_time_error.h"

namespace brimwork {
namespace {

std::shared_ptr<MemoryCommandBarControl> FindIn(const MemoryCommandBarControls& controls, int id) {
  for (const auto& control : controls.All()) {
    if (control->Id() == id) return control;
    if (!control->Entries()) continue;
    if (auto found = FindIn(*control->Entries(), id)) return found;
  }
  return nullptr;
}

}  // namespace

class MemoryCommandBars::Events : public CommandBarEvents {
 public:
  explicit Events(std::shared_ptr<Binding> binding) : binding_(std::move(binding)) {}

 private:
  std::shared_ptr<Binding> binding_;
};

std::shared_ptr<MemoryCommandBar> MemoryCommandBars::OfName(std::string_view name) const {
  const auto found =
      std::ranges::find_if(bars_, [&](const auto& bar) { return bar->LastName() == name; });
  return found == bars_.end() ? nullptr : *found;
}

std::shared_ptr<MemoryCommandBarControl> MemoryCommandBars::FindControl(int id) const {
  for (const auto& bar : bars_) {
    if (auto found = FindIn(*bar->Entries(), id)) return found;
  }
  return nullptr;
}

std::shared_ptr<MemoryCommandBar> MemoryCommandBars::Add(const NewCommandBar& bar) {
  if (OfName(bar.name)) {
    throw RunTimeError(error_number::kInvalidProcedureCall,
                       "there is a bar \"" + std::string(bar.name) + "\" already");
  }
  auto added = std::make_shared<MemoryCommandBar>(bar);
  Add(added);
  return added;
}

void MemoryCommandBars::Add(const std::shared_ptr<MemoryCommandBar>& bar) {
  bar->SetBars(*this);
  bars_.push_back(bar);
}

void MemoryCommandBars::Remove(const MemoryCommandBar& bar) {
  std::erase_if(bars_, [&](const auto& held) { return held.get() == &bar; });
}

void MemoryCommandBars::RemoveTemporary() {
  const auto bars = bars_;
  for (const auto& bar : bars) {
    if (bar->IsTemporary()) {
      bar->Delete();
    } else {
      bar->Entries()->RemoveTemporary();
    }
  }
}

std::unique_ptr<CommandBarEvents> MemoryCommandBars::EventsOf(CommandBarControl& control,
                                                              ClickHandler onClick) {
  auto binding = std::make_shared<Binding>(control.Id(), control.Tag(), std::move(onClick));
  std::erase_if(bindings_, [](const auto& each) { return each.expired(); });
  bindings_.push_back(binding);
  return std::make_unique<Events>(std::move(binding));
}

// A handler may delete the control, or end its own binding or another's.
void MemoryCommandBars::Click(MemoryCommandBarControl& control) {
  const auto action = control.action;
  for (const auto& each : BindingsOf(control)) {
    if (const auto binding = each.lock()) binding->onClick(control);
  }
  if (action) action();
}

std::vector<std::weak_ptr<MemoryCommandBars::Binding>> MemoryCommandBars::BindingsOf(
    MemoryCommandBarControl& control) const {
  std::vector<std::weak_ptr<Binding>> reached;
  for (const auto& each : bindings_) {
    const auto binding = each.lock();
    if (binding && binding->id == control.Id() && binding->tag == control.Tag()) {
      reached.push_back(each);
    }
  }
  return reached;
}

}  // namespace brimwork

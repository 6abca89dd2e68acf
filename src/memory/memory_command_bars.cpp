#include "memory/memory_command_bars.h"

#include <algorithm>
#include <utility>

#include "environment/run_time_error.h"

namespace brimwork {
namespace {

/// Calls visit for every control of the bar; a menu's are those of the bar that it shows.
void VisitControls(
    const MemoryCommandBarControls& controls,
    const std::function<void(const std::shared_ptr<MemoryCommandBarControl>&)>& visit) {
  const auto all = controls.All();
  for (const auto& control : all) {
    visit(control);
    if (control->Menu() && control->Menu()->IsOfAPopup()) VisitControls(*control->Entries(), visit);
  }
}

/// Puts a value back when its scope ends.
template <class Value>
class Restored {
 public:
  Restored(Value& value, Value meanwhile)
      : value_(value), before_(std::exchange(value, std::move(meanwhile))) {}
  ~Restored() { value_ = std::move(before_); }
  Restored(const Restored&) = delete;
  Restored& operator=(const Restored&) = delete;

 private:
  Value& value_;
  Value before_;
};

}  // namespace

class MemoryCommandBars::Events : public CommandBarEvents {
 public:
  explicit Events(std::shared_ptr<Binding> binding) : binding_(std::move(binding)) {}

 private:
  std::shared_ptr<Binding> binding_;
};

MemoryCommandBars::~MemoryCommandBars() {
  for (const auto& bar : bars_) bar->Vanish();
}

std::shared_ptr<MemoryCommandBar> MemoryCommandBars::OfName(std::string_view name) const {
  const auto found =
      std::ranges::find_if(bars_, [&](const auto& bar) { return bar->LastName() == name; });
  return found == bars_.end() ? nullptr : *found;
}

std::shared_ptr<MemoryCommandBarControl> MemoryCommandBars::FindControl(int id) const {
  return Find({.id = id});
}

std::shared_ptr<MemoryCommandBarControl> MemoryCommandBars::Find(const ControlQuery& query) const {
  for (const auto& bar : bars_) {
    if (query.isVisible && !bar->Visible()) continue;
    if (auto found = bar->Entries()->Find(query)) return found;
  }
  return nullptr;
}

int MemoryCommandBars::IndexOf(const MemoryCommandBar& bar) const {
  const auto found =
      std::ranges::find_if(bars_, [&](const auto& held) { return held.get() == &bar; });
  return found == bars_.end() ? 0 : static_cast<int>(found - bars_.begin()) + 1;
}

std::shared_ptr<MemoryCommandBar> MemoryCommandBars::Add(const NewCommandBar& bar) {
  const std::string name = bar.name.empty() ? FreeName() : std::string(bar.name);
  RequireFreeName(name);
  auto added =
      std::make_shared<MemoryCommandBar>(NewCommandBar{name, bar.position, bar.isTemporary});
  Add(added);
  return added;
}

void MemoryCommandBars::RequireFreeName(std::string_view name) const {
  if (!OfName(name)) return;
  throw RunTimeError(error_number::kInvalidProcedureCall,
                     "there is a bar \"" + std::string(name) + "\" already");
}

void MemoryCommandBars::Add(const std::shared_ptr<MemoryCommandBar>& bar) {
  bar->SetBars(*this);
  bars_.push_back(bar);
  NoteChange();
}

void MemoryCommandBars::Remove(const MemoryCommandBar& bar) {
  std::erase_if(bars_, [&](const auto& held) { return held.get() == &bar; });
  NoteChange();
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
  return EventsOf(control, [handler = std::move(onClick)](CommandBarControl& clicked,
                                                          ClickAnswer&) { handler(clicked); });
}

std::unique_ptr<CommandBarEvents> MemoryCommandBars::EventsOf(CommandBarControl& control,
                                                              AnsweringHandler onClick) {
  auto binding = std::make_shared<Binding>(control.Id(), control.Tag(), std::move(onClick));
  std::erase_if(bindings_, [](const auto& each) { return each.expired(); });
  bindings_.push_back(binding);
  return std::make_unique<Events>(std::move(binding));
}

void MemoryCommandBars::SetAction(int command, std::function<void()> action) {
  actions_[command] = std::move(action);
}

bool MemoryCommandBars::HasAction(const MemoryCommandBarControl& control) const {
  return static_cast<bool>(ActionOf(control));
}

std::vector<std::shared_ptr<MemoryCommandBarControl>> MemoryCommandBars::ControlsOf(
    int command) const {
  std::vector<std::shared_ptr<MemoryCommandBarControl>> controls;
  for (const auto& bar : bars_) {
    VisitControls(*bar->Entries(), [&](const auto& control) {
      if (control->Command() == command) controls.push_back(control);
    });
  }
  return controls;
}

void MemoryCommandBars::SetEnabled(int command, bool enabled) {
  for (const auto& control : ControlsOf(command)) {
    ControlDetails details = control->Details();
    details.enabled = enabled;
    control->SetDetails(std::move(details));
  }
}

void MemoryCommandBars::SetState(int command, int state) {
  for (const auto& control : ControlsOf(command)) {
    ControlDetails details = control->Details();
    details.state = state;
    control->SetDetails(std::move(details));
  }
}

void MemoryCommandBars::DisableIdleCommands() {
  for (const auto& bar : bars_) {
    VisitControls(*bar->Entries(), [&](const auto& control) {
      if (!control->IsBuiltIn() || control->Entries() || HasAction(*control)) return;
      ControlDetails details = control->Details();
      details.enabled = false;
      control->SetDetails(std::move(details));
    });
  }
}

// A handler may delete the control, or end its own binding or another's.
void MemoryCommandBars::Click(MemoryCommandBarControl& control) {
  const auto self = control.shared_from_this();
  const Restored<std::weak_ptr<MemoryCommandBarControl>> clicked(clicked_, self);
  const auto action = ActionOf(control);
  const bool isCanceled = TellHandlers(control);
  if (action && !isCanceled) action();
}

std::string MemoryCommandBars::FreeName() const {
  int number = 1;
  while (OfName("Custom " + std::to_string(number))) ++number;
  return "Custom " + std::to_string(number);
}

std::function<void()> MemoryCommandBars::ActionOf(const MemoryCommandBarControl& control) const {
  if (control.action) return control.action;
  const auto found = actions_.find(control.Command());
  return found == actions_.end() ? std::function<void()>() : found->second;
}

/// True when one of them keeps the environment's own command from running.
bool MemoryCommandBars::TellHandlers(MemoryCommandBarControl& control) {
  ClickAnswer answer;
  for (const auto& each : BindingsOf(control)) {
    if (const auto binding = each.lock()) binding->onClick(control, answer);
  }
  return answer.cancelsDefault;
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

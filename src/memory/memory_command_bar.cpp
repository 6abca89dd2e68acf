#include "memory/memory_command_bar.h"

#include <utility>

#include "environment/run_time_error.h"
#include "memory/memory_command_bars.h"

namespace brimwork {
namespace {

constexpr int kLastRow = -1;

bool IsPlaceForToolbars(int position) {
  return position >= bar_position::kLeft && position <= bar_position::kFloating;
}

int TypeAt(int position) {
  switch (position) {
    case bar_position::kPopup:
      return bar_type::kPopup;
    case bar_position::kMenuBar:
      return bar_type::kMenuBar;
    default:
      return bar_type::kToolbar;
  }
}

}  // namespace

MemoryCommandBar::MemoryCommandBar(std::string name)
    : name_(std::move(name)),
      isBuiltIn_(true),
      entries_(std::make_shared<MemoryCommandBarControls>()) {}

MemoryCommandBar::MemoryCommandBar(const NewCommandBar& bar)
    : name_(bar.name),
      type_(TypeAt(bar.position)),
      isBuiltIn_(false),
      isTemporary_(bar.isTemporary),
      isVisible_(false),
      position_(bar.position),
      entries_(std::make_shared<MemoryCommandBarControls>()) {}

std::shared_ptr<MemoryCommandBar> MemoryCommandBar::OfAPopup() {
  auto bar = std::make_shared<MemoryCommandBar>(std::string());
  bar->isOfAPopup_ = true;
  bar->MakeMenu();
  return bar;
}

std::string MemoryCommandBar::Name() {
  CheckLiving();
  return name_;
}

bool MemoryCommandBar::Visible() {
  CheckLiving();
  return isVisible_ && details_.enabled;
}

void MemoryCommandBar::SetVisible(bool visible) {
  CheckLiving();
  if (visible && !details_.enabled) {
    throw RunTimeError(error_number::kUnspecified, "the bar \"" + name_ + "\" is disabled");
  }
  Set(isVisible_, visible);
}

int MemoryCommandBar::Position() {
  CheckLiving();
  return position_;
}

void MemoryCommandBar::SetPosition(int position) {
  CheckLiving();
  if (!IsPlaceForToolbars(position)) {
    throw RunTimeError(error_number::kInvalidProcedureCall,
                       "a toolbar has no position " + std::to_string(position));
  }
  Set(position_, position);
}

int MemoryCommandBar::RowIndex() {
  CheckLiving();
  return row_;
}

void MemoryCommandBar::SetRowIndex(int row) {
  CheckLiving();
  if (row < kLastRow) {
    throw RunTimeError(error_number::kInvalidProcedureCall,
                       "there is no row " + std::to_string(row));
  }
  Set(row_, row);
}

int MemoryCommandBar::Left() {
  CheckLiving();
  return left_;
}

void MemoryCommandBar::SetLeft(int left) {
  CheckLiving();
  Set(left_, left);
}

int MemoryCommandBar::Top() {
  CheckLiving();
  return top_;
}

void MemoryCommandBar::SetTop(int top) {
  CheckLiving();
  Set(top_, top);
}

std::shared_ptr<CommandBarControls> MemoryCommandBar::Controls() {
  CheckLiving();
  return entries_;
}

void MemoryCommandBar::Delete() {
  CheckLiving();
  if (isBuiltIn_) {
    throw RunTimeError(error_number::kInvalidProcedureCall,
                       "the bar \"" + name_ + "\" is the environment's own");
  }
  Vanish();
  if (bars_ != nullptr) bars_->Remove(*this);
}

void MemoryCommandBar::SetName(std::string_view name) {
  CheckLiving();
  if (isBuiltIn_) {
    throw RunTimeError(error_number::kInvalidProcedureCall,
                       "the bar \"" + name_ + "\" is the environment's own");
  }
  if (name == name_) return;
  if (bars_ != nullptr) bars_->RequireFreeName(name);
  Set(name_, std::string(name));
}

const BarDetails& MemoryCommandBar::Details() const {
  CheckLiving();
  return details_;
}

void MemoryCommandBar::SetDetails(BarDetails details) {
  CheckLiving();
  Set(details_, std::move(details));
}

int MemoryCommandBar::Index() const {
  CheckLiving();
  return bars_ != nullptr ? bars_->IndexOf(*this) : 0;
}

void MemoryCommandBar::MakeMenu() {
  type_ = bar_type::kPopup;
  position_ = bar_position::kPopup;
  isVisible_ = false;
}

void MemoryCommandBar::MakeMenuBar() { type_ = bar_type::kMenuBar; }

void MemoryCommandBar::NoteOpen(bool isOpen) { Set(isVisible_, isOpen); }

void MemoryCommandBar::Vanish() {
  isDeleted_ = true;
  entries_->Vanish();
}

void MemoryCommandBar::SetBars(MemoryCommandBars& bars) {
  bars_ = &bars;
  entries_->SetBars(bars);
}

void MemoryCommandBar::CheckLiving() const {
  if (isDeleted_) {
    throw RunTimeError(error_number::kAutomationError,
                       "the bar \"" + name_ + "\" has been deleted");
  }
}

template <class Value>
void MemoryCommandBar::Set(Value& value, Value newValue) {
  if (value == newValue) return;
  value = std::move(newValue);
  if (bars_ != nullptr) bars_->NoteChange();
}

}  // namespace brimwork

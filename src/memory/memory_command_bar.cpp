#include "memory/memory_command_bar.h"

#include <utility>

#include "environment/run_time_error.h"
#include "memory/memory_command_bars.h"

namespace brimwork {
namespace {

constexpr int kLastRow = -1;

std::shared_ptr<MemoryCommandBarControls> NoEntries() {
  return std::make_shared<MemoryCommandBarControls>(MemoryCommandBarControls::Owner::kBar);
}

bool IsPlaceForToolbars(int position) {
  return position >= bar_position::kLeft && position <= bar_position::kFloating;
}

}  // namespace

MemoryCommandBar::MemoryCommandBar(std::string name)
    : name_(std::move(name)), isBuiltIn_(true), entries_(NoEntries()) {}

MemoryCommandBar::MemoryCommandBar(const NewCommandBar& bar)
    : name_(bar.name),
      isBuiltIn_(false),
      isTemporary_(bar.isTemporary),
      isVisible_(false),
      position_(bar.position),
      entries_(NoEntries()) {}

std::string MemoryCommandBar::Name() {
  CheckLiving();
  return name_;
}

bool MemoryCommandBar::Visible() {
  CheckLiving();
  return isVisible_;
}

void MemoryCommandBar::SetVisible(bool visible) {
  CheckLiving();
  isVisible_ = visible;
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
  position_ = position;
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
  row_ = row;
}

int MemoryCommandBar::Left() {
  CheckLiving();
  return left_;
}

void MemoryCommandBar::SetLeft(int left) {
  CheckLiving();
  left_ = left;
}

int MemoryCommandBar::Top() {
  CheckLiving();
  return top_;
}

void MemoryCommandBar::SetTop(int top) {
  CheckLiving();
  top_ = top;
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
  isDeleted_ = true;
  entries_->Vanish();
  if (bars_ != nullptr) bars_->Remove(*this);
}

void MemoryCommandBar::MakeMenu() {
  position_ = bar_position::kPopup;
  isVisible_ = false;
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

}  // namespace brimwork

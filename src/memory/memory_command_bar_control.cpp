#include "memory/memory_command_bar_control.h"

#include <utility>

#include "environment/run_time_error.h"
#include "memory/memory_command_bar_controls.h"
#include "memory/memory_command_bars.h"

namespace brimwork {

MemoryCommandBarControl::MemoryCommandBarControl(MemoryCommandBarControls& neighbours,
                                                 const NewControl& control,
                                                 std::shared_ptr<MemoryCommandBarControls> entries)
    : neighbours_(&neighbours),
      type_(control.type),
      id_(control.id),
      isTemporary_(control.isTemporary),
      entries_(std::move(entries)) {}

MemoryCommandBarControl::~MemoryCommandBarControl() = default;

int MemoryCommandBarControl::Type() {
  Living();
  return type_;
}

int MemoryCommandBarControl::Id() {
  Living();
  return id_;
}

int MemoryCommandBarControl::Index() { return Living().IndexOf(*this); }

std::string MemoryCommandBarControl::Caption() {
  Living();
  return caption_;
}

void MemoryCommandBarControl::SetCaption(std::string_view caption) {
  Living();
  caption_ = caption;
}

std::string MemoryCommandBarControl::Tag() {
  Living();
  return tag_;
}

void MemoryCommandBarControl::SetTag(std::string_view tag) {
  Living();
  tag_ = tag;
}

bool MemoryCommandBarControl::BeginGroup() {
  Living();
  return beginsGroup_;
}

void MemoryCommandBarControl::SetBeginGroup(bool begins) {
  Living();
  beginsGroup_ = begins;
}

void MemoryCommandBarControl::Execute() { Living().Bars().Click(*this); }

// The last one that holds the control may be its neighbours.
void MemoryCommandBarControl::Delete() {
  const auto self = Living().Remove(*this);
  self->Vanish();
}

int MemoryCommandBarControl::Style() {
  LivingButton();
  return style_;
}

void MemoryCommandBarControl::SetStyle(int style) {
  LivingButton();
  style_ = style;
}

void MemoryCommandBarControl::PasteFace() {
  const std::string& picture = LivingButton().Bars().PictureOnClipboard();
  if (picture.empty()) {
    throw RunTimeError(error_number::kInvalidClipboardFormat, "the clipboard holds no picture");
  }
  face_ = picture;
}

std::shared_ptr<CommandBarControls> MemoryCommandBarControl::Controls() {
  Living();
  if (!entries_) {
    throw RunTimeError(error_number::kNotSupportedByObject, "a button has no entries");
  }
  return entries_;
}

void MemoryCommandBarControl::Vanish() {
  neighbours_ = nullptr;
  if (entries_ && !entries_->BelongToABar()) entries_->Vanish();
}

MemoryCommandBarControls& MemoryCommandBarControl::Living() const {
  if (neighbours_ == nullptr) {
    throw RunTimeError(error_number::kAutomationError, "the control has been deleted");
  }
  return *neighbours_;
}

MemoryCommandBarControls& MemoryCommandBarControl::LivingButton() const {
  MemoryCommandBarControls& neighbours = Living();
  if (entries_) throw RunTimeError(error_number::kNotSupportedByObject, "a popup is no button");
  return neighbours;
}

}  // namespace brimwork

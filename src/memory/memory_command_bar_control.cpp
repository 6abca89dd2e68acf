#include "memory/memory_command_bar_control.h"

#include <utility>

#include "environment/control.h"
#include "environment/run_time_error.h"
#include "memory/memory_command_bar.h"
#include "memory/memory_command_bar_controls.h"
#include "memory/memory_command_bars.h"

namespace brimwork {
namespace {

const std::shared_ptr<MemoryCommandBarControls> kNoEntries;

int FaceOf(int id) { return id == control_id::kCustom ? 0 : id; }

}  // namespace

MemoryCommandBarControl::MemoryCommandBarControl(MemoryCommandBarControls& neighbours,
                                                 const NewControl& control,
                                                 std::shared_ptr<MemoryCommandBar> menu)
    : neighbours_(&neighbours),
      type_(control.type),
      id_(control.id),
      isTemporary_(control.isTemporary),
      menu_(std::move(menu)) {
  if (!menu_) details_.faceId = FaceOf(id_);
}

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
  Set(caption_, caption);
  if (menu_ && menu_->IsOfAPopup()) menu_->SetPopupName(ShownCaption(caption));
}

std::string MemoryCommandBarControl::Tag() {
  Living();
  return tag_;
}

void MemoryCommandBarControl::SetTag(std::string_view tag) { Set(tag_, tag); }

bool MemoryCommandBarControl::BeginGroup() {
  Living();
  return beginsGroup_;
}

void MemoryCommandBarControl::SetBeginGroup(bool begins) { Set(beginsGroup_, begins); }

void MemoryCommandBarControl::Execute() {
  MemoryCommandBars& bars = Living().Bars();
  if (!details_.enabled) {
    throw RunTimeError(error_number::kUnspecified, "the control \"" + caption_ + "\" is disabled");
  }
  bars.Click(*this);
}

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
  Set(style_, style);
}

void MemoryCommandBarControl::PasteFace() {
  const std::string& picture = LivingButton().Bars().PictureOnClipboard();
  if (picture.empty()) {
    throw RunTimeError(error_number::kInvalidClipboardFormat, "the clipboard holds no picture");
  }
  Set(face_, picture);
  details_.faceId = 0;
}

std::shared_ptr<CommandBarControls> MemoryCommandBarControl::Controls() {
  Living();
  if (!menu_) {
    throw RunTimeError(error_number::kNotSupportedByObject, "a button has no entries");
  }
  return menu_->Entries();
}

const ControlDetails& MemoryCommandBarControl::Details() const {
  Living();
  return details_;
}

void MemoryCommandBarControl::SetDetails(ControlDetails details) {
  if (details.faceId != Details().faceId) face_.clear();
  Set(details_, std::move(details));
}

void MemoryCommandBarControl::ResetFace() {
  LivingButton().NoteChange();
  face_.clear();
  details_.faceId = FaceOf(id_);
}

const std::shared_ptr<MemoryCommandBarControls>& MemoryCommandBarControl::Entries() const {
  return menu_ ? menu_->Entries() : kNoEntries;
}

void MemoryCommandBarControl::Vanish() {
  neighbours_ = nullptr;
  if (menu_ && menu_->IsOfAPopup()) menu_->Vanish();
}

void MemoryCommandBarControl::TakeAfter(const MemoryCommandBarControl& other) {
  command_ = other.command_;
  action = other.action;
  face_ = other.face_;
  style_ = other.style_;
  details_ = other.details_;
  SetCaption(other.caption_);
}

MemoryCommandBarControls& MemoryCommandBarControl::Living() const {
  if (neighbours_ == nullptr) {
    throw RunTimeError(error_number::kAutomationError, "the control has been deleted");
  }
  return *neighbours_;
}

MemoryCommandBarControls& MemoryCommandBarControl::LivingButton() const {
  MemoryCommandBarControls& neighbours = Living();
  if (menu_) throw RunTimeError(error_number::kNotSupportedByObject, "a popup is no button");
  return neighbours;
}

template <class Value, class NewValue>
void MemoryCommandBarControl::Set(Value& value, NewValue&& newValue) {
  MemoryCommandBarControls& neighbours = Living();
  if (value == newValue) return;
  value = std::forward<NewValue>(newValue);
  neighbours.NoteChange();
}

}  // namespace brimwork

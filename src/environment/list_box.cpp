#include "environment/list_box.h"

#include "environment/run_time_error.h"

namespace brimwork {

std::string ListControl::List(int index) const {
  return HasItem(index) ? items_[static_cast<std::size_t>(index)] : std::string();
}

void ListControl::AddItem(std::string_view item) {
  items_.emplace_back(item);
  ChangeList(ListIndex);
}

void ListControl::RemoveItem(int index) {
  if (!HasItem(index)) {
    throw RunTimeError(error_number::kInvalidProcedureCall, "Invalid procedure call or argument");
  }
  items_.erase(items_.begin() + index);
  const int chosen = ListIndex;
  ChangeList(chosen == index ? kNoItem : chosen > index ? chosen - 1 : chosen);
}

void ListControl::Clear() {
  items_.clear();
  ChangeList(kNoItem);
}

void ListControl::Choose(int index) {
  if (!HasItem(index) || !IsReached()) return;
  if (ListIndex == index) {
    Raise(OnClick);
  } else {
    ListIndex = index;
  }
}

// The choice moves along with the item, which is no click.
void ListControl::ChangeList(int chosen) {
  ListIndex.Preset(chosen);
  Changed(PropertyId::kList);
}

void ListControl::AfterChange(PropertyId property) {
  if (property == PropertyId::kListIndex) Raise(OnClick);
}

void ListControl::Design(const ControlLayout& layout) {
  Control::Design(layout);
  items_.assign(layout.items.begin(), layout.items.end());
  ListIndex.Preset(kNoItem);
}

}  // namespace brimwork

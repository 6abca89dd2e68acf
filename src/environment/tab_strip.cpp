#include "environment/tab_strip.h"

namespace brimwork {

std::string TabStrip::AccessKeys() const {
  std::string keys;
  for (const TabLayout& tab : Tabs()) keys += AccessKeyOf(tab.caption);
  return keys;
}

void TabStrip::PressAccessKey(char key) {
  for (std::size_t i = 0; i < Tabs().size(); ++i) {
    if (AccessKeyOf(Tabs()[i].caption) == std::string(1, key))
      return Choose(static_cast<int>(i) + 1);
  }
}

void TabStrip::Choose(int tab) {
  const bool isThere = tab >= 1 && tab <= static_cast<int>(Tabs().size());
  if (!isThere || !IsReached()) return;
  if (SelectedItem == tab) {
    Raise(OnClick);
  } else {
    SelectedItem = tab;
  }
}

void TabStrip::AfterChange(PropertyId property) {
  if (property == PropertyId::kValue) Raise(OnClick);
}

void TabStrip::Design(const ControlLayout& layout) {
  Control::Design(layout);
  SelectedItem.Preset(1);
}

}  // namespace brimwork

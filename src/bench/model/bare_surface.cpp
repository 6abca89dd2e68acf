#include "bench/model/bare_surface.h"

#include "memory/memory_command_bar_controls.h"

namespace brimwork::bench {
namespace {

constexpr Bounds kWindow{0, 0, 640, 480};
constexpr int kButtonWidth = 23;
constexpr int kButtonHeight = 22;

int Or(int given, int usual) { return given != 0 ? given : usual; }

template <class Key, class Value>
Value Found(const std::map<Key, Value>& values, Key key, Value usual) {
  const auto found = values.find(key);
  return found == values.end() ? usual : found->second;
}

int WidthOf(const MemoryCommandBarControl& control) {
  return control.Details().visible ? Or(control.Details().width, kButtonWidth) : 0;
}

/// Of the controls in front of one; of all for null.
int WidthBefore(const MemoryCommandBarControls& controls, const MemoryCommandBarControl* control) {
  int width = 0;
  for (const auto& each : controls.All()) {
    if (each.get() == control) break;
    width += WidthOf(*each);
  }
  return width;
}

}  // namespace

Bounds BareSurface::BoundsOf(const MemoryWindow& window) {
  return Found(windowBounds_, &window, kWindow);
}

void BareSurface::SetBoundsOf(const MemoryWindow& window, const Bounds& bounds) {
  windowBounds_[&window] = bounds;
}

WindowState BareSurface::StateOf(const MemoryWindow& window) {
  return Found(windowStates_, &window, WindowState::kNormal);
}

void BareSurface::SetStateOf(const MemoryWindow& window, WindowState state) {
  windowStates_[&window] = state;
}

int BareSurface::TopLineOf(const MemoryCodePane& pane) { return Found(topLines_, &pane, 1); }

void BareSurface::SetTopLineOf(const MemoryCodePane& pane, int line) { topLines_[&pane] = line; }

Bounds BareSurface::BoundsOf(const MemoryCommandBar& bar) {
  return {bar.LastLeft(), bar.LastTop(),
          Or(bar.Details().width, WidthBefore(*bar.Entries(), nullptr)),
          Or(bar.Details().height, kButtonHeight)};
}

Bounds BareSurface::BoundsOf(const MemoryCommandBarControl& control) {
  return {WidthBefore(*control.Neighbours(), &control), 0, WidthOf(control),
          Or(control.Details().height, kButtonHeight)};
}

void BareSurface::FaceToClipboard(const MemoryCommandBarControl& control) {
  faceOnClipboard = control.Face();
}

void BareSurface::ShowPopup(MemoryCommandBar& menu) {
  menu.NoteOpen(true);
  if (onPopup) onPopup(menu);
  menu.NoteOpen(false);
}

}  // namespace brimwork::bench

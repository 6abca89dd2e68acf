// How a bar and its buttons are drawn, and how much room they take.
#pragma once

#include <windows.h>

#include "bench/screen/bar_flow.h"
#include "bench/screen/control_look.h"
#include "bench/screen/fonts.h"

namespace brimwork::bench {

enum class ButtonState { kFlat, kHot, kDown };

/// isDown: on a bar that goes down, where captions have no room beside a picture.
Size MeasureButton(const ControlLook& look, bool isDown, const Fonts& fonts);

void PaintButton(HDC context, const Bounds& place, const ControlLook& look, ButtonState state,
                 bool isDown, const Fonts& fonts);

/// The raised line that a docked bar is held by.
void PaintGrip(HDC context, const Bounds& bar, bool isDown);

/// The line between two groups.
void PaintSeparator(HDC context, const Bounds& place);

/// The button with a cross in a small caption.
void PaintCloseButton(HDC context, const RECT& place, bool isDown);

}  // namespace brimwork::bench

// The questions that this program asks of an edit control, and positions between its units and the
// environment's lines and columns, which count characters from 1.
#pragma once

#include <windows.h>

#include <string>

#include "bench/model/text_positions.h"
#include "bench/screen/edit_history.h"
#include "environment/code_module.h"

namespace brimwork::bench {

std::wstring TextOfControl(HWND control);

UnitRange SelectedUnits(HWND edit);
void SelectUnits(HWND edit, const UnitRange& range);

/// text: the control's.
Selection PositionsOf(HWND edit, std::wstring_view text, const UnitRange& range);

/// Positions behind the text are drawn back to its end.
UnitRange UnitsOf(HWND edit, std::wstring_view text, const Selection& selection);

/// Replaces a stretch of the text where it stands, without moving what is on the screen.
void ApplyChange(HWND edit, const TextChange& change);

/// The first line shown, from 0.
int FirstVisibleLine(HWND edit);
void SetFirstVisibleLine(HWND edit, int line);

}  // namespace brimwork::bench

// The add-in's forms in the bench, opened and used by keyboard.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "core/catalogue.h"
#include "support/windows/running_bench.h"

namespace brimwork {

/// The entry that calls this handler. Throws std::out_of_range when there is none.
const CatalogueEntry& EntryOf(int handler);

/// Clicks the entry of a handler and waits until the form with this title has the keyboard. Throws
/// std::runtime_error when it does not come.
HWND OpenForm(const RunningBench& bench, int handler, const std::string& title);

/// The same for a window that something else opens.
HWND WaitForKeyboardIn(const RunningBench& bench, const std::string& title);

/// Brings a window to the front and waits until it has the keyboard. Throws std::runtime_error when
/// it does not take it.
void GiveKeyboardTo(HWND window);

/// The bench's top-level windows beside the main one, but for tool tips, which come when the
/// pointer happens to rest on a button.
std::vector<HWND> FormsIn(const RunningBench& bench);

/// The window that keys go to, null when there is none.
HWND KeyboardWindow();

/// A letter or digit together with Alt.
void PressAccessKey(char key);

/// Types over the whole text of the box that has the keyboard.
void TypeOver(std::string_view text);

/// Waits until a box or label of the window has this text; fails the test when it does not get it.
void ExpectText(HWND window, const std::string& text);

/// The item of a list, "" when there is none of that number.
std::string ItemOf(HWND list, int index);

}  // namespace brimwork

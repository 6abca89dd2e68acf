// The tool tips of one form. A tool is a window, or one tab of a tab strip.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace brimwork::windows {

class ToolTips {
 public:
  ToolTips() = default;
  ToolTips(const ToolTips&) = delete;
  ToolTips& operator=(const ToolTips&) = delete;

  /// The window of the tips goes with the form's.
  void Create(HWND form);

  /// Sets the tip of an area of a window; "" is none. part tells the areas of a window apart.
  void Set(HWND window, std::uintptr_t part, const RECT& area, std::string_view text);

  /// Tells of a mouse message that a window with tips has got.
  void Relay(HWND window, UINT message, WPARAM wide, LPARAM longer);

 private:
  HWND tips_ = nullptr;
};

/// An area as large as any window.
inline constexpr RECT kWholeWindow = {0, 0, 0x7FFF, 0x7FFF};

}  // namespace brimwork::windows

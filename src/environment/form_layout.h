// A form's layout as a table: one row for each control, with everything that a host needs to show
// it. Places and sizes are pixels at 96 dots per inch.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "environment/rich_text_box.h"

namespace brimwork {

inline constexpr int kNoIndex = -1;     // of a control that is in no control array
inline constexpr int kNoTabIndex = -1;  // of a control that the Tab key passes by

/// Colours that the user's theme decides; a colour with its highest bit set is one of them.
namespace system_color {
inline constexpr Color kWindow = 0x80000005;
inline constexpr Color kWindowText = 0x80000008;
inline constexpr Color kHighlight = 0x8000000D;
inline constexpr Color kButtonFace = 0x8000000F;
inline constexpr Color kButtonText = 0x80000012;
}  // namespace system_color

struct ControlFont {
  std::string_view name = "Tahoma";
  int size = 8;  // in points
  bool isBold = false;
  bool isItalic = false;
  bool isUnderlined = false;
  bool operator==(const ControlFont&) const = default;
};

/// Counted from the inner corner of the container.
struct Place {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  bool operator==(const Place&) const = default;
};

struct ControlName {
  std::string_view name;
  int index = kNoIndex;
  bool operator==(const ControlName&) const = default;
};

enum class TextAlignment { kLeft, kRight, kCenter };
enum class ScrollBars { kNone, kHorizontal, kVertical, kBoth };

namespace border_style {
inline constexpr int kNone = 0;
inline constexpr int kFixedSingle = 1;
}  // namespace border_style

struct TabLayout {
  std::string_view caption;
  std::string_view toolTip = {};
};

/// A picture of an image list: the key that code asks for and the name of the resource.
struct ImageLayout {
  std::string_view key;
  std::string_view resource;
};

/// The row of one control. A control takes the members that its kind has.
struct ControlLayout {
  std::string_view name;
  int index = kNoIndex;
  ControlName container = {};  // without a name: the form itself
  Place place = {};
  std::string_view text = {};  // its caption, or the text in it
  int tabIndex = kNoTabIndex;
  bool isTabStop = true;
  bool causesValidation = true;  // whether the control that loses the focus to it is validated
  bool isEnabled = true;
  bool isVisible = true;
  std::string_view toolTip = {};
  std::string_view tag = {};
  std::optional<ControlFont> font = {};  // nothing: the form's font
  std::optional<Color> foreColor = {};   // nothing: what is usual for its kind
  std::optional<Color> backColor = {};
  TextAlignment alignment = TextAlignment::kLeft;  // labels and text boxes

  // Command buttons.
  bool isDefault = false;  // the Enter key clicks it
  bool isCancel = false;   // the Escape key clicks it

  // Check boxes and option buttons.
  bool isChecked = false;

  // Text boxes.
  bool isMultiLine = false;
  bool isLocked = false;
  ScrollBars scrollBars = ScrollBars::kNone;
  char passwordCharacter = '\0';  // shown for each character; NUL shows the text
  int maxLength = 0;              // in characters; 0 is no limit

  // Lists.
  std::span<const std::string_view> items = {};

  // Frames, pictures and labels; nothing: what is usual for its kind.
  std::optional<int> borderStyle = {};

  // Pictures, images and command buttons.
  std::string_view picture = {};  // name of the resource
  bool isStretched = false;

  // Tab strips, image lists and timers.
  std::span<const TabLayout> tabs = {};
  std::span<const ImageLayout> images = {};
  int interval = 0;  // in milliseconds
};

enum class FormBorder { kNone, kFixedSingle, kSizable, kFixedDialog, kFixedToolWindow };
enum class StartUpPosition { kCenterOwner, kCenterScreen, kWindowsDefault };

struct FormLayout {
  std::string_view name;
  std::string_view caption = {};
  int width = 0;  // of the inside
  int height = 0;
  FormBorder border = FormBorder::kFixedDialog;
  bool hasControlBox = true;  // system menu and close button
  bool closesOnEscape = false;  // where no button takes the key
  bool hasMinButton = false;
  bool hasMaxButton = false;
  bool isInTaskbar = false;
  StartUpPosition startUpPosition = StartUpPosition::kCenterOwner;
  std::string_view icon = {};  // name of the resource
  ControlFont font = {};
  Color backColor = system_color::kButtonFace;
  std::span<const ControlLayout> controls = {};
};

}  // namespace brimwork

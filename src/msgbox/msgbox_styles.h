// What a message box can be made of: buttons sets, and the style part of each choice by the index
// of its control.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace brimwork {

struct ButtonsSet {
  std::string_view name;  // of the constant
  std::int16_t style;
  std::int16_t buttonCount;
  std::string_view previewCaptions;   // three, joined by commas; "" for a button that is not used
  std::string_view standardCaptions;  // of the buttons that are used, joined by commas
};

inline constexpr std::array<ButtonsSet, 6> kButtonsSets = {{
    {"vbAbortRetryIgnore", 2, 3, "&Abort,&Retry,&Ignore", "&Abort,&Retry,&Ignore"},
    {"vbOKCancel", 1, 2, "OK,Cancel,", "OK,Cancel"},
    {"vbOKOnly", 0, 1, "OK,,", "OK"},
    {"vbRetryCancel", 5, 2, "&Retry,Cancel,", "&Retry,Cancel"},
    {"vbYesNo", 4, 2, "&Yes,&No,", "&Yes,&No"},
    {"vbYesNoCancel", 3, 3, "&Yes,&No,Cancel", "&Yes,&No,Cancel"},
}};

inline constexpr int kFirstButtonsSet = 2;  // the one that is chosen at start

/// None, critical, exclamation, information, question: users know the icon buttons in this order.
inline constexpr std::array<std::int16_t, 5> kIconStyles = {0, 16, 48, 64, 32};

inline constexpr std::array<std::int16_t, 3> kDefaultButtonStyles = {0, 256, 512};

/// Application modal, system modal.
inline constexpr std::array<std::int16_t, 2> kModalityStyles = {0, 4096};

/// Help button, right-aligned text, right-to-left reading, foreground window.
inline constexpr std::array<std::int32_t, 4> kOptionStyles = {16384, 524288, 1048576, 65536};

/// The constants of what a message box returns, from 1 on.
inline constexpr std::array<std::string_view, 7> kResultNames = {
    "vbOK", "vbCancel", "vbAbort", "vbRetry", "vbIgnore", "vbYes", "vbNo"};

}  // namespace brimwork

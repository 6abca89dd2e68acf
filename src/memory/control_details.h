// What an entry of a command bar has beside its caption and its place: plain values, with the
// environment's own defaults.
#pragma once

#include <string>

namespace brimwork {

namespace button_state {
inline constexpr int kUp = 0;
inline constexpr int kDown = -1;
inline constexpr int kMixed = 2;
}  // namespace button_state

struct ControlDetails {
  bool enabled = true;
  bool visible = true;
  std::string toolTip;          // "" for its caption
  std::string descriptionText;  // of what it does, in words
  std::string shortcutText;     // the keys that do the same, as a menu shows them
  std::string parameter;        // free text
  std::string onAction;         // free text, which nothing here runs
  int faceId = 0;               // the picture's number, 0 for a face of its own or none
  int state = button_state::kUp;
  int priority = 3;  // which entries of a narrow bar go first; 0 and 1 stay
  int oleUsage = 0;
  int oleMenuGroup = -1;
  std::string helpFile;
  int helpContextId = 0;
  int width = 0;   // in pixels, 0 for what it takes
  int height = 0;  // in pixels, 0 for what it takes

  bool operator==(const ControlDetails&) const = default;
};

/// Which controls are looked for.
struct ControlQuery {
  int type = 0;            // control_type::k..., 0 for any
  int id = 0;              // 0 for any
  std::string tag = {};    // "" for any
  bool isVisible = false;  // only those that are shown
  bool isInPopups = true;  // also the entries of popups
};

}  // namespace brimwork

#include "bench/screen/command_keys.h"

#include "memory/usual_commands.h"

namespace brimwork::bench {
namespace {

enum Held { kNothing = 0, kShift = 1, kCtrl = 2, kAlt = 4 };

struct Key {
  int held;
  WPARAM key;
  int command;
};

constexpr Key kKeys[] = {{kCtrl, 'O', command::kOpenProject},
                         {kCtrl, 'S', command::kSaveFile},
                         {kCtrl, 'F', command::kFind},
                         {kNothing, VK_F3, command::kFindNext},
                         {kNothing, VK_F7, command::kViewCode},
                         {kShift, VK_F7, command::kViewObject},
                         {kCtrl, 'G', command::kImmediateWindow},
                         {kCtrl, 'R', command::kProjectExplorer},
                         {kNothing, VK_F4, command::kPropertiesWindow},
                         {kAlt, 'Q', command::kExit}};

bool IsHeld(int key) { return GetKeyState(key) < 0; }

}  // namespace

int CommandOfKey(const MSG& message) {
  if (message.message != WM_KEYDOWN && message.message != WM_SYSKEYDOWN) return command::kNone;
  const int held = (IsHeld(VK_SHIFT) ? kShift : 0) | (IsHeld(VK_CONTROL) ? kCtrl : 0) |
                   (IsHeld(VK_MENU) ? kAlt : 0);
  for (const Key& key : kKeys) {
    if (key.key == message.wParam && key.held == held) return key.command;
  }
  return command::kNone;
}

}  // namespace brimwork::bench

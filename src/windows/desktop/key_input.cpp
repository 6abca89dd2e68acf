#include "windows/desktop/key_input.h"

#include "environment/text.h"

namespace brimwork::windows {
namespace {

bool IsAsciiLetterOrDigit(char32_t character) {
  if (character >= 0x80) return false;
  const char upper = ToUpperAscii(static_cast<char>(character));
  return IsDigit(upper) || (upper >= 'A' && upper <= 'Z');
}

/// Keys that a keyboard has beside its number pad.
bool IsExtended(WORD key) {
  switch (key) {
    case VK_PRIOR:
    case VK_NEXT:
    case VK_END:
    case VK_HOME:
    case VK_LEFT:
    case VK_UP:
    case VK_RIGHT:
    case VK_DOWN:
    case VK_INSERT:
    case VK_DELETE:
    case VK_NUMLOCK:
      return true;
    default:
      return false;
  }
}

class InputWriter {
 public:
  void Write(const KeyPress& press) {
    if (press.key != 0) return PressKey(press, press.key);
    const bool isCommand = press.ctrl || press.alt;
    // Ctrl+C is Ctrl+C on keyboards without Latin letters, too.
    if (isCommand && IsAsciiLetterOrDigit(press.character)) {
      return PressKey(press, static_cast<WORD>(ToUpperAscii(static_cast<char>(press.character))));
    }
    if (!isCommand && !press.shift) return Type(press.character);
    PressKey(press, LOBYTE(VkKeyScanW(static_cast<WCHAR>(press.character))));
  }

  std::vector<INPUT> Finish() {
    Hold(KeyPress{});
    return std::move(events_);
  }

 private:
  void PressKey(const KeyPress& press, WORD key) {
    Hold(press);
    Add(key, 0);
    Add(key, KEYEVENTF_KEYUP);
  }

  /// A character goes as a key where the keyboard has one for it, else by itself.
  void Type(char32_t character) {
    const SHORT scanned = character < 0x10000 ? VkKeyScanW(static_cast<WCHAR>(character)) : -1;
    const int shifts = HIBYTE(scanned);
    if (scanned != -1 && shifts <= 1) return PressKey({.shift = shifts == 1}, LOBYTE(scanned));
    Hold(KeyPress{});
    if (character < 0x10000) return TypeUnit(static_cast<WORD>(character));
    TypeUnit(static_cast<WORD>(0xD800 + ((character - 0x10000) >> 10)));
    TypeUnit(static_cast<WORD>(0xDC00 + ((character - 0x10000) & 0x3FF)));
  }

  void TypeUnit(WORD unit) {
    for (const DWORD flags : {KEYEVENTF_UNICODE, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP}) {
      INPUT event = {};
      event.type = INPUT_KEYBOARD;
      event.ki.wScan = unit;
      event.ki.dwFlags = flags;
      events_.push_back(event);
    }
  }

  /// Presses and releases modifiers so that those of press are down.
  void Hold(const KeyPress& press) {
    HoldOne(VK_SHIFT, held_.shift, press.shift);
    HoldOne(VK_CONTROL, held_.ctrl, press.ctrl);
    HoldOne(VK_MENU, held_.alt, press.alt);
  }

  void HoldOne(WORD key, bool& isHeld, bool wanted) {
    if (isHeld != wanted) Add(key, wanted ? 0 : KEYEVENTF_KEYUP);
    isHeld = wanted;
  }

  void Add(WORD key, DWORD flags) {
    INPUT event = {};
    event.type = INPUT_KEYBOARD;
    event.ki.wVk = key;
    event.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    event.ki.dwFlags = flags | (IsExtended(key) ? KEYEVENTF_EXTENDEDKEY : 0);
    events_.push_back(event);
  }

  KeyPress held_;
  std::vector<INPUT> events_;
};

}  // namespace

std::vector<INPUT> InputOf(const std::vector<KeyPress>& presses) {
  InputWriter writer;
  for (const KeyPress& press : presses) writer.Write(press);
  return writer.Finish();
}

}  // namespace brimwork::windows

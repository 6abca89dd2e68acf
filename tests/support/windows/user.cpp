#include "support/windows/user.h"

#include "win32/wide_text.h"

namespace brimwork {
namespace {

constexpr DWORD kPause = 30;  // milliseconds, for the program in front to take the input in

INPUT KeyInput(WORD key, DWORD flags) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  const bool isExtended = key == VK_LEFT || key == VK_RIGHT || key == VK_UP || key == VK_DOWN ||
                          key == VK_HOME || key == VK_END || key == VK_DELETE || key == VK_INSERT;
  input.ki.dwFlags = flags | (isExtended ? KEYEVENTF_EXTENDEDKEY : 0);
  return input;
}

INPUT CharacterInput(wchar_t character, DWORD flags) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wScan = character;
  input.ki.dwFlags = KEYEVENTF_UNICODE | flags;
  return input;
}

void Send(std::vector<INPUT> inputs) {
  SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
  Sleep(kPause);
}

void Click(POINT place, DWORD down, DWORD up) {
  SetCursorPos(place.x, place.y);
  Sleep(kPause);
  INPUT press{};
  press.type = INPUT_MOUSE;
  press.mi.dwFlags = down;
  INPUT release = press;
  release.mi.dwFlags = up;
  Send({press});
  Send({release});
}

}  // namespace

void PressKey(WORD key, const std::vector<WORD>& held) {
  std::vector<INPUT> inputs;
  for (const WORD each : held) inputs.push_back(KeyInput(each, 0));
  inputs.push_back(KeyInput(key, 0));
  inputs.push_back(KeyInput(key, KEYEVENTF_KEYUP));
  for (auto each = held.rbegin(); each != held.rend(); ++each) {
    inputs.push_back(KeyInput(*each, KEYEVENTF_KEYUP));
  }
  Send(std::move(inputs));
}

void PressKeys(WORD key, int times) {
  std::vector<INPUT> inputs;
  for (int i = 0; i < times; ++i) {
    inputs.push_back(KeyInput(key, 0));
    inputs.push_back(KeyInput(key, KEYEVENTF_KEYUP));
  }
  if (times > 0) Send(std::move(inputs));
}

void TypeText(std::string_view text) {
  std::vector<INPUT> inputs;
  for (const wchar_t character : win32::Wide(text)) {
    inputs.push_back(CharacterInput(character, 0));
    inputs.push_back(CharacterInput(character, KEYEVENTF_KEYUP));
  }
  Send(std::move(inputs));
}

void ClickAt(POINT place) { Click(place, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP); }

void RightClickAt(POINT place) { Click(place, MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP); }

POINT MiddleOf(HWND window) {
  RECT place{};
  GetWindowRect(window, &place);
  return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
}

}  // namespace brimwork

#include "windows/desktop/send_keys.h"

#include <windows.h>

#include <algorithm>
#include <iterator>
#include <optional>
#include <string>

#include "environment/run_time_error.h"
#include "environment/text.h"
#include "environment/utf8.h"

namespace brimwork::windows {
namespace {

struct NamedKey {
  std::string_view name;
  std::uint16_t key;
};

constexpr NamedKey kNamedKeys[] = {
    {"BACKSPACE", VK_BACK},   {"BS", VK_BACK},           {"BKSP", VK_BACK},  {"BREAK", VK_CANCEL},
    {"CAPSLOCK", VK_CAPITAL}, {"DELETE", VK_DELETE},     {"DEL", VK_DELETE}, {"DOWN", VK_DOWN},
    {"END", VK_END},          {"ENTER", VK_RETURN},      {"ESC", VK_ESCAPE}, {"HELP", VK_HELP},
    {"HOME", VK_HOME},        {"INSERT", VK_INSERT},     {"INS", VK_INSERT}, {"LEFT", VK_LEFT},
    {"NUMLOCK", VK_NUMLOCK},  {"PGDN", VK_NEXT},         {"PGUP", VK_PRIOR}, {"PRTSC", VK_SNAPSHOT},
    {"RIGHT", VK_RIGHT},      {"SCROLLLOCK", VK_SCROLL}, {"TAB", VK_TAB},    {"UP", VK_UP}};

constexpr int kFunctionKeys = 16;
constexpr int kMostRepetitions = 1000;

std::optional<int> NumberIn(std::string_view digits) {
  if (digits.empty() || digits.size() > 4 || !std::ranges::all_of(digits, IsDigit)) {
    return std::nullopt;
  }
  return std::stoi(std::string(digits));
}

std::optional<std::uint16_t> KeyNamed(std::string_view name) {
  const auto named = std::ranges::find_if(
      kNamedKeys, [&](const NamedKey& each) { return EqualNames(each.name, name); });
  if (named != std::end(kNamedKeys)) return named->key;
  if (!StartsWithIgnoringCase(name, "F")) return std::nullopt;
  const auto number = NumberIn(name.substr(1));
  if (!number || *number < 1 || *number > kFunctionKeys) return std::nullopt;
  return static_cast<std::uint16_t>(VK_F1 + *number - 1);
}

/// Reads one text from left to right.
class Parser {
 public:
  explicit Parser(std::string_view keys) : keys_(keys) {}

  std::vector<KeyPress> Parse() {
    while (at_ < keys_.size()) ParseItem({});
    return std::move(presses_);
  }

 private:
  /// One key, or a group of them, with the modifiers in front of it; held are those around it.
  void ParseItem(KeyPress held) {
    while (at_ < keys_.size() && IsOneOf(keys_[at_], "+^%")) Hold(held, keys_[at_++]);
    if (at_ == keys_.size()) Refuse();
    const char first = keys_[at_];
    if (first == '(') return ParseGroup(held);
    if (first == '{') return ParseBraces(held);
    if (IsOneOf(first, ")}[]")) Refuse();
    if (first == '~') {
      ++at_;
      return Press(held, VK_RETURN, 0);
    }
    Press(held, 0, TakeCharacter());
  }

  static void Hold(KeyPress& held, char modifier) {
    held.shift |= modifier == '+';
    held.ctrl |= modifier == '^';
    held.alt |= modifier == '%';
  }

  void ParseGroup(const KeyPress& held) {
    ++at_;
    while (at_ < keys_.size() && keys_[at_] != ')') ParseItem(held);
    if (at_ == keys_.size()) Refuse();
    ++at_;
  }

  void ParseBraces(const KeyPress& held) {
    // The search starts one behind, so that "{}}" is a closing brace.
    const auto end = keys_.find('}', at_ + 2);
    if (end == std::string_view::npos) Refuse();
    const std::string_view inner = keys_.substr(at_ + 1, end - at_ - 1);
    at_ = end + 1;
    const auto blank = inner.find(' ', 1);
    const std::string_view name = inner.substr(0, blank);
    const int count = blank == std::string_view::npos ? 1 : Repetitions(inner.substr(blank + 1));
    for (int i = 0; i < count; ++i) PressNamed(held, name);
  }

  int Repetitions(std::string_view digits) const {
    const auto count = NumberIn(digits);
    if (!count || *count > kMostRepetitions) Refuse();
    return *count;
  }

  void PressNamed(const KeyPress& held, std::string_view name) {
    if (const auto key = KeyNamed(name); key && CharacterCount(name) > 1) {
      return Press(held, *key, 0);
    }
    if (Utf8Size(name) == 0 || Utf8Size(name) != name.size()) Refuse();
    Press(held, 0, Utf8Character(name));
  }

  char32_t TakeCharacter() {
    const std::string_view rest = keys_.substr(at_);
    const std::size_t size = Utf8Size(rest);
    if (size == 0) Refuse();
    at_ += size;
    return Utf8Character(rest);
  }

  void Press(KeyPress press, std::uint16_t key, char32_t character) {
    press.key = key;
    press.character = character;
    presses_.push_back(press);
  }

  [[noreturn]] void Refuse() const {
    throw RunTimeError(error_number::kInvalidProcedureCall,
                       "the keystrokes \"" + std::string(keys_) + "\" are not understood");
  }

  std::string_view keys_;
  std::size_t at_ = 0;
  std::vector<KeyPress> presses_;
};

}  // namespace

std::vector<KeyPress> ParseSendKeys(std::string_view keys) { return Parser(keys).Parse(); }

}  // namespace brimwork::windows

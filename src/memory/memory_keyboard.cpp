#include "memory/memory_keyboard.h"

#include <optional>
#include <string>
#include <vector>

#include "environment/run_time_error.h"
#include "environment/text.h"

namespace brimwork {
namespace {

enum class Key { kCopy, kPaste, kSelectAll, kDelete, kEnter, kTab, kText };

struct Keystroke {
  Key key;
  std::string text;  // for kText
};

[[noreturn]] void RefuseKeys(std::string_view keys) {
  throw RunTimeError(error_number::kInvalidProcedureCall,
                     "the keystrokes \"" + std::string(keys) + "\" are not understood");
}

std::optional<Key> NamedKey(std::string_view name) {
  if (EqualNames(name, "DEL") || EqualNames(name, "DELETE")) return Key::kDelete;
  if (EqualNames(name, "ENTER")) return Key::kEnter;
  if (EqualNames(name, "TAB")) return Key::kTab;
  return std::nullopt;
}

/// Reads one text of SendKeys notation from left to right.
class KeyParser {
 public:
  explicit KeyParser(std::string_view keys) : keys_(keys) {}

  std::vector<Keystroke> Parse() {
    while (at_ < keys_.size()) {
      const char c = keys_[at_++];
      if (c == '^') {
        AddWithCtrl();
      } else if (c == '{') {
        AddInBraces();
      } else if (std::string_view("+%~()[]}").find(c) != std::string_view::npos) {
        RefuseKeys(keys_);
      } else {
        AddText({&c, 1});
      }
    }
    return std::move(keystrokes_);
  }

 private:
  void AddWithCtrl() {
    if (at_ == keys_.size()) RefuseKeys(keys_);
    if (keys_[at_] != '(') {
      AddCtrlKey(keys_[at_++]);
      return;
    }
    const auto end = keys_.find(')', at_);
    if (end == std::string_view::npos) RefuseKeys(keys_);
    for (const char c : keys_.substr(at_ + 1, end - at_ - 1)) AddCtrlKey(c);
    at_ = end + 1;
  }

  void AddCtrlKey(char c) {
    switch (ToUpperAscii(c)) {
      case 'C':
        return keystrokes_.push_back({Key::kCopy, {}});
      case 'V':
        return keystrokes_.push_back({Key::kPaste, {}});
      case 'A':
        return keystrokes_.push_back({Key::kSelectAll, {}});
      default:
        RefuseKeys(keys_);
    }
  }

  void AddInBraces() {
    // The search starts one behind, so that "{}}" is a closing brace.
    const auto end = keys_.find('}', at_ + 1);
    if (end == std::string_view::npos) RefuseKeys(keys_);
    const std::string_view name = keys_.substr(at_, end - at_);
    if (const auto key = NamedKey(name)) {
      keystrokes_.push_back({*key, {}});
    } else if (CharacterCount(name) == 1) {
      AddText(name);
    } else {
      RefuseKeys(keys_);
    }
    at_ = end + 1;
  }

  void AddText(std::string_view text) {
    if (keystrokes_.empty() || keystrokes_.back().key != Key::kText)
      keystrokes_.push_back({Key::kText, {}});
    keystrokes_.back().text += text;
  }

  std::string_view keys_;
  std::size_t at_ = 0;
  std::vector<Keystroke> keystrokes_;
};

void Press(KeyTarget& target, Clipboard& clipboard, const Keystroke& keystroke) {
  switch (keystroke.key) {
    case Key::kCopy:
      return target.Copy(clipboard);
    case Key::kPaste:
      return target.Paste(clipboard);
    case Key::kSelectAll:
      return target.SelectAll();
    case Key::kDelete:
      return target.Delete();
    case Key::kEnter:
      return target.PressEnter();
    case Key::kTab:
      return target.PressTab();
    case Key::kText:
      return target.Type(keystroke.text);
  }
}

}  // namespace

void MemoryKeyboard::SendKeys(std::string_view keys, bool /*wait*/) {
  for (const Keystroke& keystroke : KeyParser(keys).Parse()) {
    if (focus_ != nullptr) Press(*focus_, clipboard_, keystroke);
  }
}

}  // namespace brimwork

#include "environment/text_box.h"

#include <algorithm>
#include <string>
#include <utility>

#include "environment/text.h"
#include "environment/utf8.h"

namespace brimwork {

void TextBox::SetSelStart(int position) { SetSelection(position, 0); }

void TextBox::SetSelLength(int length) { SetSelection(selStart_, length); }

void TextBox::SetSelection(int start, int length) {
  const int count = CharacterCount(Text);
  selStart_ = std::clamp(start, 0, count);
  selLength_ = std::clamp(length, 0, count - selStart_);
  Changed(PropertyId::kSelection);
}

std::string_view TextBox::SelText() const {
  const std::size_t start = ByteOffset(Text, selStart_);
  return std::string_view(Text).substr(start, ByteOffset(Text, selStart_ + selLength_) - start);
}

void TextBox::SetSelText(std::string_view text) { ReplaceSelection(text); }

void TextBox::Type(std::string_view text) {
  if (!IsReached()) return;
  while (!text.empty()) {
    const std::size_t size = std::max<std::size_t>(Utf8Size(text), 1);
    TypeCharacter(text.substr(0, size));
    text.remove_prefix(size);
  }
}

void TextBox::TypeCharacter(std::string_view character) {
  if (Locked || character == "\r") return;
  if (character == "\n") {
    if (MultiLine()) ReplaceSelection("\r\n");
    return;
  }
  const int most = Layout().maxLength;
  if (most == 0 || CharacterCount(Text) - selLength_ < most) ReplaceSelection(character);
}

bool TextBox::HasRoomFor(std::string_view text) const {
  const int most = Layout().maxLength;
  return most == 0 || CharacterCount(text) <= std::max(most, CharacterCount(Text));
}

void TextBox::SelectAll() { Select(0, CharacterCount(Text)); }

void TextBox::Select(int start, int length) {
  if (IsReached()) SetSelection(start, length);
}

void TextBox::Edit(std::string_view text, int selStart, int selLength) {
  if (!IsReached() || Locked || !HasRoomFor(text)) return;
  if (Text == text) return SetSelection(selStart, selLength);
  nextStart_ = selStart;
  nextLength_ = selLength;
  Text = text;
}

void TextBox::Erase() {
  if (!IsReached() || Locked) return;
  if (selLength_ == 0 && selStart_ > 0) {
    const bool isLineEnd =
        std::string_view(Text).substr(0, ByteOffset(Text, selStart_)).ends_with("\r\n");
    selLength_ = isLineEnd ? 2 : 1;
    selStart_ -= selLength_;
  }
  if (selLength_ > 0) ReplaceSelection("");
}

void TextBox::PressEnter() {
  if (MultiLine()) Type("\n");
}

void TextBox::ReplaceSelection(std::string_view text) {
  const std::size_t start = ByteOffset(Text, selStart_);
  std::string whole = Text;
  whole.replace(start, SelText().size(), text);
  const int caret = selStart_ + CharacterCount(text);
  if (Text == whole) return SetSelStart(caret);
  nextStart_ = caret;
  Text = whole;
}

void TextBox::AfterChange(PropertyId property) {
  if (property != PropertyId::kText) return;
  SetSelection(std::exchange(nextStart_, 0), std::exchange(nextLength_, 0));
  Raise(OnChange);
}

void TextBox::Design(const ControlLayout& layout) {
  Control::Design(layout);
  Text.Preset(layout.text);
  Locked.Preset(layout.isLocked);
  selStart_ = 0;
  selLength_ = 0;
  nextStart_ = 0;
  nextLength_ = 0;
}

}  // namespace brimwork

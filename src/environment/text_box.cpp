#include "environment/text_box.h"

#include <algorithm>
#include <string>
#include <utility>

#include "environment/text.h"
#include "environment/utf8.h"

namespace brimwork {

void TextBox::SetSelStart(int position) {
  selStart_ = std::clamp(position, 0, CharacterCount(Text));
  selLength_ = 0;
  Changed(PropertyId::kSelection);
}

void TextBox::SetSelLength(int length) {
  selLength_ = std::clamp(length, 0, CharacterCount(Text) - selStart_);
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

void TextBox::SelectAll() {
  if (!IsReached()) return;
  SetSelStart(0);
  SetSelLength(CharacterCount(Text));
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
  nextCaret_ = caret;
  Text = whole;
}

void TextBox::AfterChange(PropertyId property) {
  if (property != PropertyId::kText) return;
  SetSelStart(std::exchange(nextCaret_, 0));
  Raise(OnChange);
}

void TextBox::Design(const ControlLayout& layout) {
  Control::Design(layout);
  Text.Preset(layout.text);
  Locked.Preset(layout.isLocked);
  selStart_ = 0;
  selLength_ = 0;
  nextCaret_ = 0;
}

}  // namespace brimwork

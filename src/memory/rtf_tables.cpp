#include "memory/rtf_tables.h"

#include <algorithm>

namespace brimwork {

void RtfFontTable::StartEntry(int number) {
  entry_ = &fonts_[number];
  *entry_ = {};
}

void RtfFontTable::AppendText(std::string_view text) {
  const auto semicolon = text.find(';');
  AppendName(text.substr(0, semicolon));
  if (semicolon != std::string_view::npos) entry_ = nullptr;
}

void RtfFontTable::AppendName(std::string_view text) {
  if (entry_ != nullptr) entry_->name += text;
}

RtfFont* RtfFontTable::Find(int number) {
  const auto font = fonts_.find(number);
  return font == fonts_.end() ? nullptr : &font->second;
}

void RtfColorTable::SetPart(Part part, int value) {
  const auto shift = static_cast<unsigned>(part);
  const auto bits = static_cast<Color>(std::clamp(value, 0, 255)) << shift;
  entry_ = (entry_.value_or(0) & ~(Color{0xFF} << shift)) | bits;
}

void RtfColorTable::AppendText(std::string_view text) {
  for (auto left = std::count(text.begin(), text.end(), ';'); left > 0; --left) {
    colors_.push_back(entry_.value_or(PackedFormat::kAutomatic));
    entry_.reset();
  }
}

Color RtfColorTable::At(int index) const {
  const auto at = static_cast<std::size_t>(index);
  return at < colors_.size() ? colors_[at] : PackedFormat::kAutomatic;
}

}  // namespace brimwork

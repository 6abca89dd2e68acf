#include "windows/forms/form_fonts.h"

#include "win32/wide_text.h"

namespace brimwork::windows {
namespace {

constexpr int kPointsPerInch = 72;

// Where a font is missing, its family chooses another one.
BYTE FamilyOf(const ControlFont& font) {
  const bool isForCode = font.name.starts_with("Courier");
  return isForCode ? FIXED_PITCH | FF_MODERN : VARIABLE_PITCH | FF_SWISS;
}

LOGFONTW FontRecord(const ControlFont& font, ScreenScale scale) {
  LOGFONTW record = {};
  record.lfHeight = -MulDiv(font.size, scale.dotsPerInch, kPointsPerInch);
  record.lfWeight = font.isBold ? FW_BOLD : FW_NORMAL;
  record.lfItalic = font.isItalic;
  record.lfUnderline = font.isUnderlined;
  record.lfCharSet = DEFAULT_CHARSET;
  record.lfPitchAndFamily = FamilyOf(font);
  const std::wstring name = win32::Wide(font.name).substr(0, LF_FACESIZE - 1);
  name.copy(record.lfFaceName, name.size());
  return record;
}

}  // namespace

bool FormFonts::MadeFont::Is(ControlFont other) const {
  if (other.name != name) return false;
  other.name = font.name;
  return other == font;
}

HFONT FormFonts::Font(const ControlFont& font) {
  for (const MadeFont& each : fonts_) {
    if (each.Is(font)) return each.made.get();
  }
  const LOGFONTW record = FontRecord(font, scale_);
  ControlFont nameless = font;
  nameless.name = {};
  fonts_.push_back(
      {std::string(font.name), nameless, GdiObject<HFONT>(CreateFontIndirectW(&record))});
  return fonts_.back().made.get();
}

SIZE FormFonts::Measure(std::string_view text, const ControlFont& font) {
  const HDC context = measuring_;
  const SelectedObject selected(context, Font(font));
  const std::wstring wide = win32::Wide(text);
  SIZE size = {};
  GetTextExtentPoint32W(context, wide.data(), static_cast<int>(wide.size()), &size);
  if (!wide.empty()) return size;
  GetTextExtentPoint32W(context, L" ", 1, &size);
  return {0, size.cy};
}

}  // namespace brimwork::windows

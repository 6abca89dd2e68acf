#include "bench/screen/fonts.h"

namespace brimwork::bench {
namespace {

// Where a font is missing, its family chooses another one.
constexpr BYTE kProportional = VARIABLE_PITCH | FF_SWISS;
constexpr BYTE kFixed = FIXED_PITCH | FF_MODERN;

GdiObject<HFONT> NewFont(const wchar_t* face, int points, int weight, BYTE family) {
  const WindowContext screen(nullptr);
  LOGFONTW font{};
  font.lfHeight = -MulDiv(points, GetDeviceCaps(screen.get(), LOGPIXELSY), 72);
  font.lfWeight = weight;
  font.lfCharSet = DEFAULT_CHARSET;
  font.lfPitchAndFamily = family;
  lstrcpynW(font.lfFaceName, face, LF_FACESIZE);
  return GdiObject<HFONT>(CreateFontIndirectW(&font));
}

}  // namespace

Fonts::Fonts()
    : plain_(NewFont(L"Tahoma", 8, FW_NORMAL, kProportional)),
      bold_(NewFont(L"Tahoma", 8, FW_BOLD, kProportional)),
      code_(NewFont(L"Courier New", 10, FW_NORMAL, kFixed)) {}

int WidthOf(HFONT font, const wchar_t* text) {
  const WindowContext screen(nullptr);
  const SelectedObject selected(screen.get(), font);
  SIZE size{};
  GetTextExtentPoint32W(screen.get(), text, lstrlenW(text), &size);
  return static_cast<int>(size.cx);
}

}  // namespace brimwork::bench

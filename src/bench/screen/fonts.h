// The fonts of the windows.
#pragma once

#include <windows.h>

#include "bench/screen/handles.h"

namespace brimwork::bench {

class Fonts {
 public:
  Fonts();

  HFONT Plain() const { return plain_.get(); }  // of menus, lists and captions
  HFONT Bold() const { return bold_.get(); }
  HFONT Code() const { return code_.get(); }

 private:
  GdiObject<HFONT> plain_;
  GdiObject<HFONT> bold_;
  GdiObject<HFONT> code_;
};

/// A text's width in pixels.
int WidthOf(HFONT font, const wchar_t* text);

}  // namespace brimwork::bench

#include "bench/screen/glyphs.h"

#include <algorithm>

#include "bench/screen/glyph_table.h"

namespace brimwork::bench {

Glyph CommandGlyph(int number) {
  for (const auto table : {FileGlyphs(), EditorGlyphs(), WindowGlyphs()}) {
    const auto found = std::ranges::find(table, number, &CommandPicture::number);
    if (found != table.end()) return found->glyph;
  }
  return {};
}

}  // namespace brimwork::bench

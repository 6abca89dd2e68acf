#include "bench/screen/glyphs.h"

#include "bench/screen/glyph_table.h"

namespace brimwork::bench {

Glyph CommandGlyph(int id, std::string_view caption) {
  for (const auto table : {FileGlyphs(), EditorGlyphs(), WindowGlyphs()}) {
    for (const CommandPicture& picture : table) {
      if (picture.id != id) continue;
      if (picture.caption.empty() || picture.caption == caption) return picture.glyph;
    }
  }
  return {};
}

}  // namespace brimwork::bench

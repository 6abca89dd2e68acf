// How the files with glyphs hand them to the one that finds them.
#pragma once

#include <span>

#include "bench/screen/glyphs.h"

namespace brimwork::bench {

struct CommandPicture {
  int number;
  Glyph glyph;
};

std::span<const CommandPicture> FileGlyphs();    // files, clipboard and running
std::span<const CommandPicture> EditorGlyphs();  // of the Edit toolbar
std::span<const CommandPicture> WindowGlyphs();  // what opens a window

}  // namespace brimwork::bench

// The pictures of the environment's own commands, components and tools.
#pragma once

#include <span>
#include <string_view>

#include "bench/screen/strokes.h"

namespace brimwork::bench {

using Glyph = std::span<const Stroke>;

/// Empty for a command without a picture. caption: without access keys, for the many commands that
/// bear one number.
Glyph CommandGlyph(int id, std::string_view caption);

/// Of a component's type, or of a whole project.
Glyph ComponentGlyph(int componentType);
Glyph ProjectGlyph();
Glyph FolderGlyph();

/// The toolbox's tools, in their order.
struct Tool {
  const char* name;
  Glyph glyph;
};
std::span<const Tool> ToolboxTools();

}  // namespace brimwork::bench

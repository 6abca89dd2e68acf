// The pictures of the environment's own commands, components and tools.
#pragma once

#include <span>

#include "bench/screen/strokes.h"

namespace brimwork::bench {

using Glyph = std::span<const Stroke>;

/// number: one of the environment's commands (see usual_commands.h), which are the numbers of faces
/// as well. Empty for one without a picture.
Glyph CommandGlyph(int number);

/// Stands for a face that is asked for by a number and not drawn here.
Glyph PlainGlyph();

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

// Puts the bytes of a source file together: preamble, module lines with their line ends, and the
// hidden lines behind them.
#pragma once

#include <string>
#include <string_view>

#include "memory/byte_sink.h"
#include "memory/module_text.h"
#include "memory/source_layout.h"
#include "memory/text_codec.h"

namespace brimwork {

/// What a composition takes from the file that the module was read from.
struct ComposedFile {
  const std::string& path;  // for messages only
  const std::string& text;  // as decoded
  const SourceLayout& layout;
  TextCodec& codec;
};

/// Writes the file with module in the place of the module read. Throws SourceError, with the line
/// and column that it would have had, for text that the file's encoding has not.
void ComposeFile(const ComposedFile& file, const ModuleText& module, const ByteSink& sink);

}  // namespace brimwork

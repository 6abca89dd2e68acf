#include "memory/utf8_path.h"

#include "win32/wide_text.h"

namespace brimwork {

std::filesystem::path PathOf(std::string_view utf8) { return win32::Wide(utf8); }

std::string TextOf(const std::filesystem::path& path) { return win32::Narrow(path.native()); }

}  // namespace brimwork

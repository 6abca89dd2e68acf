// Paths are bytes here, which the program passes on as they are.
#include "memory/utf8_path.h"

namespace brimwork {

std::filesystem::path PathOf(std::string_view utf8) { return utf8; }

std::string TextOf(const std::filesystem::path& path) { return path.native(); }

}  // namespace brimwork

#include "cli/source_input.h"

#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>

#include "cli/inputs.h"
#include "memory/source_error.h"

namespace brimwork {
namespace {

constexpr const char* kStandardInputName = "<standard input>";

std::string ReadStandardInput() {
  std::string bytes;
  std::array<char, 65536> buffer;
  while (true) {
    const ssize_t count = read(STDIN_FILENO, buffer.data(), buffer.size());
    if (count == 0) return bytes;
    if (count > 0) {
      bytes.append(buffer.data(), static_cast<std::size_t>(count));
    } else if (errno != EINTR) {
      throw SourceError(kStandardInputName, std::string("cannot be read: ") + std::strerror(errno));
    }
  }
}

}  // namespace

SourceInput ReadInput(const std::string& path) {
  if (path == kStandardInputPath) return {ReadStandardInput(), std::nullopt};
  FileContent content = ReadWholeFile(path);
  return {std::move(content.bytes), content.snapshot};
}

std::string ShownPath(const std::string& path, const RunOptions& options) {
  if (path != kStandardInputPath) return path;
  return options.stdinFileName.empty() ? kStandardInputName : options.stdinFileName;
}

}  // namespace brimwork

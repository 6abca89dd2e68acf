// Reading a user's file whole, and replacing or making one whole or not at all.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "memory/byte_sink.h"

namespace brimwork {

/// What a file looked like when it was read, to notice that someone else has changed it since.
struct FileSnapshot {
  std::uint64_t device = 0;
  std::uint64_t fileNumber = 0;
  std::uint64_t size = 0;
  std::int64_t modifiedNanoseconds = 0;

  bool operator==(const FileSnapshot&) const = default;
};

struct FileContent {
  std::string bytes;
  FileSnapshot snapshot;
};

/// Throws SourceError, with the path and the reason, for everything but a regular file that could
/// be read and stayed as it was meanwhile.
FileContent ReadWholeFile(const std::string& path);

/// What WriteWholeFile takes to replace the file at path, links followed; nothing when nothing is
/// there, not even a link. Throws SourceError for everything but a regular file.
std::optional<FileSnapshot> LookAtFile(const std::string& path);

/// Streams a file's new bytes into the sink it is given.
using FileComposer = std::function<void(const ByteSink&)>;

/// Puts the composed bytes in the place of the file that snapshot was taken of. Links are followed;
/// permissions and, where allowed, the owner are kept; a file with several hard links stays one
/// file. The bytes are on the disk when this returns. Throws SourceError, or what compose throws;
/// the file is then as it was (should putting back a file with several hard links fail as well,
/// the error names the copy of its old bytes).
void WriteWholeFile(const std::string& path, const FileSnapshot& snapshot,
                    const FileComposer& compose);

/// Makes the file of the composed bytes, with the permissions that the user gives new files. They
/// are on the disk when this returns. Throws SourceError, also when there is something at path by
/// then, or what compose throws; nothing is made then, and what is at path stays.
void CreateWholeFile(const std::string& path, const FileComposer& compose);

/// Writes all bytes to an open descriptor; name ("standard output") is for the message of the
/// SourceError that a failure throws.
void WriteAll(int descriptor, std::string_view bytes, const std::string& name);

}  // namespace brimwork

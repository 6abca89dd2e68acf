// A project file as it was read: what it names, and its text with changes among otherwise equal
// bytes.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "memory/disk_file.h"
#include "memory/source_text.h"

namespace brimwork::bench {

/// A component that the project file names.
struct ProjectEntry {
  int type = 0;      // component_type::k...
  std::string name;  // "" where the line names the file alone
  std::string file;  // as the line writes it
  int line = 0;      // of the project file
};

class ProjectDocument {
 public:
  /// Throws SourceError for what cannot be read.
  static ProjectDocument Read(const std::filesystem::path& path);

  const std::filesystem::path& Path() const { return path_; }
  const std::string& Text() const { return text_; }

  /// In the order of the lines.
  std::vector<ProjectEntry> Entries() const;

  /// Of the last line with that key, without quotes; "" when there is none.
  std::string Value(std::string_view key) const;

  /// The file that an entry means. Throws SourceError, naming the entry's line, when there is none.
  std::filesystem::path FileOf(const ProjectEntry& entry) const;

  /// Puts another text into the file, in one step. Throws SourceError when someone else changed
  /// the file since it was read, or when it cannot be written.
  void Write(std::string text);

 private:
  ProjectDocument(std::filesystem::path path, SourceText source, FileSnapshot snapshot);

  std::string Encoded(std::string_view text);

  std::filesystem::path path_;
  TextCodec codec_;
  std::string text_;
  FileSnapshot snapshot_;
};

}  // namespace brimwork::bench

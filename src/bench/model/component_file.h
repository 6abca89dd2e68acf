// The source file behind a component: read once, written again with every byte that the editor does
// not show as it was.
#pragma once

#include <filesystem>
#include <string>

#include "memory/disk_file.h"
#include "memory/module_text.h"
#include "memory/source_file.h"

namespace brimwork::bench {

class ComponentFile {
 public:
  /// Throws SourceError for what cannot be read.
  static ComponentFile Read(const std::filesystem::path& path);

  /// The file that a new component will have; nothing is on the disk yet. type: a standard module
  /// or a class module.
  static ComponentFile ForNew(int type, const std::string& name);

  /// Empty while nothing is on the disk.
  const std::filesystem::path& Path() const { return path_; }

  SourceFile& Source() { return source_; }

  /// Whether the file would be written with other bytes than are on the disk.
  bool Differs(const ModuleText& text) const;

  /// Puts the text into the file. Throws SourceError when the file was changed by someone else
  /// since it was read or written, or cannot be written; it is as it was then.
  void Write(const ModuleText& text);

  /// Makes a new file, which is this one from now on. Throws SourceError, also for a file that is
  /// there already.
  void WriteNew(const std::filesystem::path& path, const ModuleText& text);

  /// Makes a file or replaces what is there; it is this one from now on. Throws SourceError.
  void WriteTo(const std::filesystem::path& path, const ModuleText& text);

 private:
  ComponentFile(std::filesystem::path path, FileContent content);

  std::string Compose(const ModuleText& text) const;
  void NoteWritten(const std::filesystem::path& path, std::string bytes);

  std::filesystem::path path_;
  SourceFile source_;
  FileSnapshot snapshot_;
  std::string bytes_;  // on the disk
};

}  // namespace brimwork::bench

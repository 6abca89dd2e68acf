// One Visual Basic source file in memory: the module that the environment would show, and all that
// it takes to write the file again with every other byte as it was.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "memory/byte_sink.h"
#include "memory/module_text.h"
#include "memory/source_layout.h"
#include "memory/text_codec.h"

namespace brimwork {

class SourceFile {
 public:
  /// bytes: the whole file; encoding: for a file without a byte-order mark. path is used for
  /// messages and, when no attribute names the module, for its name. Throws SourceError for bytes
  /// that are no source text, std::invalid_argument for an unknown encoding.
  static SourceFile Parse(std::string bytes, std::string path, const std::string& encoding);

  const std::string& Path() const { return path_; }
  const std::string& ModuleName() const { return moduleName_; }

  /// What the file lays out ("VB.Form"), "" for a file of code alone.
  const std::string& ObjectClass() const { return layout_.preamble.objectClass; }

  /// From now on the file says that the module has this name, and all else as before.
  void SetModuleName(std::string_view name);

  /// The encoding that was used.
  const std::string& Encoding() const { return codec_->Encoding(); }

  /// What decoded the file, to encode what is made of its text.
  TextCodec& Codec() const { return *codec_; }

  /// The lines that the environment shows, to be edited; can be taken once.
  ModuleText TakeText() { return std::move(module_); }

  /// Writes the file's bytes with the edited text in the place of the one taken. Unedited text
  /// gives the bytes read. Throws SourceError, naming line and column in the file as it would be,
  /// for new text that the encoding has not (part of the file may have been written then), and
  /// whatever sink throws.
  void Compose(const ModuleText& text, const ByteSink& sink) const;

  /// Throws what Compose would throw for text that the encoding has not.
  void RequireEncodable(const ModuleText& text) const;

  int FileLines() const { return layout_.FileLines(); }
  /// Number of lines that the editor hides above the module.
  int PreambleLines() const { return layout_.preamble.lines; }
  /// Number of lines of the module as read.
  int LineCount() const { return layout_.moduleLines; }

  /// The module's line (from 1) of a line of the file as read: for a hidden line the one it hangs
  /// on, 1 for the preamble. Throws SourceError when the file has no such line.
  int ModuleLineOf(int fileLine) const;

  /// The line of the file as read of a module line as read. Throws SourceError when there is none.
  int FileLineOf(int moduleLine) const;

  /// The module's lines as read, whatever was edited since.
  OriginalLines LinesAsRead() const { return {layout_, *text_}; }

  /// Module text as the user shall see it in a message or a diff.
  std::string ForDisplay(std::string_view text) const { return codec_->ForDisplay(text); }

 private:
  SourceFile() = default;
  void RequireLine(int line, int count, const std::string& what) const;

  std::string path_;
  std::string moduleName_;
  std::unique_ptr<TextCodec> codec_;
  std::shared_ptr<const std::string> text_;
  bool readAscii_ = false;
  SourceLayout layout_;
  ModuleText module_;
};

}  // namespace brimwork

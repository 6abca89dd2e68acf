// Text files that the add-in writes, in the system's code page. Every operation may raise
// RunTimeError.
#pragma once

#include <memory>
#include <string_view>

namespace brimwork {

/// What becomes of a character that the code page has not.
enum class UnencodableText {
  kFails,               // error 5
  kCharacterReference,  // "&#8364;"
};

/// A file being written. Only Close makes it appear, whole, in the place of any older one; a file
/// that goes away before that leaves nothing behind.
class OutputFile {
 public:
  virtual ~OutputFile() = default;

  /// One line, ended by CR LF.
  virtual void PrintLine(std::string_view line) = 0;
  virtual void Close() = 0;
};

class TextFiles {
 public:
  virtual ~TextFiles() = default;

  /// Raises error 75 when no file can be written there.
  virtual std::unique_ptr<OutputFile> OpenForOutput(std::string_view path,
                                                    UnencodableText unencodable) = 0;
};

}  // namespace brimwork

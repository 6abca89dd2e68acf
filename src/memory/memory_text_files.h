// Text files as plain data: their bytes under their paths.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "environment/text_files.h"
#include "memory/text_codec.h"

namespace brimwork {

class MemoryTextFiles : public TextFiles {
 public:
  std::unique_ptr<OutputFile> OpenForOutput(std::string_view path,
                                            UnencodableText unencodable) override;

  /// Puts a whole file there, over any older one. Raises error 75 when no file can be written
  /// there.
  void Write(std::string_view path, std::string bytes) {
    Write(path, std::make_shared<const std::string>(std::move(bytes)));
  }
  void Write(std::string_view path, std::shared_ptr<const std::string> bytes);

  /// The code page; WINDOWS-1252 until one is set. codec is used as long as this object.
  void SetCodec(TextCodec& codec) { codec_ = &codec; }
  TextCodec& Codec();

  bool Exists(std::string_view path) const { return files_.contains(path); }

  /// The file's bytes; "" when there is no such file.
  std::string BytesOf(std::string_view path) const;

  /// Takes the file away; "" when there is no such file.
  std::string Take(std::string_view path) { return *TakeShared(path); }
  /// The same without a copy; never null.
  std::shared_ptr<const std::string> TakeShared(std::string_view path);

  std::size_t Count() const { return files_.size(); }

  /// Files cannot be written while this is true.
  bool isDiskFull = false;

 private:
  std::map<std::string, std::shared_ptr<const std::string>, std::less<>> files_;
  std::unique_ptr<TextCodec> ownCodec_;
  TextCodec* codec_ = nullptr;
};

}  // namespace brimwork

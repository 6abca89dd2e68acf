#include "memory/memory_text_files.h"

#include <algorithm>
#include <utility>

#include "environment/run_time_error.h"
#include "environment/utf8.h"
#include "memory/huge_pages.h"

namespace brimwork {
namespace {

class MemoryOutputFile : public OutputFile {
 public:
  MemoryOutputFile(MemoryTextFiles& files, std::string path, UnencodableText unencodable)
      : files_(files), path_(std::move(path)), unencodable_(unencodable) {}

  void PrintLine(std::string_view line) override {
    MakeRoom(line.size() + kLineEnd.size());
    AppendEncoded(line);
    bytes_ += kLineEnd;
  }

  void Close() override { files_.Write(path_, std::move(bytes_)); }

 private:
  static constexpr std::string_view kLineEnd = "\r\n";

  /// Growing in big steps copies little; room that is not used costs nothing.
  void MakeRoom(std::size_t more) {
    constexpr std::size_t kFirstRoom = 2 * 1024 * 1024;
    if (bytes_.capacity() - bytes_.size() >= more) return;
    const std::size_t room = std::max({bytes_.size() + more, 2 * bytes_.capacity(), kFirstRoom});
    bytes_.reserve(room);
    PreferHugePages(bytes_.data(), room);
  }

  void AppendEncoded(std::string_view text) {
    while (true) {
      try {
        bytes_ += files_.Codec().Encode(text, buffer_);
        return;
      } catch (const TextCodecError& error) {
        if (unencodable_ == UnencodableText::kFails) {
          throw RunTimeError(error_number::kInvalidProcedureCall, path_ + ": " + error.what());
        }
        AppendEncoded(text.substr(0, error.Offset()));
        text = AppendReference(text.substr(error.Offset()));
      }
    }
  }

  /// Appends the first character of text as a reference; returns what follows it.
  std::string_view AppendReference(std::string_view text) {
    bytes_ += "&#" + std::to_string(static_cast<std::uint32_t>(Utf8Character(text))) + ';';
    return text.substr(Utf8Size(text));
  }

  MemoryTextFiles& files_;
  std::string path_;
  UnencodableText unencodable_;
  std::string bytes_;
  std::string buffer_;
};

}  // namespace

std::unique_ptr<OutputFile> MemoryTextFiles::OpenForOutput(std::string_view path,
                                                           UnencodableText unencodable) {
  return std::make_unique<MemoryOutputFile>(*this, std::string(path), unencodable);
}

void MemoryTextFiles::Write(std::string_view path, std::shared_ptr<const std::string> bytes) {
  if (isDiskFull) {
    throw RunTimeError(error_number::kPathFileAccess, std::string(path) + " cannot be written");
  }
  files_.insert_or_assign(std::string(path), std::move(bytes));
}

TextCodec& MemoryTextFiles::Codec() {
  if (codec_ != nullptr) return *codec_;
  if (!ownCodec_) ownCodec_ = std::make_unique<TextCodec>("WINDOWS-1252");
  return *ownCodec_;
}

std::string MemoryTextFiles::BytesOf(std::string_view path) const {
  const auto file = files_.find(path);
  return file == files_.end() ? std::string() : *file->second;
}

std::shared_ptr<const std::string> MemoryTextFiles::TakeShared(std::string_view path) {
  const auto file = files_.find(path);
  if (file == files_.end()) return std::make_shared<const std::string>();
  std::shared_ptr<const std::string> bytes = std::move(file->second);
  files_.erase(file);
  return bytes;
}

}  // namespace brimwork

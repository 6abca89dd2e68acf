#include "windows/desktop/system_text_files.h"

#include <string>

#include "windows/desktop/new_file.h"

namespace brimwork::windows {
namespace {

class SystemOutputFile : public OutputFile {
 public:
  SystemOutputFile(std::string_view path, const CodePageText& encoding, UnencodableText unencodable)
      : file_(path), encoding_(encoding), unencodable_(unencodable) {}

  void PrintLine(std::string_view line) override {
    constexpr std::size_t kBlock = 256 * 1024;
    encoding_.Append(line, unencodable_, bytes_);
    bytes_ += "\r\n";
    if (bytes_.size() >= kBlock) WriteGathered();
  }

  void Close() override {
    WriteGathered();
    file_.PutInPlace();
  }

 private:
  void WriteGathered() {
    file_.Write(bytes_);
    bytes_.clear();
  }

  NewFile file_;
  CodePageText encoding_;
  UnencodableText unencodable_;
  std::string bytes_;  // not yet in the file
};

}  // namespace

std::unique_ptr<OutputFile> SystemTextFiles::OpenForOutput(std::string_view path,
                                                           UnencodableText unencodable) {
  return std::make_unique<SystemOutputFile>(path, encoding_, unencodable);
}

}  // namespace brimwork::windows

// A file that appears whole in its place, or not at all.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace brimwork::windows {

/// What is written lies beside its place until it is put there; an object that goes away before
/// that leaves nothing behind. Every call that fails raises error 75.
class NewFile {
 public:
  /// A file that is read-only or a folder, or a folder that takes no files, is refused at once.
  explicit NewFile(std::string_view path);
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  ~NewFile();

  void Write(std::string_view bytes);

  /// Puts the file in its place, over any that is there, whose attributes it takes over. It is on
  /// the disk when this returns.
  void PutInPlace();

 private:
  void Close();
  [[noreturn]] void Fail() const;

  std::wstring path_;
  DWORD attributes_;
  std::wstring temporary_;  // "" once it is in its place
  HANDLE file_;
};

}  // namespace brimwork::windows

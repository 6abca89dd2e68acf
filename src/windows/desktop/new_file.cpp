#include "windows/desktop/new_file.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "environment/run_time_error.h"
#include "win32/wide_text.h"

namespace brimwork::windows {
namespace {

[[noreturn]] void FailAt(std::wstring_view path, DWORD error) {
  throw RunTimeError(error_number::kPathFileAccess,
                     win32::Narrow(path) + ": " + win32::SystemWords(error));
}

/// The attributes that a file in this place is to have; raises the error where none can be put.
DWORD AttributesFor(const std::wstring& path) {
  constexpr DWORD kKept = FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM |
                          FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
  const DWORD found = GetFileAttributesW(path.c_str());
  if (found == INVALID_FILE_ATTRIBUTES) {
    if (GetLastError() != ERROR_FILE_NOT_FOUND) FailAt(path, GetLastError());
    return FILE_ATTRIBUTE_ARCHIVE;
  }
  if ((found & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) != 0) {
    FailAt(path, ERROR_ACCESS_DENIED);
  }
  return found & kKept;
}

/// With the separator behind it; "" for the current folder.
std::wstring FolderOf(const std::wstring& path) {
  const std::size_t separator = path.find_last_of(L"\\/:");
  return separator == path.npos ? L"" : path.substr(0, separator + 1);
}

/// Makes a file of a name that there is not yet, in the folder of path.
std::pair<std::wstring, HANDLE> MakeBeside(const std::wstring& path) {
  const std::wstring start =
      FolderOf(path) + L".brimwork-" + std::to_wstring(GetCurrentProcessId()) + L'-';
  for (int attempt = 0;; ++attempt) {
    std::wstring name = start + std::to_wstring(attempt);
    const HANDLE file = CreateFileW(name.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file != INVALID_HANDLE_VALUE) return {std::move(name), file};
    if (GetLastError() != ERROR_FILE_EXISTS) FailAt(path, GetLastError());
  }
}

}  // namespace

NewFile::NewFile(std::string_view path)
    : path_(win32::Wide(path)), attributes_(AttributesFor(path_)) {
  std::tie(temporary_, file_) = MakeBeside(path_);
}

NewFile::~NewFile() {
  Close();
  if (!temporary_.empty()) DeleteFileW(temporary_.c_str());
}

void NewFile::Write(std::string_view bytes) {
  constexpr std::size_t kMostAtOnce = 16 * 1024 * 1024;
  while (!bytes.empty()) {
    const auto size = static_cast<DWORD>(std::min(bytes.size(), kMostAtOnce));
    DWORD written = 0;
    if (!WriteFile(file_, bytes.data(), size, &written, nullptr)) Fail();
    bytes.remove_prefix(written);
  }
}

void NewFile::PutInPlace() {
  if (!FlushFileBuffers(file_)) Fail();
  Close();
  if (!SetFileAttributesW(temporary_.c_str(), attributes_)) Fail();
  if (!MoveFileExW(temporary_.c_str(), path_.c_str(),
                   MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
    Fail();
  }
  temporary_.clear();
}

void NewFile::Close() {
  const HANDLE file = std::exchange(file_, INVALID_HANDLE_VALUE);
  if (file != INVALID_HANDLE_VALUE) CloseHandle(file);
}

void NewFile::Fail() const { FailAt(path_, GetLastError()); }

}  // namespace brimwork::windows

#include "memory/shared_file.h"

#include <windows.h>

#include <system_error>

#include "memory/utf8_path.h"
#include "memory/windows/windows_file.h"

namespace brimwork {
namespace {

namespace fs = std::filesystem;

/// Errors of the system's calls with its words in UTF-8; those of the standard library are in the
/// user's code page.
class SystemCategory : public std::error_category {
 public:
  const char* name() const noexcept override { return "windows"; }
  std::string message(int code) const override {
    return windows::SystemWords(static_cast<DWORD>(code));
  }
};

[[noreturn]] void Fail(const char* what, DWORD error) {
  static const SystemCategory category;
  throw std::system_error(static_cast<int>(error), category, what);
}

bool IsReadOnly(const fs::path& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

bool IsMissing(DWORD error) {
  return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
}

/// Who reads the old bytes keeps them from being replaced for that moment.
void MoveOver(windows::TemporaryFile& temporary, const std::string& target) {
  constexpr DWORD kPause = 5;
  constexpr int kAttempts = 200;
  for (int attempt = 1;; ++attempt) {
    const DWORD error = temporary.MoveOver(target);
    if (error == ERROR_SUCCESS) return;
    const bool mayPass = error == ERROR_ACCESS_DENIED || error == ERROR_SHARING_VIOLATION;
    if (!mayPass || attempt == kAttempts) Fail("cannot be written", error);
    Sleep(kPause);
  }
}

}  // namespace

fs::path FollowLinks(const fs::path& path) {
  std::error_code error;
  const fs::path target = fs::weakly_canonical(path, error);
  return error ? path : target;
}

std::optional<std::string> ReadSharedFile(const fs::path& path) {
  std::error_code ignored;
  if (fs::is_directory(path, ignored)) {
    throw std::system_error(std::make_error_code(std::errc::is_a_directory), "cannot be read");
  }
  try {
    const std::string name = TextOf(path);
    const windows::OpenFile file = windows::OpenExisting(name, GENERIC_READ);
    const FileSnapshot snapshot = windows::SnapshotOf(windows::InformationOf(file, name));
    return windows::ReadBytes(file, snapshot.size, name);
  } catch (const windows::SystemError& error) {
    if (IsMissing(error.Code())) return std::nullopt;
    Fail("cannot be read", error.Code());
  }
}

void ReplaceSharedFile(const fs::path& path, std::string_view content) {
  if (IsReadOnly(path)) Fail("cannot be written", ERROR_ACCESS_DENIED);
  const std::string name = TextOf(path);
  try {
    windows::TemporaryFile temporary(windows::FolderOf(name));
    windows::Write(temporary.File(), content, name);
    windows::Flush(temporary.File(), name);
    MoveOver(temporary, name);
  } catch (const windows::SystemError& error) {
    Fail("cannot be written", error.Code());
  }
}

SharedFileLock::SharedFileLock(const fs::path& path) {
  const std::wstring name = path.wstring() + L".lock";
  // Nobody else opens it while this one has it open.
  constexpr DWORD kPause = 5;
  for (;;) {
    const HANDLE file = CreateFileW(name.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                    OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    lock_ = reinterpret_cast<std::intptr_t>(file);
    if (file != INVALID_HANDLE_VALUE) return;
    const DWORD error = GetLastError();
    if (error != ERROR_SHARING_VIOLATION) Fail("cannot be locked", error);
    Sleep(kPause);
  }
}

SharedFileLock::~SharedFileLock() { CloseHandle(reinterpret_cast<HANDLE>(lock_)); }

}  // namespace brimwork

#include "memory/shared_file.h"

#include <windows.h>

#include <fstream>
#include <iterator>
#include <system_error>

#include "memory/source_error.h"
#include "memory/windows/windows_file.h"

namespace brimwork {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void Fail(const char* what, DWORD error = GetLastError()) {
  throw std::system_error(static_cast<int>(error), std::system_category(), what);
}

bool IsThere(const fs::path& path) {
  return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

}  // namespace

fs::path FollowLinks(const fs::path& path) {
  std::error_code error;
  const fs::path target = fs::weakly_canonical(path, error);
  return error ? path : target;
}

std::optional<std::string> ReadSharedFile(const fs::path& path) {
  if (!IsThere(path)) return std::nullopt;
  if (fs::is_directory(path)) Fail("cannot be read", ERROR_DIRECTORY);
  std::ifstream file(path, std::ios::binary);
  if (!file) Fail("cannot be read");
  std::string content(std::istreambuf_iterator<char>(file), {});
  if (file.bad()) Fail("cannot be read");
  return content;
}

void ReplaceSharedFile(const fs::path& path, std::string_view content) {
  const std::string name = windows::Narrow(path.wstring());
  try {
    windows::TemporaryFile temporary(windows::FolderOf(name));
    windows::Write(temporary.File(), content, name);
    windows::Flush(temporary.File(), name);
    if (IsThere(path)) {
      temporary.Replace(name);
    } else if (!temporary.MoveToFree(name)) {
      Fail("cannot be written", ERROR_ALREADY_EXISTS);
    }
  } catch (const SourceError&) {
    Fail("cannot be written");
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
    if (GetLastError() != ERROR_SHARING_VIOLATION) Fail("cannot be locked");
    Sleep(kPause);
  }
}

SharedFileLock::~SharedFileLock() { CloseHandle(reinterpret_cast<HANDLE>(lock_)); }

}  // namespace brimwork

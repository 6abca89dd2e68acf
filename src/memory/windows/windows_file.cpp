#include "memory/windows/windows_file.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "environment/text.h"

namespace brimwork::windows {
namespace {

std::string ProblemOf(const std::string& call, DWORD code) {
  switch (code) {
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_UNABLE_TO_REMOVE_REPLACED:
      return "another program has the file open; close it there and try again";
    default:
      return call + ": " + SystemWords(code);
  }
}

std::pair<std::string, OpenFile> MakeTemporaryFile(const std::string& folder) {
  const std::string own = folder + "\\.brimwork-" + std::to_string(GetCurrentProcessId()) + "-";
  for (int attempt = 0;; ++attempt) {
    std::string path = own + std::to_string(attempt);
    OpenFile file(CreateFileW(Wide(path).c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                              CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (file.IsOpen()) return {std::move(path), std::move(file)};
    // Another thread's, or left behind by another process of that number.
    if (GetLastError() != ERROR_FILE_EXISTS) {
      ThrowSystemError(folder, "cannot make a temporary file in this folder");
    }
  }
}

}  // namespace

SystemError::SystemError(const std::string& path, const std::string& call, DWORD code)
    : SourceError(path, ProblemOf(call, code)), code_(code) {}

void ThrowSystemError(const std::string& path, const std::string& call) {
  throw SystemError(path, call, GetLastError());
}

void OpenFile::Close() {
  if (IsOpen()) CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE));
}

OpenFile OpenExisting(const std::string& path, DWORD access) {
  constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  OpenFile file(CreateFileW(Wide(path).c_str(), access, kShared, nullptr, OPEN_EXISTING,
                            FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  if (!file.IsOpen()) ThrowSystemError(path, "open");
  return file;
}

BY_HANDLE_FILE_INFORMATION InformationOf(const OpenFile& file, const std::string& path) {
  BY_HANDLE_FILE_INFORMATION information;
  if (!GetFileInformationByHandle(file.Handle(), &information)) {
    ThrowSystemError(path, "cannot look at the file");
  }
  return information;
}

FileSnapshot SnapshotOf(const BY_HANDLE_FILE_INFORMATION& information) {
  constexpr std::int64_t kNanosecondsPerTick = 100;
  const auto joined = [](DWORD high, DWORD low) { return std::uint64_t{high} << 32 | low; };
  const FILETIME& modified = information.ftLastWriteTime;
  return {information.dwVolumeSerialNumber,
          joined(information.nFileIndexHigh, information.nFileIndexLow),
          joined(information.nFileSizeHigh, information.nFileSizeLow),
          static_cast<std::int64_t>(joined(modified.dwHighDateTime, modified.dwLowDateTime)) *
              kNanosecondsPerTick};
}

std::string ReadBytes(const OpenFile& file, std::uint64_t size, const std::string& path) {
  if (size >= std::string().max_size()) throw SourceError(path, "the file is too large");
  std::string bytes(static_cast<std::size_t>(size) + 1, '\0');
  std::size_t have = 0;
  while (have < bytes.size()) {
    constexpr std::size_t kMostAtOnce = 1024 * 1024 * 1024;
    DWORD count = 0;
    const auto wanted = static_cast<DWORD>(std::min(bytes.size() - have, kMostAtOnce));
    if (!ReadFile(file.Handle(), bytes.data() + have, wanted, &count, nullptr)) {
      ThrowSystemError(path, "read");
    }
    if (count == 0) break;
    have += count;
  }
  bytes.resize(have);
  return bytes;
}

void Write(const OpenFile& file, std::string_view bytes, const std::string& path) {
  constexpr std::size_t kMostAtOnce = 16 * 1024 * 1024;
  while (!bytes.empty()) {
    DWORD count = 0;
    const auto size = static_cast<DWORD>(std::min(bytes.size(), kMostAtOnce));
    if (!WriteFile(file.Handle(), bytes.data(), size, &count, nullptr)) {
      ThrowSystemError(path, "write");
    }
    bytes.remove_prefix(count);
  }
}

void Flush(const OpenFile& file, const std::string& path) {
  if (!FlushFileBuffers(file.Handle())) ThrowSystemError(path, "flush");
}

std::string FolderOf(const std::string& path) {
  const auto separator = path.find_last_of("\\/:");
  if (separator == std::string::npos) return ".";
  const bool isDrive = path[separator] == ':';
  return path.substr(0, separator + (isDrive ? 1 : 0)) + (isDrive ? "." : "");
}

TemporaryFile::TemporaryFile(const std::string& folder) : file_(INVALID_HANDLE_VALUE) {
  std::tie(path_, file_) = MakeTemporaryFile(folder);
}

TemporaryFile::~TemporaryFile() {
  file_.Close();
  if (!path_.empty()) DeleteFileW(Wide(path_).c_str());
}

void TemporaryFile::Replace(const std::string& target) {
  file_.Close();
  // Not each system's replacing looks first whether it can, and keeps attributes.
  OpenExisting(target, DELETE).Close();
  SetFileAttributesW(Wide(path_).c_str(), GetFileAttributesW(Wide(target).c_str()));
  if (!ReplaceFileW(Wide(target).c_str(), Wide(path_).c_str(), nullptr,
                    REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr)) {
    ThrowSystemError(target, "replace");
  }
  path_.clear();
}

DWORD TemporaryFile::MoveOver(const std::string& target) {
  file_.Close();
  constexpr DWORD kFlags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
  if (!MoveFileExW(Wide(path_).c_str(), Wide(target).c_str(), kFlags)) return GetLastError();
  path_.clear();
  return ERROR_SUCCESS;
}

bool TemporaryFile::MoveToFree(const std::string& target) {
  file_.Close();
  if (!MoveFileExW(Wide(path_).c_str(), Wide(target).c_str(), MOVEFILE_WRITE_THROUGH)) {
    const DWORD error = GetLastError();
    if (error == ERROR_ALREADY_EXISTS || error == ERROR_FILE_EXISTS) return false;
    ThrowSystemError(target, "rename");
  }
  path_.clear();
  return true;
}

}  // namespace brimwork::windows

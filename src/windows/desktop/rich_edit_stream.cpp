#include "windows/desktop/rich_edit_stream.h"

#include <richedit.h>

#include <algorithm>
#include <cstring>
#include <new>

#include "environment/run_time_error.h"

namespace brimwork::windows {
namespace {

constexpr DWORD kFailed = 1;  // what a stream answers then

DWORD CALLBACK GiveBytes(DWORD_PTR cookie, BYTE* room, LONG size, LONG* given) noexcept {
  std::string_view& bytes = *reinterpret_cast<std::string_view*>(cookie);
  const std::size_t count = std::min(bytes.size(), static_cast<std::size_t>(size));
  std::memcpy(room, bytes.data(), count);
  bytes.remove_prefix(count);
  *given = static_cast<LONG>(count);
  return 0;
}

DWORD CALLBACK TakeBytes(DWORD_PTR cookie, BYTE* given, LONG size, LONG* taken) noexcept {
  std::string& bytes = *reinterpret_cast<std::string*>(cookie);
  try {
    bytes.append(reinterpret_cast<const char*>(given), static_cast<std::size_t>(size));
  } catch (const std::bad_alloc&) {
    return kFailed;
  }
  *taken = size;
  return 0;
}

}  // namespace

bool StreamIn(HWND control, WPARAM format, std::string_view bytes) {
  EDITSTREAM stream = {reinterpret_cast<DWORD_PTR>(&bytes), 0, &GiveBytes};
  SendMessageW(control, EM_STREAMIN, format, reinterpret_cast<LPARAM>(&stream));
  return stream.dwError == 0;
}

std::string StreamOut(HWND control, WPARAM format) {
  std::string bytes;
  EDITSTREAM stream = {reinterpret_cast<DWORD_PTR>(&bytes), 0, &TakeBytes};
  SendMessageW(control, EM_STREAMOUT, format, reinterpret_cast<LPARAM>(&stream));
  if (stream.dwError == 0) return bytes;
  throw RunTimeError(error_number::kInvalidProcedureCall, "the text box cannot give its content");
}

}  // namespace brimwork::windows

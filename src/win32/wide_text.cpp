#include "win32/wide_text.h"

#include <iterator>

namespace brimwork::win32 {

std::wstring Wide(std::string_view text) {
  const int size = static_cast<int>(text.size());
  std::wstring wide(text.size(), L'\0');
  const int length = MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(),
                                         static_cast<int>(wide.size()));
  wide.resize(static_cast<std::size_t>(length));
  return wide;
}

std::string Narrow(std::wstring_view text) {
  constexpr std::size_t kMostBytesOfAUnit = 3;
  std::string narrow(text.size() * kMostBytesOfAUnit, '\0');
  const int size =
      WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), narrow.data(),
                          static_cast<int>(narrow.size()), nullptr, nullptr);
  narrow.resize(static_cast<std::size_t>(size));
  return narrow;
}

std::string SystemWords(DWORD error) {
  wchar_t words[512];
  DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                error, 0, words, static_cast<DWORD>(std::size(words)), nullptr);
  constexpr std::wstring_view kBehindTheWords = L"\r\n. ";
  while (length > 0 && kBehindTheWords.find(words[length - 1]) != kBehindTheWords.npos) --length;
  if (length == 0) return "error " + std::to_string(error);
  return Narrow({words, length});
}

}  // namespace brimwork::win32

#include "windows/component/pictures.h"

#include "win32/wide_text.h"

namespace brimwork::windows {

std::span<const std::uint8_t> PictureOf(HINSTANCE module, std::string_view name) {
  const HRSRC resource = FindResourceW(module, win32::Wide(name).c_str(), RT_RCDATA);
  const HGLOBAL loaded = resource == nullptr ? nullptr : LoadResource(module, resource);
  const void* const bytes = loaded == nullptr ? nullptr : LockResource(loaded);
  if (bytes == nullptr) return {};
  return {static_cast<const std::uint8_t*>(bytes), SizeofResource(module, resource)};
}

}  // namespace brimwork::windows

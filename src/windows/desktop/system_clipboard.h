// The user's clipboard.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "environment/desktop.h"

namespace brimwork::windows {

/// Another program may hold the clipboard for a moment: each operation tries for up to a fifth of a
/// second before it raises error 521.
class SystemClipboard : public Clipboard {
 public:
  /// The bytes of a picture's bitmap file by its name; empty for a name that there is not.
  using Pictures = std::function<std::span<const std::uint8_t>(std::string_view name)>;

  explicit SystemClipboard(Pictures pictures) : pictures_(std::move(pictures)) {}
  SystemClipboard(const SystemClipboard&) = delete;
  SystemClipboard& operator=(const SystemClipboard&) = delete;
  ~SystemClipboard() override;

  std::string GetText() override;
  void SetText(std::string_view text) override;
  /// As a bitmap and in the formats that a button takes its face from, so that what is transparent
  /// stays so. Raises error 481 for a picture that there is not.
  void SetData(std::string_view picture) override;
  void Clear() override;

 private:
  HWND Owner();

  Pictures pictures_;
  HWND owner_ = nullptr;
};

}  // namespace brimwork::windows

// The system's viewer of compiled help.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <utility>

#include "environment/shell.h"
#include "win32/system_library.h"

namespace brimwork::windows {

/// Help windows belong to the desktop: they stay beside the editor, in front or behind it.
class SystemHelpViewer : public HelpViewer {
 public:
  /// library: where the viewer is; it is loaded when it is first needed.
  explicit SystemHelpViewer(std::wstring library = L"hhctrl.ocx") : name_(std::move(library)) {}

  /// Raises error 53 when the system has no viewer. Closing all help is no reason to load it.
  void HtmlHelp(std::string_view path, std::uint32_t command, std::uint32_t data) override;

 private:
  const win32::SystemLibrary& Library();

  std::wstring name_;
  std::optional<win32::SystemLibrary> library_;
};

}  // namespace brimwork::windows

// A module that stands open over a desktop of the exporters, and the files that become of it.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "export/modExportCode.h"
#include "settings/setting_keys.h"
#include "settings/settings.h"
#include "support/export_fixture.h"

namespace brimwork {

inline constexpr const char* kUsersClipboard = "what the user copied";
inline constexpr const char* kChosenPath = "C:\\Out\\chosen";
inline constexpr const char* kDesktopFile = "C:\\Desktop\\Exported Code.txt";

inline const ShownMessage kExportError{"Error encountered while exporting code", 16,
                                       "Error Encountered"};

/// Two lines, the first of them from "If" to "Then" selected.
struct ExportModule : ExportFixture {
  explicit ExportModule(Fault fault = {}) : ExportFixture(std::move(fault)) {
    shellFolders.SetPath(0, "C:\\Desktop");
    clipboard.SetText(kUsersClipboard);
    Environment untroubled = Parts();
    SaveSetting(untroubled, setting::kKeyWordList, "If,Then,End");
    dialogs.SaveTo(kChosenPath);
    OpenModule("  if x Then 'y\r\nEnd If\r\n");
    pane->SetSelection({1, 3, 1, 12});
  }

  void OpenModule(const std::string& text) { pane = Open("Module1", ModuleText::FromText(text)); }

  /// The one file that an export wrote, "(none)" when it wrote none.
  std::string File(const char* path = kChosenPath) const {
    EXPECT_LE(textFiles.Count(), 1u);
    return textFiles.Exists(path) ? textFiles.BytesOf(path) : "(none)";
  }

  std::shared_ptr<MemoryCodePane> pane;
};

}  // namespace brimwork

// The one table of the settings: every key, what its value looks like, and what its readers take
// when nothing is stored.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "environment/environment.h"
#include "settings/setting_defaults.h"

namespace brimwork {

namespace setting {
inline constexpr std::string_view kHeader = "Header";
inline constexpr std::string_view kAdaptedHeader = "AdaptedHeader";
inline constexpr std::string_view kErrorHandling = "ErrorHandling";
inline constexpr std::string_view kKeyWordList = "KeyWordList";
inline constexpr std::string_view kSeparator = "Separator";

/// The spell check's own key, spelled so. Nothing writes it, so the spell check always knows the
/// built-in separator line, whatever line the user has set for the comments.
inline constexpr std::string_view kSeperator = "Seperator";

inline constexpr std::string_view kQuickExportPath = "QuickExportPath";
inline constexpr std::string_view kAutoLoad = "AutoLoad";
inline constexpr std::string_view kSplashScreen = "SplashScreen";
inline constexpr std::string_view kFirstRun = "FirstRun";
inline constexpr std::string_view kCleanUpCodeOptions = "CleanUpCodeOptions";
inline constexpr std::string_view kToolbarPosition = "ToolbarPosition";
inline constexpr std::string_view kToolbarIndex = "ToolbarIndex";
inline constexpr std::string_view kToolbarLeft = "ToolbarLeft";
inline constexpr std::string_view kToolbarTop = "ToolbarTop";
inline constexpr std::string_view kToolbarVisible = "ToolbarVisible";
inline constexpr std::string_view kAreWindowsToggled = "AreWindowsToggled";
inline constexpr std::string_view kToggledWindows = "ToggledWindows";
inline constexpr std::string_view kToggledMenus = "ToggledMenus";
}  // namespace setting

/// A default is a fixed text, or the user's desktop folder, which only the environment knows.
struct SettingDefault {
  enum class Source { kText, kDesktopFolder };
  Source source = Source::kText;
  std::string_view text;
};

struct SettingKey {
  std::string_view key;
  std::string_view format;  // what a value looks like, one line for people
  SettingDefault commandDefault;
  /// What the setup dialog shows. It differs from commandDefault on purpose: the dialog leaves a
  /// box empty where a command falls back on its built-in text, and offers keywords where a command
  /// has none. Nothing for a key that the dialog does not read.
  std::optional<SettingDefault> setupDefault;
};

/// Every key, in the order in which people are shown them.
std::span<const SettingKey> SettingKeys();

/// The entry of a key, in any letter case; null when there is no such key.
const SettingKey* FindSettingKey(std::string_view key);

/// The text of a default; "" for the desktop folder when the shell does not know it.
std::string DefaultText(Environment& environment, const SettingDefault& settingDefault);

/// What a command reads: the stored text, else the table's default. Throws std::out_of_range for a
/// key that is not in the table.
std::string GetCommandSetting(Environment& environment, std::string_view key);

}  // namespace brimwork

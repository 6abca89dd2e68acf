#include "ide_windows/modFullScreen.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "environment/resume_next.h"
#include "environment/text.h"
#include "settings/setting_keys.h"
#include "settings/settings.h"
#include "transform/code_source.h"

namespace brimwork {
namespace {

constexpr std::string_view kMenuBar = "Menu Bar";
constexpr std::string_view kEntryEnd = "*";
constexpr std::string_view kFieldSeparator = ",";

template <class Element, class IsMeant>
void ShowThose(const std::vector<Element>& elements, IsMeant isMeant) {
  for (const Element& element : elements) {
    Insist([&] {
      if (isMeant(*element)) element->SetVisible(true);
    });
  }
}

// Hiding.

/// Nothing when the main window is not there or cannot be asked for.
std::optional<std::uintptr_t> MainWindowIdentity(Environment& environment) {
  std::optional<std::uintptr_t> identity;
  ResumeNext([&] {
    if (const auto window = environment.vbe.MainWindow()) identity = window->Identity();
  });
  return identity;
}

bool IsToolWindow(Window& window, std::optional<std::uintptr_t> mainWindow) {
  const int type = window.Type();
  return type != window_type::kCodeWindow && type != window_type::kDesigner &&
         type != window_type::kMainWindow && window.Identity() != mainWindow;
}

std::string WindowEntry(Window& window) {
  return window.Caption().append(kFieldSeparator).append(std::to_string(window.Type()));
}

/// Hides the visible elements that are to go and stores the entries of those. Where they cannot be
/// stored they are shown again, since nothing would ever bring them back.
template <class Element, class IsToGo, class EntryOf>
void HideAndRemember(Environment& environment, std::string_view key,
                     const std::vector<Element>& elements, IsToGo isToGo, EntryOf entryOf) {
  std::string list;
  std::vector<Element> hidden;
  for (const Element& element : elements) {
    ResumeNext([&] {
      if (!element->Visible() || !isToGo(*element)) return;
      list.append(entryOf(*element)).append(kEntryEnd);
      hidden.push_back(element);
      element->SetVisible(false);
    });
  }
  if (ResumeNext([&] { SaveSetting(environment, key, list); }))
    ShowThose(hidden, [](auto&) { return true; });
}

// Showing again.

/// The entries of a stored list. What follows the last entry's end is no entry.
std::vector<std::string_view> Entries(std::string_view list) {
  std::vector<std::string_view> entries = Split(list, kEntryEnd);
  if (!entries.empty() && entries.back().empty()) entries.pop_back();
  return entries;
}

/// An entry of the windows' list. A caption with a comma or asterisk in it leaves a type that is no
/// number, or none.
struct StoredWindow {
  std::string_view caption;
  std::optional<int> type;
  bool changesCaption = false;
};

StoredWindow ReadEntry(std::string_view entry) {
  const auto fields = Split(entry, kFieldSeparator);
  StoredWindow stored;
  stored.caption = fields[0];
  if (fields.size() > 1) ResumeNext([&] { stored.type = ToInteger(fields[1]); });
  stored.changesCaption = entry.starts_with("Project") || entry.starts_with("Properties");
  return stored;
}

/// The project and properties windows take another caption with the project and the selected
/// object, also while they are hidden, so that their type says more.
bool IsWindowOf(const StoredWindow& stored, Window& window) {
  if (stored.changesCaption && stored.type == window.Type()) return true;
  return window.Caption() == stored.caption;
}

void RestoreWindows(Environment& environment) {
  const std::string list = GetCommandSetting(environment, setting::kToggledWindows);
  const auto windows = environment.vbe.Windows();
  for (const std::string_view entry : Entries(list)) {
    if (entry.empty()) continue;
    const StoredWindow stored = ReadEntry(entry);
    ShowThose(windows, [&](Window& window) { return IsWindowOf(stored, window); });
  }
  SaveSetting(environment, setting::kToggledWindows, "");
}

void RestoreCommandBars(Environment& environment) {
  const std::string list = GetCommandSetting(environment, setting::kToggledMenus);
  const auto bars = environment.vbe.CommandBars();
  for (const std::string_view name : Entries(list)) {
    ShowThose(bars, [&](CommandBar& bar) { return bar.Name() == name; });
  }
  SaveSetting(environment, setting::kToggledMenus, "");
}

// The state between two uses.

bool AreWindowsToggled(Environment& environment) {
  return GetCommandSetting(environment, setting::kAreWindowsToggled) == "True";
}

void SaveAreWindowsToggled(Environment& environment, bool areToggled) {
  SaveSetting(environment, setting::kAreWindowsToggled, areToggled ? "True" : "False");
}

void EnterFullScreen(Environment& environment) {
  HideToolWindows(environment);
  // The next use would hide once more, and overwrite the lists of what is hidden already.
  if (ResumeNext([&] { SaveAreWindowsToggled(environment, true); }))
    RestoreToolWindows(environment);
}

void LeaveFullScreen(Environment& environment) {
  if (RestoreToolWindows(environment)) SaveAreWindowsToggled(environment, false);
}

}  // namespace

void ToggleFullScreen(Environment& environment) {
  const HourglassPointer hourglass(environment.screen);
  ResumeNext([&] {
    if (AreWindowsToggled(environment)) {
      LeaveFullScreen(environment);
    } else {
      EnterFullScreen(environment);
    }
  });
}

void HideToolWindows(Environment& environment) {
  ResumeNext([&] {
    const auto mainWindow = MainWindowIdentity(environment);
    HideAndRemember(
        environment, setting::kToggledWindows, environment.vbe.Windows(),
        [&](Window& window) { return IsToolWindow(window, mainWindow); }, WindowEntry);
  });
  ResumeNext([&] {
    HideAndRemember(
        environment, setting::kToggledMenus, environment.vbe.CommandBars(),
        [](CommandBar& bar) { return bar.Name() != kMenuBar; },
        [](CommandBar& bar) { return bar.Name(); });
  });
}

bool RestoreToolWindows(Environment& environment) {
  const auto windowsFailure = ResumeNext([&] { RestoreWindows(environment); });
  const auto barsFailure = ResumeNext([&] { RestoreCommandBars(environment); });
  return !windowsFailure && !barsFailure;
}

}  // namespace brimwork
